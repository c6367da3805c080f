#ifndef VQC_CMD_GENERATE_STUBS_FILE_H
#define VQC_CMD_GENERATE_STUBS_FILE_H

#include "vqc/cmd/generate/walk.h"

namespace vqc {

/// Writes the user-defined integration procedures: a body to fill in for every procedure that the document names and
/// the builder does not supply.
void write_stubs_file(Run& run);

// Its two parts after the prelude. Neither writes a stub that the stub cache holds.

void write_stub_functions(Run& run);
void write_popup_functions(Run& run);

}  // namespace vqc

#endif
