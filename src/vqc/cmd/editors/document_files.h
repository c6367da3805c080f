#ifndef VQC_CMD_EDITORS_DOCUMENT_FILES_H
#define VQC_CMD_EDITORS_DOCUMENT_FILES_H

// Loads the document that is being edited, and saves it.

#include <memory>
#include <optional>
#include <string>

#include "libkel/source.h"

namespace vqc::editors {

/// The syntax errors of this process so far. It is never reset: only the first is shown.
inline int parse_errors = 0;

/// Reads the document named by `path`. A fresh reading replaces the document, any other adds to it. 1 when the file
/// could be opened and begins as a document, even if it breaks off at a syntax error: what came before is kept. 0
/// otherwise; a file that could not be opened, or a fresh document with a bad header, also loses its name: `path` is
/// none then. Failures are shown. The caller clears `dirty`.
int parseit(std::optional<std::string>& path, int fresh);

/// What has not been read of the document's file, since reading broke off at a syntax error.
struct UnreadRest {
  int from_line = 0;
  std::shared_ptr<const Source> file;  // all of it
};
/// Null where the file has been read whole, or has been written since.
const UnreadRest* unread_rest();

/// Writes the document to the file `path`, replacing it, and clears `dirty`. False when the file cannot be opened,
/// which changes nothing. Failures are shown; a failure to write stops nothing.
bool write_save_file(const char* path);

}  // namespace vqc::editors

#endif
