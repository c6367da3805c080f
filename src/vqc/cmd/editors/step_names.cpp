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

/// The messages of a step.
struct Words {
  const char* verbs[4];  // for each verb, in which a part stands
  const char* open;
  const char* start_new;
  const char* left;  // fields that were not applied
};
constexpr Words to_do = {
    {"step_added", "step_removed", "step_changed", "step_reordered"}, "step_open", "step_new", "step_left"};
constexpr Words done = {
    {"done_added", "done_removed", "done_changed", "done_reordered"}, "done_open", "done_new", "done_left"};

/// How many other things have been done in the same way.
int count_more(const std::vector<Difference>& all) {
  const auto is_alike = [&](const Difference& each) {
    return each.verb == all.front().verb && each.part == all.front().part && !each.of == !all.front().of;
  };
  return static_cast<int>(std::ranges::count_if(all, is_alike)) - 1;
}

std::string name_of_change(const std::vector<Difference>& all, const Words& words) {
  std::string part = part_name(all.front().part, all.front().name);
  const int more = count_more(all);
  if (more > 0) part = filled(text_or_name("step_more"), {part.c_str(), more});
  return filled(text_or_name(words.verbs[static_cast<std::size_t>(all.front().verb)]), {part.c_str()});
}

std::string name_in(const Words& words, const Moment& before, const Moment& after) {
  if (before.path != after.path) {
    return after.path ? filled(text_or_name(words.open), {leafnm(after.path->c_str())}) : text_or_name(words.start_new);
  }
  const std::vector<Difference> all = differences(*before.state, *after.state);
  return all.empty() ? text_or_name(words.left) : name_of_change(all, words);
}

}  // namespace

std::string step_name(const Moment& before, const Moment& after) {
  return after.step.empty() ? name_in(to_do, before, after) : after.step;
}

std::string done_name(const Moment& before, const Moment& after) { return name_in(done, before, after); }

}  // namespace vqc::editors
