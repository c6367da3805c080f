#ifndef VQC_CMD_SAVEFILE_SAVE_H
#define VQC_CMD_SAVEFILE_SAVE_H

#include "libkel/sink.h"
#include "vqc/cmd/model/document.h"

namespace vqc {

/// Writes a document, as load() reads it.
void save(const Document& document, Sink& out);

/// Writes a document so that load_whole() reads the same one, whatever its texts hold, where save() leaves out or
/// alters what is of no use to who generates from it. load() reads it too, as it reads any document.
///
/// What the format has no words for is lost here too: what is in a text behind its first 2047 characters or a NUL, that
/// a text is empty and not null, but for an initialisation procedure, and another order of records that are sorted.
void save_whole(const Document& document, Sink& out);

}  // namespace vqc

#endif
