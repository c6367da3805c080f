// Reads a document.

#include "vqc/cmd/savefile/load.h"

#include "vqc/cmd/savefile/reader.h"

namespace vqc {

LoadResult load(const std::shared_ptr<const Source>& source, Document& document, Diagnostics& findings,
                AfterError after_error, Places* places) {
  document.keep(source);
  return Reader(*source, Actions(document, places), findings, after_error).document();
}

}  // namespace vqc
