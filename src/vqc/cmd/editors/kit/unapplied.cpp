// Compares fields with what has been shown in them.

#include "vqc/cmd/editors/kit/unapplied.h"

#include <Xm/Label.h>
#include <Xm/RowColumn.h>
#include <Xm/ToggleB.h>

#include <algorithm>
#include <map>

#include "libkel/message.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

/// Fields that are applied together.
struct Group {
  Widget note;
  std::vector<Widget> fields;
  bool is_marked = false;
};

struct Field {
  std::size_t group;
  std::string shown;
  Pixel background;
  bool is_marked = false;
};

std::vector<Group> groups;
std::map<Widget, Field>& fields() {
  static std::map<Widget, Field> all;
  return all;
}
FieldValues left_fields;

bool is_option_menu(Widget w) {
  if (!XmIsRowColumn(w)) return false;
  unsigned char type = 0;
  XtVaGetValues(w, XmNrowColumnType, &type, nullptr);
  return type == XmMENU_OPTION;
}

bool is_field(Widget w) { return is_text(w) || XmIsToggleButton(w) || is_option_menu(w); }

/// The name of the button that an option menu shows.
std::string chosen_in(Widget menu) {
  Widget button = nullptr;
  XtVaGetValues(menu, XmNmenuHistory, &button, nullptr);
  return button ? XtName(button) : "";
}

std::string value_of(Widget field) {
  if (is_text(field)) return characters_in(field);
  if (XmIsToggleButton(field)) return XmToggleButtonGetState(field) ? "on" : "";
  return chosen_in(field);
}

void set_value(Widget field, const std::string& value) {
  if (is_text(field)) return set_characters(field, value);
  if (XmIsToggleButton(field)) return XmToggleButtonSetState(field, value.empty() ? False : True, True);
  Widget menu = nullptr;
  XtVaGetValues(field, XmNsubMenuId, &menu, nullptr);
  XtVaSetValues(field, XmNmenuHistory, XtNameToWidget(menu, const_cast<char*>(value.c_str())), nullptr);
}

Pixel background_of(Widget w) {
  Pixel background = 0;
  XtVaGetValues(w, XmNbackground, &background, nullptr);
  return background;
}

/// The colour of a field that has not been applied.
Pixel marked_background(Widget field) {
  XtResource resource = {const_cast<char*>("unappliedBackground"),
                         const_cast<char*>(XmCBackground),
                         const_cast<char*>(XmRPixel),
                         sizeof(Pixel),
                         0,
                         const_cast<char*>(XmRString),
                         const_cast<char*>("white")};
  Pixel background = 0;
  XtGetApplicationResources(field, &background, &resource, 1, nullptr, 0);
  return background;
}

bool is_unapplied(Widget w, const Field& field) { return value_of(w) != field.shown; }

void mark(Widget w, Field& field) {
  const bool marks = is_unapplied(w, field);
  if (marks == field.is_marked) return;
  field.is_marked = marks;
  XtVaSetValues(w, XmNbackground, marks ? marked_background(w) : field.background, nullptr);
}

void mark(Group& group) {
  const bool marks = std::ranges::any_of(group.fields, [](Widget w) { return fields().at(w).is_marked; });
  if (marks == group.is_marked) return;
  group.is_marked = marks;
  const CompoundString text(marks ? text_or_name("not_applied") : "");
  XtVaSetValues(group.note, XmNlabelString, text.get(), nullptr);
}

void mark_with_group(Widget w) {
  Field& field = fields().at(w);
  mark(w, field);
  mark(groups[field.group]);
}

void value_changes(Widget field, XtPointer, XtPointer) {
  guarded([field] { mark_with_group(field); });
}

void forget(Widget w, XtPointer, XtPointer) {
  std::erase(groups[fields().at(w).group].fields, w);
  fields().erase(w);
}

void watch(Widget w, std::size_t group) {
  fields()[w] = {group, value_of(w), background_of(w)};
  groups[group].fields.push_back(w);
  XtAddCallback(w, XmNdestroyCallback, forget, nullptr);
  if (!is_option_menu(w)) XtAddCallback(w, XmNvalueChangedCallback, value_changes, nullptr);
}

void watch_all(Widget w, std::size_t group) {
  if (is_field(w)) return watch(w, group);
  for (Widget child : children_of(w)) watch_all(child, group);
}

}  // namespace

Widget create_unapplied_note(Widget parent, char* name, ArgList, Cardinal) {
  return XtVaCreateWidget(name, xmLabelWidgetClass, parent, XmNlabelString,
                          CompoundString(text_or_name("not_applied")).get(), XmNrecomputeSize, False, nullptr);
}

void watch_fields(std::initializer_list<Widget> all, Widget note) {
  groups.push_back({note, {}});
  XtVaSetValues(note, XmNlabelString, CompoundString("").get(), nullptr);
  for (Widget field : all) watch_all(field, groups.size() - 1);
}

ShowingField::ShowingField(Widget field) : field_(fields().contains(field) ? field : nullptr) {
  if (field_ && is_unapplied(field_, fields().at(field_))) left_fields.emplace_back(XtName(field_), value_of(field_));
}

ShowingField::~ShowingField() {
  if (!field_) return;
  fields().at(field_).shown = value_of(field_);
  mark_with_group(field_);
}

void note_applied(Widget field) {
  const auto found = fields().find(field);
  if (found == fields().end()) return;
  for (Widget w : groups[found->second.group].fields) note_one_applied(w);
}

void note_one_applied(Widget field) {
  fields().at(field).shown = value_of(field);
  mark_with_group(field);
}

void mark_unapplied() {
  for (auto& [widget, field] : fields()) mark(widget, field);
  for (Group& group : groups) mark(group);
}

FieldValues unapplied_fields() {
  FieldValues values;
  for (const auto& [widget, field] : fields()) {
    if (is_unapplied(widget, field)) values.emplace_back(XtName(widget), value_of(widget));
  }
  return values;
}

FieldValues take_left_fields() { return std::exchange(left_fields, {}); }

void put_back(const FieldValues& values) {
  for (const auto& [name, value] : values) {
    for (const auto& [widget, field] : fields()) {
      if (name == XtName(widget)) set_value(widget, value);
    }
  }
  mark_unapplied();
}

}  // namespace vqc::editors
