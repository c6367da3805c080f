#ifndef VQC_CMD_SAVEFILE_LOAD_RESULT_H
#define VQC_CMD_SAVEFILE_LOAD_RESULT_H

#include <optional>
#include <string>

namespace vqc {

/// What the reader does at a syntax error.
enum class AfterError { stop, go_on };

/// A syntax error as the editor states it.
struct StatedError {
  std::string message;  // the name of a message, or the character that was expected, in quotes
  int line;             // counted from the first word of the document
};

/// What came of reading.
struct LoadResult {
  bool has_header = false;  // it begins as a document
  bool out_of_memory = false;
  std::optional<StatedError> first_error = {};
};

}  // namespace vqc

#endif
