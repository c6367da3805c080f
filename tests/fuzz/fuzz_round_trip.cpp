// A document is read and written; what was written is read again into another, written the same, and the same is
// generated from it.

#include "model_check.h"
#include "support.h"

namespace {

/// What is written is not escaped, so that only a document without these is sure to be read as it was.
bool writes_plainly(std::string_view text) { return text.find_first_of("\\%") == std::string_view::npos; }

/// Gives the families what they get when all that they name is there before them, as it is in what is written: the
/// popups of their converters, and the predefined popups as they are. Takes from them what is not written.
void complete_families(Document& document) {
  for (Family& family : document.families) {
    if (!family.family_init) static_cast<FamilyInit&>(family) = {};
    for (const auto& [name, dialog_init] : predefined_popups) document.popups.find(name)->dialog_init = dialog_init;
    for (const auto& reference : family.converters) {
      document.ensure(family.popups, document.popups, reference.record->dialog);
    }
  }
}

/// The three generated files, one after the other.
std::string generated_all(const Document& document) {
  const Families families = all_families(document);
  return generated(document, families, CONFIG_FILE) + generated(document, families, CODE_FILE) +
         generated(document, families, STUBS_FILE);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  Document document;
  read_into(document, text);
  complete_families(document);
  const std::string first = saved(document);
  Document again;
  const Reading reading = read_into(again, first);
  check_model(again);
  const std::string second = saved(again);
  const std::string generated_again = generated_all(again);
  if (!writes_plainly(text)) return 0;
  require(reading.result.has_header && reading.diagnostics.empty(), "what was written cannot be read");
  require(second == first, "what was read again is written otherwise");
  require(generated_again == generated_all(document), "what was read again is generated otherwise");
  return 0;
}
