// Any bytes are taken for a stubs file that a person has edited. What he wrote is kept, and is kept again as it stands,
// or a message says why nothing can be done.

#include <algorithm>
#include <set>

#include "support.h"
#include "vqc/cmd/generate/keep_stubs.h"

using namespace vqc;

namespace {

constexpr std::string_view kDocuments[] = {
    "VQconfig widget 'W' { realise='p0' abstract='p1' can_add_child='p2' } popup 'p3' { dialog_init='p4' }\n"
    "family 'F' { header='one.h' widget='W' popup='p3' }\n",
    "VQconfig widget 'W' { appropriate_parent='p0' defined_name='p1' } popup 'p2' { dialog_update='p5' }\n"
    "family 'F' { header='one.h' header='two.h' widget='W' popup='p2' }\n",
    "VQconfig family 'F' { family_init='p0' generate_family_init_stub=True popup='p%%' popup='p q' popup='p4' }\n",
    "VQconfig family 'F' { }\n",
};

/// What a person wrote.
bool is_own(std::string_view line) { return line.find("mine!") != std::string_view::npos; }

std::set<std::string_view> own_lines(std::string_view text) {
  std::set<std::string_view> lines;
  while (!text.empty()) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    while (line.ends_with('\r')) line.remove_suffix(1);
    if (is_own(line)) lines.insert(line);
  }
  return lines;
}

void check_messages(const KeptStubs& kept, std::string_view old) {
  const auto lines = static_cast<std::size_t>(std::count(old.begin(), old.end(), '\n')) + 1;
  bool blocks = false;
  for (const StubsMessage& message : kept.messages) {
    require(message.line >= 1 && message.line <= lines, "a message stands outside the text");
    require(!message.words.empty(), "a message has no words");
    blocks = blocks || message.blocks;
  }
  require(blocks != kept.text.has_value(), "there is a text where something blocks, or none where nothing does");
}

void check(const Document& document, std::string_view old, Switches switches) {
  const Families families = all_families(document);
  const KeptStubs kept = keep_stubs(document, families, switches, old);
  check_messages(kept, old);
  if (!kept.text) return;
  const std::set<std::string_view> lines = own_lines(*kept.text);
  for (const std::string_view line : own_lines(old)) require(lines.contains(line), "a line is lost");
  const KeptStubs again = keep_stubs(document, families, switches, *kept.text);
  require(again.text == kept.text, "keeping twice changes something");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Input input(data, size);
  Document document;
  read_into(document, kDocuments[input.choice % std::size(kDocuments)]);
  check(document, input.text, {.comment = (input.choice & 8) != 0});
  return 0;
}
