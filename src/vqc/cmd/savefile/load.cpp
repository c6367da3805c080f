// Reads a document.

#include "vqc/cmd/savefile/load.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "vqc/cmd/savefile/reader.h"

namespace vqc {

namespace {

/// Leaves the references that the source names, in its order.
template <class List>
void leave_as_named(Document& document, List& list, const Places& places) {
  std::vector<std::pair<std::size_t, typename List::Element*>> named;
  std::vector<typename List::Element*> unnamed;
  for (auto& reference : list) {
    if (const auto place = places.of(static_cast<const void*>(&reference))) {
      named.emplace_back(place->begin, &reference);
    } else {
      unnamed.push_back(&reference);
    }
  }
  for (auto* reference : unnamed) document.release(list, reference);
  std::ranges::sort(named);
  std::vector<typename List::Element*> in_order;
  in_order.reserve(named.size());
  for (const auto& [place, reference] : named) in_order.push_back(reference);
  list.arrange(in_order);
}

}  // namespace

LoadResult load(const std::shared_ptr<const Source>& source, Document& document, Diagnostics& findings,
                AfterError after_error, Places* places) {
  document.keep(source);
  return Reader(*source, Actions(document, places), findings, after_error).document();
}

LoadResult load_whole(const std::shared_ptr<const Source>& source, Document& document, Diagnostics& findings) {
  Places places(*source);
  LoadResult result = load(source, document, findings, AfterError::stop, &places);
  for (Family& family : document.families) {
    each_family_list([&](auto list, auto /*pool*/) { leave_as_named(document, family.*list, places); });
  }
  return result;
}

}  // namespace vqc
