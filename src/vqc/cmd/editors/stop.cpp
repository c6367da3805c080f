// The stop list dialog: a toggle for each widget class that can be left out.

#include "vqc/cmd/editors/stop.h"

#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/ScrolledW.h>
#include <Xm/SeparatoG.h>
#include <Xm/Separator.h>
#include <Xm/ToggleB.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/given_options.h"
#include "vqc/cmd/editors/kit/part_names.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/kit/unapplied.h"
#include "vqc/cmd/model/stop_list.h"

namespace vqc::editors {

namespace {

constexpr bool is_container(const StopClass& each) { return each.column <= 3 || each.column == 7; }

enum Slot { SHELL, FORM, CONTAINER, NOT_APPLIED, TOGGLES, SLOTS = TOGGLES + static_cast<int>(std::size(stop_classes)) };

// clang-format off
const WidgetRow frame_rows[] = {
    {"stop_list_shell",             XmCreateDialogShell,     nullptr,                     {}, SHELL},
    {"stop_list_form",              create_form,             "stop_list_shell",           on_help("vqc_stop_list"), FORM},
};

const WidgetRow button_rows[] = {
    {"stop_list_fake_separator",    XmCreateSeparatorGadget, "stop_list_form"},
    {"stop_list_apply",             XmCreatePushButton,      "stop_list_form",            on_press(stop_list_do_apply)},
    {"stop_list_close",             XmCreatePushButton,      "stop_list_form",            on_press(stop_list_do_popdown)},
    {"stop_list_help",              XmCreatePushButton,      "stop_list_form",            on_press(vqc_do_help, "vqc_stop_list")},
    {"stop_list_not_applied",       create_unapplied_note,           "stop_list_form",            {}, NOT_APPLIED},
    {"stop_list_separator",         XmCreateSeparator,       "stop_list_form"},
    {"stop_list_scrolled_window",   XmCreateScrolledWindow,  "stop_list_form"},
    {"stop_list_container",         create_form,             "stop_list_scrolled_window", {}, CONTAINER},
    {"stop_list_composites",        create_form,             "stop_list_container"},
};

const WidgetRow primitives_rows[] = {
    {"stop_list_section_separator", XmCreateSeparator,       "stop_list_container"},
    {"stop_list_primitives",        create_form,             "stop_list_container"},
};

const WidgetLink links[] = {
    {"stop_list_form", XmNdefaultButton, "stop_list_apply"},
    {"stop_list_form", XmNcancelButton,  "stop_list_close"},
};
// clang-format on

Widget toggle_of(const StopClass& each) { return stop_list_shell[TOGGLES + (&each - stop_classes)]; }

/// The toggles of the containers, or those of the primitives.
DialogPart toggles_in(const char* form, bool containers) {
  DialogPart toggles;
  for (const StopClass& each : stop_classes) {
    const int slot = TOGGLES + static_cast<int>(&each - stop_classes);
    if (is_container(each) == containers) toggles.rows.push_back({each.toggle, XmCreateToggleButton, form, {}, slot});
  }
  return toggles;
}

/// The order in which applied classes are listed.
std::vector<const StopClass*> listed_classes() {
  std::vector<const StopClass*> classes;
  for (const StopClass& each : stop_classes) classes.push_back(&each);
  std::ranges::stable_sort(classes, {}, &StopClass::column);
  return classes;
}

}  // namespace

Widget* create_stop_list_shell(Widget parent) {
  Widget* record = build_dialog(
      parent,
      {part(frame_rows), status_line("stop_list_form"), part(button_rows, links),
       toggles_in("stop_list_composites", true), part(primitives_rows), toggles_in("stop_list_primitives", false)},
      SLOTS);
  if (record) watch_fields({record[CONTAINER]}, record[NOT_APPLIED]);
  return record;
}

void stoplist_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (!ensure_dialog(stop_list_shell, create_stop_list_shell)) return;
  show_stop_list();
  show_dialog(stop_list_shell[FORM]);
}

void stop_list_do_apply(Widget, XtPointer, XtPointer) {
  std::string classes;
  for (const StopClass* each : listed_classes()) {
    if (!gettoggle(toggle_of(*each))) continue;
    if (!classes.empty()) classes += ',';
    classes += each->name;
  }
  note_applied(toggle_of(stop_classes[0]));
  say_unless_changed("nothing_changed", {part_name(Part::stop_list, {}).c_str()});
  stop_list_set(classes.empty() ? Name(nullptr) : Name(classes));
}

void stop_list_do_popdown(Widget, XtPointer, XtPointer) { hide_dialog(stop_list_shell[FORM]); }

void stop_list_set(Name classes) {
  edited_document.excluded_classes = edited_document.keep(classes);
  show_stop_list();
}

void show_stop_list() {
  if (!stop_list_shell) return;
  const std::vector<std::string_view> excluded = classes_in(edited_document.excluded_classes.view());
  for (const StopClass& each : stop_classes) {
    settoggle(toggle_of(each), std::ranges::find(excluded, each.name) != excluded.end());
  }
}

}  // namespace vqc::editors
