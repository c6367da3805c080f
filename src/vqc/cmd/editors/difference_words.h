#ifndef VQC_CMD_EDITORS_DIFFERENCE_WORDS_H
#define VQC_CMD_EDITORS_DIFFERENCE_WORDS_H

// What differs, in the user's language.

#include <span>
#include <string>

#include "vqc/cmd/editors/kit/diff_text.h"
#include "vqc/cmd/history/difference.h"

namespace vqc::editors {

/// Differences in numbers, such as "2 widgets fewer, 14 resources changed".
std::string in_numbers(std::span<const DifferenceCount> counts);
/// The same of lines, such as "12 lines more, 3 lines fewer".
std::string in_numbers(const TintedLines& lines);

/// Differences by record and field.
TintedLines in_lines(std::span<const RecordDifference> differences);

}  // namespace vqc::editors

#endif
