/*
**vqconfiggeneratedstub:p9
*/
#if 0
/* vqconfig: the document no longer names p */
#
p9(
#endif
){}
