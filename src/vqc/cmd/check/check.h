#ifndef VQC_CMD_CHECK_CHECK_H
#define VQC_CMD_CHECK_CHECK_H

#include "libkel/diagnostics.h"
#include "libkel/source.h"
#include "vqc/cmd/check/check_options.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/places.h"

namespace vqc {

/// Finds what the program reads, but the compiler or the running builder will not like. The document has been read from
/// the source without an error, and the places noted.
void check(const Document& document, const Source& source, const Places& places, const CheckOptions& options,
           Diagnostics& findings);

}  // namespace vqc

#endif
