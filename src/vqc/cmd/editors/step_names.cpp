// Names what the user has done.

#include "vqc/cmd/editors/step_names.h"

#include <algorithm>
#include <vector>

#include "libkel/leafnm.h"
#include "libkel/message.h"
#include "vqc/cmd/editors/kit/part_names.h"
#include "vqc/cmd/history/difference.h"

namespace vqc::editors {

namespace {

/// The message for each verb, in which a part stands.
constexpr const char* verb_messages[] = {"step_added", "step_removed", "step_changed", "step_reordered"};

/// How many other things have been done in the same way.
int count_more(const std::vector<Difference>& all) {
  const auto is_alike = [&](const Difference& each) {
    return each.verb == all.front().verb && each.part == all.front().part && !each.of == !all.front().of;
  };
  return static_cast<int>(std::ranges::count_if(all, is_alike)) - 1;
}

std::string name_of_change(const std::vector<Difference>& all) {
  std::string part = part_name(all.front().part, all.front().name);
  const int more = count_more(all);
  if (more > 0) part = filled(text_or_name("step_more"), {part.c_str(), more});
  return filled(text_or_name(verb_messages[static_cast<std::size_t>(all.front().verb)]), {part.c_str()});
}

}  // namespace

std::string step_name(const Moment& before, const Moment& after) {
  if (before.path != after.path) {
    return after.path ? filled(text_or_name("step_open"), {leafnm(after.path->c_str())}) : text_or_name("step_new");
  }
  const std::vector<Difference> all = differences(*before.state, *after.state);
  return all.empty() ? text_or_name("step_other") : name_of_change(all);
}

}  // namespace vqc::editors
