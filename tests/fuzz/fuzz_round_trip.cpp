// A document is read and written; what was written is read again, cut into small reads, written the same, and the same
// is generated from it.

#include "model_check.h"
#include "support.h"
#include "vqc/cmd/generate/generate.h"
#include "vqc/cmd/model/builtin.h"
#include "vqc/cmd/model/family.h"
#include "vqc/cmd/model/popup.h"
#include "vqc/cmd/savefile/parse.h"

namespace {

/// What is written is not escaped, so that only a document without these is sure to be read as it was.
bool writes_plainly(std::string_view text) { return text.find_first_of("\\%") == std::string_view::npos; }

/// Gives the families what they get when all that they name is there before them, as it is in what is written: the
/// popups of their converters, and the predefined popups as they are. Takes from them what is not written.
void complete_families() {
  for (Family& family : family_pool.list) {
    if (!family.family_init) static_cast<FamilyInit&>(family) = {};
    predefine_popups(&family);
    for (const auto& reference : family.converters) {
      if (reference.record->dialog) popuplist_add(reference.record->dialog, &family);
    }
  }
}

/// The three generated files, one after the other.
std::string generated_all(const MemoryFile& output) {
  return generated_file(output, CONFIG_FILE) + generated_file(output, CODE_FILE) + generated_file(output, STUBS_FILE);
}

/// Reads what has been written. False when that was not to be read without an error.
bool read_back(MemoryFile& file, std::size_t piece) {
  const CutReads cut(piece);
  parse_errors = 0;
  const int result = read_document(file, true);
  check_model();
  return result == 1 && parse_errors == 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static MemoryFile file;
  static MemoryFile output;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  start_afresh();
  file.write(text);
  read_document(file, true);
  complete_families();
  const std::string first = written_document(file);
  const std::string generated = generated_all(output);
  const bool whole = read_back(file, 1 + size % 61);
  const std::string second = written_document(file);
  if (!writes_plainly(text)) return 0;
  require(whole, "what was written cannot be read");
  require(second == first, "what was read again is written otherwise");
  require(generated_all(output) == generated, "what was read again is generated otherwise");
  return 0;
}
