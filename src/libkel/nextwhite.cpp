#include "libkel/nextwhite.h"

#include "libkel/keltype.h"

namespace vqc {

char* nextwhite(char* s) {
  while (*s != '\0' && !kel_is(*s, KEL_SPACE)) ++s;
  return s;
}

}  // namespace vqc
