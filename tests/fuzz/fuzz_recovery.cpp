// Any bytes are read twice, once up to the first error and once beyond all of them, into documents that know nothing of
// each other. Both find an error, the same first one, or none.

#include "model_check.h"
#include "support.h"

namespace {

bool same(const std::optional<StatedError>& a, const std::optional<StatedError>& b) {
  if (!a || !b) return !a && !b;
  return a->message == b->message && a->line == b->line;
}

void compare(const Reading& stopping, const Reading& going_on) {
  const auto& first = stopping.diagnostics.findings();
  const auto& all = going_on.diagnostics.findings();
  require(first.size() <= 1, "reading that stops finds more than one error");
  require(first.empty() == all.empty(), "an error is found or not as reading goes on");
  require(first.empty() || first.front() == all.front(), "the first error is another when reading goes on");
  require(all.size() <= going_on.size + 1, "more errors than characters");
  require(same(stopping.result.first_error, going_on.result.first_error), "something else is stated");
  require(stopping.result.has_header == going_on.result.has_header, "the header is another when reading goes on");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  Document document;
  const Reading stopping = read_into(document, text);
  const std::string before = saved(document);
  Document other;
  Places places;
  const Reading going_on = read_into(other, text, AfterError::go_on, &places);
  compare(stopping, going_on);
  check_model(document);
  check_model(other);
  const bool faultless = going_on.diagnostics.empty();
  require(!faultless || saved(other) == before, "going on reads a document without errors otherwise");
  other.clear();
  require(saved(document) == before, "a document changes another");
  return 0;
}
