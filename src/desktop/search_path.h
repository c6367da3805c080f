#ifndef DESKTOP_SEARCH_PATH_H
#define DESKTOP_SEARCH_PATH_H

namespace vqc {

/// Lets the toolkit find the resource files that were installed, or built, with this program, after those that the
/// user's environment names, and sets VQROOT to the installation unless it is set. To be called before the display is
/// opened.
void use_installation();

}  // namespace vqc

#endif
