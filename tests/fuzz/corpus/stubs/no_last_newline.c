/* END of vqconfig Prelude */
int x;