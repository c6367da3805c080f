#ifndef VQC_CMD_SAVEFILE_PARSE_H
#define VQC_CMD_SAVEFILE_PARSE_H

#include "libkel/text.h"

/// The syntax errors of this process so far. It is never reset: only the first is shown.
inline int parse_errors = 0;

/// Reads the document named by `*path`. A fresh reading replaces the model, any other adds to it. 1 when the file
/// could be opened and begins as a document, even if it breaks off at a syntax error: what came before is kept. 0
/// otherwise; a file that could not be opened, or a fresh document with a bad header, also loses its name: `*path`
/// becomes null. The caller clears `dirty`.
int parseit(Text* path, int fresh);

#endif
