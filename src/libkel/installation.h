#ifndef LIBKEL_INSTALLATION_H
#define LIBKEL_INSTALLATION_H

#include <string>

namespace vqc {

/// The folder that this program was installed, or built, into. It is found from where the program's file really lies,
/// so that an installation may be moved, and its programs be started through links.
std::string installation();

/// The path of a file that was installed, or built, with this program.
std::string installed(const char* file);

}  // namespace vqc

#endif
