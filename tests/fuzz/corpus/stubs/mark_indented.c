 /* END of vqconfig Prelude */
/*
** vqconfig generated stub: a
*/

void a(Widget w)
{
	/* FIXME */
}

