/*
** vqconfig generated stub: p9
*/

#if 0
/* vqconfig: the document no longer names p9 */
void p9(Widget w) { p1(0); } /* mine! */
#endif
#if 0
/* vqconfig: the document no longer names p1 */
char *p1(char *name)
{
	p9(0); /* mine! */
}
#endif