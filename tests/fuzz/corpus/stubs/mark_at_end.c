x
/* END of vqconfig Prelude */