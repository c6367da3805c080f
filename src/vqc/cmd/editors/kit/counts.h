#ifndef VQC_CMD_EDITORS_KIT_COUNTS_H
#define VQC_CMD_EDITORS_KIT_COUNTS_H

#include <span>
#include <string>

namespace vqc::editors {

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
