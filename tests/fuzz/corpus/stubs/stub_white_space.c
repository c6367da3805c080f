/* END of vqconfig Prelude */
**vqconfiggeneratedstub:a
**   vqconfig	generated  stub:		b c
** vqconfig generated stub:
** vqconfig generated stub: %s
