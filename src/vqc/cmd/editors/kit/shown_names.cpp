// Keeps the names that lists show beside what can be displayed of them.

#include "vqc/cmd/editors/kit/shown_names.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>

#include "vqc/cmd/editors/kit/compound.h"

namespace vqc::editors {

namespace {

/// What another hand has put into a list is what can be read there.
std::vector<std::string>& names_in(Widget list) {
  static std::unordered_map<Widget, std::vector<std::string>> lists;
  XmString* items = nullptr;
  int count = 0;
  XtVaGetValues(list, XmNitems, &items, XmNitemCount, &count, nullptr);
  std::vector<std::string>& names = lists[list];
  const auto known = std::min(names.size(), static_cast<std::size_t>(count));
  names.resize(known);
  for (auto i = known; i < static_cast<std::size_t>(count); ++i) names.push_back(text_of(items[i]));
  return names;
}

/// In one line, or all rows of the list would be as high as this one.
CompoundString item(const std::string& name) { return CompoundString(displayable_line(name).c_str()); }

/// Scrolls no further than the item needs.
void bring_into_view(Widget list, int position) {
  int top = 0;
  int visible = 0;
  XtVaGetValues(list, XmNtopItemPosition, &top, XmNvisibleItemCount, &visible, nullptr);
  if (position < top) XmListSetPos(list, position);
  if (position >= top + visible) XmListSetBottomPos(list, position);
}

}  // namespace

void list_show(Widget list, const std::vector<std::string>& names) {
  std::vector<std::string> shown;
  std::vector<CompoundString> strings;
  for (const std::string& name : names) {
    CompoundString string = item(name);
    if (!string) continue;
    shown.push_back(name);
    strings.push_back(std::move(string));
  }
  std::vector<XmString> items(strings.begin(), strings.end());
  std::vector<std::string>& shown_before = names_in(list);
  XmListDeleteAllItems(list);
  XtVaSetValues(list, XmNitems, items.data(), XmNitemCount, static_cast<int>(items.size()), nullptr);
  shown_before = std::move(shown);
}

void list_insert(Widget list, Name name, int position) {
  std::vector<std::string>& shown = names_in(list);
  const auto count = static_cast<int>(shown.size());
  const int place = position == 0 || position > count ? count + 1 : position;
  const CompoundString string = item(std::string(name.view()));
  shown.emplace(shown.begin() + place - 1, name.view());
  XmListAddItem(list, string, place);
  bring_into_view(list, place);
}

void list_delete(Widget list, Name name) {
  const int position = list_position(list, name);
  if (position == 0) return;
  std::vector<std::string>& shown = names_in(list);
  shown.erase(shown.begin() + position - 1);
  XmListDeletePos(list, position);
}

void list_move(Widget list, int from, int to) {
  std::vector<std::string>& shown = names_in(list);
  const std::string name = shown[static_cast<std::size_t>(from) - 1];
  const CompoundString string = item(name);
  shown.erase(shown.begin() + from - 1);
  shown.insert(shown.begin() + to - 1, name);
  XmListDeletePos(list, from);
  XmListAddItem(list, string, to);
}

const std::vector<std::string>& list_names(Widget list) { return names_in(list); }

int list_position(Widget list, Name name) {
  const std::vector<std::string>& shown = names_in(list);
  const auto place = std::ranges::find(shown, name.view());
  return place == shown.end() ? 0 : static_cast<int>(place - shown.begin()) + 1;
}

int list_selected_place(Widget list) {
  int* places = nullptr;
  int count = 0;
  if (!XmListGetSelectedPos(list, &places, &count)) return 0;
  const int place = places[0];
  XtFree(reinterpret_cast<char*>(places));
  return place;
}

std::string list_selected(Widget list) {
  const auto place = static_cast<std::size_t>(list ? list_selected_place(list) : 0);
  if (place == 0) return {};
  const std::vector<std::string>& names = names_in(list);
  return place <= names.size() ? names[place - 1] : std::string();
}

void list_select(Widget list, Name name) {
  const int place = list_position(list, name);
  if (place != 0) list_select_place(list, place);
}

void list_select_place(Widget list, int place) {
  int count = 0;
  XtVaGetValues(list, XmNitemCount, &count, nullptr);
  if (count == 0) return;
  const int nearest = std::clamp(place, 1, count);
  XmListSelectPos(list, nearest, False);
  bring_into_view(list, nearest);
}

std::string clicked_name(Widget list, const XmListCallbackStruct& call) {
  const std::vector<std::string>& names = names_in(list);
  const auto place = static_cast<std::size_t>(call.item_position);
  return place >= 1 && place <= names.size() ? names[place - 1] : std::string();
}

}  // namespace vqc::editors
