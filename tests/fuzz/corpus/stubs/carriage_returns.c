/* END of vqconfig Prelude */
/*
** vqconfig generated stub: foo
*/

void foo(Widget w)
{
	/* FIXME */
}

