#ifndef VQC_CMD_EDITORS_KIT_COUNTS_H
#define VQC_CMD_EDITORS_KIT_COUNTS_H

#include <span>
#include <string>

namespace vqc::editors {

/// Puts words at the end of a list, such as "1 error, 2 warnings".
void add_to_list(std::string& list, const std::string& words);

/// A number of things, and the messages for one of them and for several.
struct Count {
  int number;
  const char* one;
  const char* several;
};

/// "2 widgets"
std::string in_words(const Count& count);
/// "1 error, 2 warnings"; without what there is none of.
std::string in_words(std::span<const Count> counts);

}  // namespace vqc::editors

#endif
