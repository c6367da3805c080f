#ifndef VQC_CMD_SAVEFILE_SAVE_H
#define VQC_CMD_SAVEFILE_SAVE_H

#include "libkel/sink.h"
#include "vqc/cmd/model/document.h"

namespace vqc {

/// Writes a document, as load() reads it.
void save(const Document& document, Sink& out);

/// Writes a document so that load() reads the same one, whatever its texts hold, where save() leaves out or alters what
/// is of no use to who generates from it.
///
/// What the format has no words for is lost here too: what is in a text behind its first 2047 characters or a NUL; that
/// a text is empty and not null, but for an initialisation procedure; the order of a sorted list, and that of
/// predefined pages in a family, where it was changed; and that a family has not all predefined pages and popups, or
/// not the popups of its converters.
void save_whole(const Document& document, Sink& out);

}  // namespace vqc

#endif
