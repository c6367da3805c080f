#ifndef VQC_CMD_SAVEFILE_SAVE_H
#define VQC_CMD_SAVEFILE_SAVE_H

#include "libkel/sink.h"
#include "vqc/cmd/model/document.h"

namespace vqc {

/// Writes a document, as load() reads it.
void save(const Document& document, Sink& out);

}  // namespace vqc

#endif
