// The rules on the stop list.

#include <algorithm>
#include <map>
#include <string_view>

#include "vqc/cmd/check/rules.h"
#include "vqc/cmd/model/stop_list.h"

namespace vqc {

namespace {

bool is_known(std::string_view name) {
  return std::ranges::find(stop_classes, name, &StopClass::name) != std::end(stop_classes);
}

std::string nearest_class(Inspection& inspection, std::string_view name) {
  std::vector<std::string_view> names;
  for (const StopClass& each : stop_classes) names.push_back(each.name);
  return inspection.nearest_to(name, names);
}

/// Where a part of the stop list stands; with an escape in it, the list stands there as a whole.
std::optional<Range> place_of_part(const Inspection& inspection, std::string_view part) {
  const std::optional<Range> place = inspection.places.of(Text(part));
  return place ? place : inspection.place_of(inspection.document.excluded_classes);
}

}  // namespace

void classes_of_stop_list(Inspection& inspection) {
  std::map<std::string_view, std::optional<Range>> seen;
  for (const std::string_view name : classes_in(inspection.document.excluded_classes.view())) {
    const std::optional<Range> place = place_of_part(inspection, name);
    const auto [first, is_new] = seen.emplace(name, place);
    if (!is_new) {
      inspection.add(FindingId::class_twice, place, {std::string(name)}, {{first->second, "it stands here already"}});
    } else if (!is_known(name)) {
      inspection.add(FindingId::unknown_class, place, {std::string(name)}, {}, nearest_class(inspection, name));
    }
  }
}

}  // namespace vqc
