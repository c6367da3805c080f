#include "libkel/overwhite.h"

#include "libkel/keltype.h"

char* overwhite(char* s) {
  while (kel_is(*s, KEL_SPACE)) ++s;
  return s;
}
