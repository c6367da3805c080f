#ifndef LIBKEL_LEAFNM_H
#define LIBKEL_LEAFNM_H

namespace vqc {

/// The part of `path` after its last "/", or `path` itself if it has none. Points into the argument.
char* leafnm(char* path);
const char* leafnm(const char* path);

}  // namespace vqc

#endif
