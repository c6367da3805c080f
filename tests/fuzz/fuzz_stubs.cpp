// Any bytes are taken for an earlier stubs file. What is carried over from it is carried over again as it stands.

#include "support.h"
#include "vqc/cmd/generate/parse_stubs.h"

namespace {

constexpr std::string_view kMarks[] = {"/* END of vqconfig Prelude */", "/* END of orvo_config Prelude */"};

bool has_mark(std::string_view text) {
  return text.find(kMarks[0]) != std::string_view::npos || text.find(kMarks[1]) != std::string_view::npos;
}

/// What a new stubs file without a prelude has from `old`.
std::string carried_over(std::string_view old) {
  static MemoryFile old_file;
  static MemoryFile new_file;
  old_file.write(old);
  new_file.write("");
  {
    const std::unique_ptr<Stream> out = Stream::open(new_file.path(), "w");
    Run run{*out, false, false};
    vqc_init_stubs_file(run, Stream::open(old_file.path(), "r"), nullptr, nullptr);
  }
  return new_file.read();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Input input(data, size);
  start_afresh();
  const std::string carried = carried_over(input.text);
  require(carried.size() <= input.text.size(), "more is carried over than there was");
  require(carried.empty() || has_mark(input.text), "a prelude is carried over");
  const CutReads cut(input.choice + 1);
  require(carried_over(input.text) == carried, "cutting the reads changes what is carried over");
  require(carried_over(std::string(kMarks[0]) + "\n" + carried) == carried, "carrying over twice changes something");
  return 0;
}
