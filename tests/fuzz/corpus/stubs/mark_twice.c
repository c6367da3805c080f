/* END of vqconfig Prelude */
/*
** vqconfig generated stub: a
*/

void a(Widget w)
{
	/* FIXME */
}

/* END of vqconfig Prelude */
/*
** vqconfig generated stub: b
*/

void b(Widget w)
{
	/* FIXME */
}

/* END of orvo_config Prelude */
/*
** vqconfig generated stub: c
*/

void c(Widget w)
{
	/* FIXME */
}

