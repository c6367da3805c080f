// The three files are generated from any document that can be read, and the same ones every time.

#include <map>

#include "model_check.h"
#include "support.h"

namespace {

/// Every second family, or all.
Families chosen_families(const Document& document, bool every_second) {
  Families families = all_families(document);
  std::size_t place = 0;
  if (every_second) std::erase_if(families, [&](const Family*) { return place++ % 2 == 0; });
  return families;
}

/// Nothing that is written there arrives.
void generate_to_full_disk(Document& document, const Families& families, Switches switches) {
  for (int kind : {CONFIG_FILE, CODE_FILE, STUBS_FILE}) {
    require(generate_file(document, "/dev/full", families, kind, switches), "a full disk is not opened");
  }
}

/// Generates each file after each other and after itself.
void generate_in_every_order(const Document& document, const Families& families, Switches switches) {
  constexpr int kOrder[] = {CONFIG_FILE, CONFIG_FILE, CODE_FILE,  CODE_FILE, STUBS_FILE,
                            STUBS_FILE,  CONFIG_FILE, STUBS_FILE, CODE_FILE, CONFIG_FILE};
  std::map<int, std::string> files;
  for (int kind : kOrder) {
    const std::string text = generated(document, families, kind, switches);
    const auto [first, is_first] = files.emplace(kind, text);
    require(is_first || first->second == text, "generating again gives something else");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Input input(data, size);
  Document document;
  document.compatibility = {.mfc = (input.choice & 4) != 0, .java = (input.choice & 8) != 0};
  read_into(document, input.text);
  const Switches switches{.comment = (input.choice & 1) != 0, .verbose = (input.choice & 2) != 0};
  const Families families = chosen_families(document, (input.choice & 16) != 0);
  if (input.choice & 32) generate_to_full_disk(document, families, switches);
  generate_in_every_order(document, families, switches);
  check_model(document);
  return 0;
}
