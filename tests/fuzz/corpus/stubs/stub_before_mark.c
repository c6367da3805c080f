** vqconfig generated stub: early
/* END of vqconfig Prelude */
int x;
