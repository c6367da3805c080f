#ifndef VQC_TOOL_COUNTED_H
#define VQC_TOOL_COUNTED_H

#include <concepts>
#include <string>

namespace vqc {

/// A number and what there is of it, as in "1 file" or "2 files".
inline std::string counted(std::integral auto number, const std::string& one, const std::string& several) {
  return std::to_string(number) + " " + (number == 1 ? one : several);
}
inline std::string counted(std::integral auto number, const std::string& one) {
  return counted(number, one, one + "s");
}

/// Adds a part to a list, as in "1 file, 2 stubs".
inline void add_part(std::string& list, const std::string& part) { list += (list.empty() ? "" : ", ") + part; }

}  // namespace vqc

#endif
