// Any bytes are read twice, once up to the first error and once beyond all of them, into documents that know nothing of
// each other. Both find an error, the same first one, or none.

#include "model_check.h"
#include "support.h"

namespace {

bool same(const std::optional<StatedError>& a, const std::optional<StatedError>& b) {
  if (!a || !b) return !a && !b;
  return a->message == b->message && a->line == b->line;
}

std::vector<Finding> errors(const Reading& reading) {
  std::vector<Finding> found = reading.diagnostics.findings();
  std::erase_if(found, [](const Finding& each) { return kind_of(each.id).severity != Severity::error; });
  return found;
}

void compare(const Reading& stopping, const Reading& going_on) {
  const auto& first = stopping.diagnostics.findings();
  const auto all = errors(going_on);
  require(first.size() <= 1, "reading that stops finds more than one error");
  require(first.empty() == all.empty(), "an error is found or not as reading goes on");
  require(first.empty() || first.front() == all.front(), "the first error is another when reading goes on");
  require(all.size() <= going_on.source->text().size() + 1, "more errors than characters");
  require(same(stopping.result.first_error, going_on.result.first_error), "something else is stated");
  require(stopping.result.has_header == going_on.result.has_header, "the header is another when reading goes on");
}

/// What a family refers to stands in the text as its name does, unless the program has made the reference by itself.
template <class References>
void check_places(const References& references, const Reading& reading) {
  for (const auto& reference : references) {
    const std::optional<Range> range = reading.places.of(&reference);
    if (!range) continue;
    require(range->begin < range->end && range->end <= reading.source->text().size(), "a part stands outside the text");
    const std::string_view spelled = reading.source->text(*range);
    const std::string_view name = reference.record->name.view();
    require(spelled.find('\\') != std::string_view::npos || spelled.find(name) != std::string_view::npos,
            "something else stands where a family names a record");
  }
}

void check_places(const Document& document, const Reading& reading) {
  for (const Family& family : document.families) {
    check_places(family.widgets, reading);
    check_places(family.converters, reading);
    check_places(family.popups, reading);
    check_places(family.pages, reading);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  Document document;
  const Reading stopping = read_into(document, text);
  const std::string before = saved(document);
  Document other;
  const Reading going_on = read_into(other, text, AfterError::go_on);
  compare(stopping, going_on);
  check_model(document);
  check_model(other);
  check_places(other, going_on);
  const bool faultless = errors(going_on).empty();
  require(!faultless || saved(other) == before, "going on reads a document without errors otherwise");
  other.clear();
  require(saved(document) == before, "a document changes another");
  return 0;
}
