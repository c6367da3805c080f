#ifndef LIBKEL_OUTPUT_FILES_H
#define LIBKEL_OUTPUT_FILES_H

#include <span>
#include <string>
#include <vector>

namespace vqc {

/// A file that a program makes: where it goes, and all that it is to hold.
struct OutputFile {
  std::string path;
  std::string text;
};

/// Puts files in place together: each is written beside its place, and they are renamed one after the other when all
/// are complete. Whoever looks, and whenever this is killed, finds each of them whole, as it was or as it is to be.
///
/// A file that holds its text already is not touched. A symbolic link stays, and what it leads to is replaced. A file
/// that is replaced keeps its owner and permissions. What is no file, such as a device or a pipe, is written.
///
/// Runs that make the same files wait for each other. What a killed run has left goes with the next one.
///
/// The files must be different ones. Tells of each whether it was written. Throws std::system_error, whose words have
/// the path and the reason, when one cannot be written; then none is, unless it was the renaming that failed.
std::vector<bool> put_in_place(std::span<const OutputFile> files);

/// Whether putting a file in place would write it. Throws as put_in_place().
bool would_change(const OutputFile& file);

/// Whether two paths lead to one file, be it there or not. Names of one pipe or terminal are different ways to it.
/// Throws as put_in_place().
bool same_file(const std::string& a, const std::string& b);

}  // namespace vqc

#endif
