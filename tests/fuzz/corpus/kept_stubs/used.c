/*
** vqconfig generated stub: p0
*/
void p0(w) Widget w; { /* mine! */ }
int p2();
void *x = p0; /* mine! */
