t
#if 0
/* vqconfig: the document no longer names p4 */

#if 0
/* vqconfig: the document no longer names p0 */
#endif
#xxx/
#endif
#/
**vqconfig generatedstub: p0
/xxx