// Any bytes are taken for an earlier stubs file. What is carried over from it is carried over again as it stands.

#include "support.h"
#include "vqc/cmd/generate/parse_stubs.h"

using namespace vqc;

namespace {

constexpr std::string_view kMarks[] = {"/* END of vqconfig Prelude */", "/* END of orvo_config Prelude */"};

bool has_mark(std::string_view text) {
  return text.find(kMarks[0]) != std::string_view::npos || text.find(kMarks[1]) != std::string_view::npos;
}

/// What a new stubs file without a prelude has from `old`.
std::string carried_over(std::string_view old) {
  const auto source = Source::from_text(old);
  const Document document;
  StringSink out;
  Run run{document, {}, {}, out};
  vqc_init_stubs_file(run, source.get(), nullptr, nullptr);
  require(out.finish(), "stubs cannot be carried over into memory");
  return out.text();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::string carried = carried_over(text);
  require(carried.size() <= text.size(), "more is carried over than there was");
  require(carried.empty() || has_mark(text), "a prelude is carried over");
  require(carried_over(std::string(kMarks[0]) + "\n" + carried) == carried, "carrying over twice changes something");
  return 0;
}
