// Finds who uses a thing of a document.

#include "vqc/cmd/lookup/uses.h"

#include <string>

#include "vqc/cmd/lookup/namings.h"

namespace vqc {

namespace {

/// Visits what names a thing.
template <class Visit>
void each_use(const Document& document, const Spot& thing, Visit visit) {
  each_naming(document, [&](const Naming& naming, const Text*) {
    if (names(naming, thing)) visit(naming);
  });
}

int& count_for(Part by, UseCounts& counts) {
  switch (by) {
    case Part::resource:
      return counts.resources;
    case Part::widget:
      return counts.widgets;
    case Part::converter:
      return counts.converters;
    case Part::popup:
      return counts.popups;
    default:
      return counts.families;
  }
}

}  // namespace

std::vector<Spot> uses_of(const Document& document, const Spot& thing) {
  std::vector<Spot> uses;
  each_use(document, thing, [&](const Naming& naming) {
    const std::string of = naming.by == Part::resource ? string_of(naming.of) : std::string();
    uses.push_back({naming.by, string_of(naming.by_name), of, std::string(keyword_text(naming.field))});
  });
  return uses;
}

UseCounts count_uses(const Document& document, const Spot& thing) {
  UseCounts counts;
  each_use(document, thing, [&](const Naming& naming) { ++count_for(naming.by, counts); });
  return counts;
}

}  // namespace vqc
