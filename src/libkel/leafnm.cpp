#include "libkel/leafnm.h"

#include <cstring>

namespace vqc {

const char* leafnm(const char* path) {
  const char* slash = std::strrchr(path, '/');
  return slash ? slash + 1 : path;
}

char* leafnm(char* path) { return const_cast<char*>(leafnm(const_cast<const char*>(path))); }

}  // namespace vqc
