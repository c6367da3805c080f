#ifndef VQC_CMD_MODEL_DOCUMENT_H
#define VQC_CMD_MODEL_DOCUMENT_H

#include "libkel/text.h"

/// Whether the model has changed since the last load or save. Every successful add and delete sets it; moves do not.
inline bool dirty = false;

/// The document's path, or null while it has none.
inline Text save_file;

#endif
