#ifndef LIBKEL_INSTALLATION_H
#define LIBKEL_INSTALLATION_H

#include <string>

/// Lets the toolkit find the resource files that were installed, or built, with this program, after those that the
/// user's environment names, and sets VQROOT to the installation unless it is set. To be called before the display is
/// opened.
void use_installation();

/// The path of a file that was installed, or built, with this program.
std::string installed(const char* file);

#endif
