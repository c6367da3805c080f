#include "libkel/overwhite.h"

#include "libkel/keltype.h"

namespace vqc {

char* overwhite(char* s) {
  while (kel_is(*s, KEL_SPACE)) ++s;
  return s;
}

}  // namespace vqc
