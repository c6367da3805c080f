// The three files are generated from any document that can be read, and the same ones every time.

#include <map>

#include "model_check.h"
#include "support.h"
#include "vqc/cmd/generate/generate.h"
#include "vqc/cmd/model/options.h"

namespace {

bool choose_every_second(int place) { return place % 2 == 1; }

constexpr FamilyChoice every_second{choose_every_second};

/// The switches as the bits of a number.
void set_switches(unsigned bits) {
  application_resources.comment_code = bits & 1;
  application_resources.verbose_code = bits & 2;
  application_resources.mfc_compatible_widgets = bits & 4;
  application_resources.java_compatible_widgets = bits & 8;
  family_choice = bits & 16 ? &every_second : nullptr;
}

/// Nothing that is written there arrives.
void generate_to_full_disk() {
  for (int kind : {CONFIG_FILE, CODE_FILE, STUBS_FILE}) {
    require(generate("/dev/full", true, kind), "a full disk is not opened");
  }
}

/// Generates each file after each other and after itself.
void generate_in_every_order(const MemoryFile& output) {
  constexpr int kOrder[] = {CONFIG_FILE, CONFIG_FILE, CODE_FILE,  CODE_FILE, STUBS_FILE,
                            STUBS_FILE,  CONFIG_FILE, STUBS_FILE, CODE_FILE, CONFIG_FILE};
  std::map<int, std::string> files;
  for (int kind : kOrder) {
    const std::string text = generated_file(output, kind);
    const auto [first, is_first] = files.emplace(kind, text);
    require(is_first || first->second == text, "generating again gives something else");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static MemoryFile document;
  static MemoryFile output;
  const Input input(data, size);
  start_afresh();
  set_switches(input.choice);
  document.write(input.text);
  read_document(document, true);
  if (input.choice & 32) generate_to_full_disk();
  generate_in_every_order(output);
  check_model();
  return 0;
}
