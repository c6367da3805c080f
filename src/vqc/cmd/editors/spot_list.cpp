// Names places in the document, and lists them.

#include "vqc/cmd/editors/spot_list.h"

#include <Xm/List.h>

#include "libkel/message.h"
#include "vqc/cmd/editors/kit/counts.h"
#include "vqc/cmd/editors/kit/part_names.h"
#include "vqc/cmd/editors/kit/shown_names.h"
#include "vqc/cmd/editors/kit/status_line.h"

namespace vqc::editors {

std::string spot_name(const Spot& spot) {
  std::string name = part_name(spot.part, Text(spot.name.c_str()));
  if (!spot.of.empty()) name = filled(text_or_name("spot_of"), {name.c_str(), spot.of.c_str()});
  if (!spot.field.empty()) name = filled(text_or_name("spot_field"), {name.c_str(), spot.field.c_str()});
  return name;
}

std::string counts_name(const UseCounts& counts) {
  const Count all[] = {{counts.resources, "count_resource", "count_resources"},
                       {counts.widgets, "count_widget", "count_widgets"},
                       {counts.converters, "count_converter", "count_converters"},
                       {counts.popups, "count_popup", "count_popups"},
                       {counts.families, "count_family", "count_families"}};
  return in_words(all);
}

void list_spots(Widget list, const std::vector<Spot>& spots) {
  std::vector<std::string> names;
  names.reserve(spots.size());
  for (const Spot& spot : spots) names.push_back(spot_name(spot));
  list_show(list, names);
  recount();
}

int selected_place(Widget list) { return list_selected_place(list) - 1; }

bool is_click(XtPointer call) {
  const XEvent* event = static_cast<XmListCallbackStruct*>(call)->event;
  return event && event->type == ButtonRelease;
}

}  // namespace vqc::editors
