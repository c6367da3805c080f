#ifndef VQC_CMD_SAVEFILE_LOAD_H
#define VQC_CMD_SAVEFILE_LOAD_H

#include <memory>
#include <optional>
#include <string>

#include "libkel/diagnostics.h"
#include "libkel/source.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/places.h"

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

/// Reads a source into a document, adding to what is there; the document keeps the source. What was read before an
/// error stays. Reading that goes on takes up again at the next field, resource or item, and finds one error for one
/// fault. `places`, if there are any, get to know where everything stands.
LoadResult load(const std::shared_ptr<const Source>& source, Document& document, Diagnostics& findings,
                AfterError after_error = AfterError::stop, Places* places = nullptr);

}  // namespace vqc

#endif
