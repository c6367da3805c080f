#ifndef VQC_CMD_SAVEFILE_LOAD_H
#define VQC_CMD_SAVEFILE_LOAD_H

#include <memory>

#include "libkel/diagnostics.h"
#include "libkel/source.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/load_result.h"
#include "vqc/cmd/savefile/places.h"

namespace vqc {

/// Reads a source into a document, adding to what is there; the document keeps the source. What was read before an
/// error stays. Reading that goes on takes up again at the next field, resource or item, and finds one error for one
/// fault. `places`, if there are any, get to know where everything stands.
LoadResult load(const std::shared_ptr<const Source>& source, Document& document, Diagnostics& findings,
                AfterError after_error = AfterError::stop, Places* places = nullptr);

/// Reads what save_whole() has written into an empty document, up to the first error. Each family has what is said of
/// it and no more, in that order: neither all predefined pages and popups, nor the popups of its converters.
LoadResult load_whole(const std::shared_ptr<const Source>& source, Document& document, Diagnostics& findings);

}  // namespace vqc

#endif
