/* What the host says: a line for each thing wrong, a line for each thing counted. */
#include <stdarg.h>
#include <stdio.h>

#include "host.h"

static int failed;

/* Reports one thing that is wrong; the host goes on. */
void fail(const char* format, ...) {
  va_list arguments;

  failed++;
  printf("  FAIL: ");
  va_start(arguments, format);
  vprintf(format, arguments);
  va_end(arguments);
  printf("\n");
}

int failures(void) { return failed; }

void section(const char* title) { printf("%s\n", title); }

void count(int number, const char* what) { printf("  %5d %s\n", number, what); }
