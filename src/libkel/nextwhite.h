#ifndef LIBKEL_NEXTWHITE_H
#define LIBKEL_NEXTWHITE_H

namespace vqc {

/// The first white-space character at or after `s`, or its terminating NUL. Points into the argument.
char* nextwhite(char* s);

}  // namespace vqc

#endif
