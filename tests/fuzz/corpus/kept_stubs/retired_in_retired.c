/*c*/

#if 0
/* vqconfig: the document no longer names p4 */
/

#if 0
/* vqconfig: the document no longer names p0 */
vt/
#endif
#endif
#/*
** vqconfig generated stub: p0
*/
mes(c*name){
}en