#ifndef LIBKEL_OVERWHITE_H
#define LIBKEL_OVERWHITE_H

namespace vqc {

/// The first character of `s` that is not white space, which may be its terminating NUL. Points into the argument.
char* overwhite(char* s);

}  // namespace vqc

#endif
