EXPORT(Widget) p0(Widget w) UNUSED { }
MODULE(x)
/*
** vqconfig generated stub: p1
*/
Widget p1(Widget w) { } // mine!\
