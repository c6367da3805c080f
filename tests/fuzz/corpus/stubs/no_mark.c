/*
** vqconfig generated stub: foo
*/

void foo(Widget w)
{
	/* FIXME */
}

int x;
