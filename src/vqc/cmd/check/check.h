#ifndef VQC_CMD_CHECK_CHECK_H
#define VQC_CMD_CHECK_CHECK_H

#include <memory>
#include <stop_token>
#include <vector>

#include "libkel/diagnostics.h"
#include "libkel/source.h"
#include "vqc/cmd/check/check_options.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/places.h"

namespace vqc {

/// Finds what the program reads, but the compiler or the running builder will not like. The document has been read from
/// the source without an error, and the places noted. A stop leaves rules out.
void check(const Document& document, const Source& source, const Places& places, const CheckOptions& options,
           Diagnostics& findings, const std::stop_token& stop = {});

/// Reads a source to its end into an empty document, and notes the places. Returns all that there is to say about it,
/// in the order of its text: a document that has been read without an error has been checked, too.
std::vector<Finding> findings_in(const std::shared_ptr<const Source>& source, Document& document, Places& places,
                                 const CheckOptions& options, const std::stop_token& stop = {});

}  // namespace vqc

#endif
