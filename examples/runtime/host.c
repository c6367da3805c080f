/*
 * Links the three files that vqconfig generates from a description of the Athena widgets, and checks them: the tables
 * always, and real widgets when a display can be opened.  The exit status is 0 when nothing was wrong.
 */
#include <stdio.h>

#include "host.h"

int main(int argc, char** argv) {
  Boolean had_display;

  check_tables();
  had_display = check_widgets(&argc, argv);
  if (failures() > 0)
    printf("%d checks failed\n", failures());
  else
    printf("All checks passed (%s)\n", had_display ? "tables and widgets" : "tables only");
  return failures() > 0;
}
