/* END of vqconfig Prelude */
printf("%d%%\n", x);
** vqconfig generated stub: %d%%
