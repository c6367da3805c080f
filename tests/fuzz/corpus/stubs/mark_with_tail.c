/* END of vqconfig Prelude */ and more
int x;
