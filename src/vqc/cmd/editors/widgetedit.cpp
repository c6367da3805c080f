// The widget editor: the fields of a widget class, its resources, and the question about a resource that has been
// changed but not updated.

#include "vqc/cmd/editors/widgetedit.h"

#include <Xm/DialogS.h>
#include <Xm/Frame.h>
#include <Xm/Label.h>
#include <Xm/List.h>
#include <Xm/MessageB.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/Separator.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include <algorithm>
#include <optional>

#include "vqc/cmd/editors/completion.h"
#include "vqc/cmd/editors/field_words.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/part_names.h"
#include "vqc/cmd/editors/kit/search_field.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/shown_names.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/kit/unapplied.h"
#include "vqc/cmd/editors/pagelist.h"
#include "vqc/cmd/editors/popuplist.h"
#include "vqc/cmd/editors/title.h"
#include "vqc/cmd/lookup/namings.h"
#include "vqc/cmd/savefile/fields.h"

namespace vqc::editors {

namespace {

enum Slot {
  SHELL,
  FORM,
  INCLUDE_FILENAME,
  DEFINED_NAME,
  CAN_ADD_CHILD,
  APPROPRIATE_PARENT,
  REALISE,
  ABSTRACT,
  LARGEICON,
  SMALLICON,
  LRG_ICONHEADER,
  SML_ICONHEADER,
  PIXMAP,
  W_HELP_DOC,
  W_HELP_TAG,
  D_HELP_DOC,
  D_HELP_TAG,
  GENERATE_INITIALISE,
  DISABLEGOTO,
  DISABLEFGSWAP,
  DEFAULT_IS_DONT_FREE,
  CAN_CREATE,
  CAN_MANAGE,
  CAN_EDIT_ABSTRACT,
  RESOURCE_SEARCH,
  RESOURCE_LIST,
  RESOURCE,
  COUNTER,
  POPUP,
  PAGE,
  VISIBLE,
  FREE_GET,
  GET_DEFAULT,
  GET_FREE,
  GET_DONT,
  FREE_SET,
  SET_DEFAULT,
  SET_FREE,
  SET_DONT,
  CREATE_TOGGLE,
  SET_TOGGLE,
  GET_TOGGLE,
  RESOURCE_UPDATE,
  RESOURCE_DELETE,
  APPLY,
  UNDO,
  WIDGET_FORM,
  RESOURCE_FIELDS,
  NOT_APPLIED,
  NOT_UPDATED,
  SLOTS,
};

// clang-format off
const WidgetRow frame_rows[] = {
    {"widgetedit_dialog", XmCreateDialogShell, nullptr,             on_close(widgetedit_do_hide), SHELL},
    {"widgetedit_form",   create_form,         "widgetedit_dialog", on_help("vqc_w_edit"), FORM},
};

const WidgetRow rows[] = {
    {"widgetedit_applyb",    XmCreatePushButton,  "widgetedit_form",   on_press(widget_do_update), APPLY},
    {"widgetedit_undob",     XmCreatePushButton,  "widgetedit_form",   on_press(widget_do_undo), UNDO},
    {"widgetedit_closeb",    XmCreatePushButton,  "widgetedit_form",   on_press(widgetedit_do_hide)},
    {"widgetedit_helpb",     XmCreatePushButton,  "widgetedit_form",   on_press(vqc_do_help, "vqc_w_edit")},
    {"widgetedit_not_applied", create_unapplied_note,     "widgetedit_form",   {}, NOT_APPLIED},
    {"widgetedit_separator", XmCreateSeparator,   "widgetedit_form"},

    {"widgetedit_widget_frame",         XmCreateFrame,        "widgetedit_form"},
    {"widgetedit_widget_l",             XmCreateLabel,        "widgetedit_widget_frame"},
    {"widgetedit_widget_form",          create_form,          "widgetedit_widget_frame", {}, WIDGET_FORM},
    {"widgetedit_class_form",           create_form,          "widgetedit_widget_form"},
    {"widgetedit_include_filename",     XmCreateTextField,    "widgetedit_class_form", {}, INCLUDE_FILENAME},
    {"widgetedit_include_filename_l",   XmCreateLabel,        "widgetedit_class_form"},
    {"widgetedit_defined_name",         XmCreateTextField,    "widgetedit_class_form", {}, DEFINED_NAME},
    {"widgetedit_defined_name_l",       XmCreateLabel,        "widgetedit_class_form"},
    {"widgetedit_can_add_child",        XmCreateTextField,    "widgetedit_class_form", {}, CAN_ADD_CHILD},
    {"widgetedit_can_add_child_l",      XmCreateLabel,        "widgetedit_class_form"},
    {"widgetedit_appropriate_parent",   XmCreateTextField,    "widgetedit_class_form", {}, APPROPRIATE_PARENT},
    {"widgetedit_appropriate_parent_l", XmCreateLabel,        "widgetedit_class_form"},
    {"widgetedit_realise",              XmCreateTextField,    "widgetedit_class_form", {}, REALISE},
    {"widgetedit_realise_l",            XmCreateLabel,        "widgetedit_class_form"},
    {"widgetedit_abstract",             XmCreateTextField,    "widgetedit_class_form", {}, ABSTRACT},
    {"widgetedit_abstract_l",           XmCreateLabel,        "widgetedit_class_form"},
    {"widgetedit_pixmap_t",             XmCreateTextField,    "widgetedit_class_form", {}, PIXMAP},
    {"widgetedit_pixmap_l",             XmCreateLabel,        "widgetedit_class_form"},
    {"widgetedit_icon_form",            create_form,          "widgetedit_widget_form"},
    {"widgetedit_largeicon",            XmCreateTextField,    "widgetedit_icon_form",  {}, LARGEICON},
    {"widgetedit_largeicon_l",          XmCreateLabel,        "widgetedit_icon_form"},
    {"widgetedit_smallicon",            XmCreateTextField,    "widgetedit_icon_form",  {}, SMALLICON},
    {"widgetedit_smallicon_l",          XmCreateLabel,        "widgetedit_icon_form"},
    {"widgetedit_lrg_iconheader",       XmCreateTextField,    "widgetedit_icon_form",  {}, LRG_ICONHEADER},
    {"widgetedit_lrg_iconheader_l",     XmCreateLabel,        "widgetedit_icon_form"},
    {"widgetedit_sml_iconheader",       XmCreateTextField,    "widgetedit_icon_form",  {}, SML_ICONHEADER},
    {"widgetedit_sml_iconheader_l",     XmCreateLabel,        "widgetedit_icon_form"},
    {"widgetedit_w_help_doc",           XmCreateTextField,    "widgetedit_icon_form",  {}, W_HELP_DOC},
    {"widgetedit_w_help_doc_l",         XmCreateLabel,        "widgetedit_icon_form"},
    {"widgetedit_w_help_tag",           XmCreateTextField,    "widgetedit_icon_form",  {}, W_HELP_TAG},
    {"widgetedit_w_help_tag_l",         XmCreateLabel,        "widgetedit_icon_form"},
    {"widgetedit_d_help_doc",           XmCreateTextField,    "widgetedit_icon_form",  {}, D_HELP_DOC},
    {"widgetedit_d_help_doc_l",         XmCreateLabel,        "widgetedit_icon_form"},
    {"widgetedit_d_help_tag",           XmCreateTextField,    "widgetedit_icon_form",  {}, D_HELP_TAG},
    {"widgetedit_d_help_tag_l",         XmCreateLabel,        "widgetedit_icon_form"},
    {"widgetedit_toggles",              XmCreateRowColumn,    "widgetedit_widget_form"},
    {"widgetedit_can_create",           XmCreateToggleButton, "widgetedit_toggles",    {}, CAN_CREATE},
    {"widgetedit_can_manage",           XmCreateToggleButton, "widgetedit_toggles",    {}, CAN_MANAGE},
    {"widgetedit_can_edit_abstract",    XmCreateToggleButton, "widgetedit_toggles",    {}, CAN_EDIT_ABSTRACT},
    {"widgetedit_generate_initialise",  XmCreateToggleButton, "widgetedit_toggles",    {}, GENERATE_INITIALISE},
    {"widgetedit_disablegoto",          XmCreateToggleButton, "widgetedit_toggles",    {}, DISABLEGOTO},
    {"widgetedit_disablefgswap",        XmCreateToggleButton, "widgetedit_toggles",    {}, DISABLEFGSWAP},
    {"widgetedit_default_is_dont_free", XmCreateToggleButton, "widgetedit_toggles",    {}, DEFAULT_IS_DONT_FREE},

    {"widgetedit_resource_frame",  XmCreateFrame,        "widgetedit_form"},
    {"widgetedit_resource_l",      XmCreateLabel,        "widgetedit_resource_frame"},
    {"widgetedit_resource_form",   create_form,          "widgetedit_resource_frame"},
    {"widgetedit_resource_names",  create_form,          "widgetedit_resource_form"},
    {"search_row",                 create_form,          "widgetedit_resource_names"},
    {"we_resource_search",         XmCreateTextField,    "search_row",                 {}, RESOURCE_SEARCH},
    {"we_resource_search_l",       XmCreateLabel,        "search_row"},
    {"we_resource_list",           XmCreateScrolledList, "widgetedit_resource_names",  on_select(we_select_cb), RESOURCE_LIST},
    {"widgetedit_resource_fields", create_form,          "widgetedit_resource_form",   {}, RESOURCE_FIELDS},
    {"we_resource_t",              XmCreateTextField,    "widgetedit_resource_fields", on_change(resource_dirty_cb), RESOURCE},
    {"we_resource_l",              XmCreateLabel,        "widgetedit_resource_fields"},
    {"widgetedit_counter_t",       XmCreateTextField,    "widgetedit_resource_fields", {}, COUNTER},
    {"widgetedit_counter_l",       XmCreateLabel,        "widgetedit_resource_fields"},
    {"widgetedit_popup_t",         XmCreateTextField,    "widgetedit_resource_fields", on_change(resource_dirty_cb), POPUP},
    {"widgetedit_popup_l",         XmCreateLabel,        "widgetedit_resource_fields"},
    {"widgetedit_popup_b",         XmCreatePushButton,   "widgetedit_resource_fields", on_press(we_popup_cb)},
    {"widgetedit_page_t",          XmCreateTextField,    "widgetedit_resource_fields", on_change(resource_dirty_cb), PAGE},
    {"widgetedit_page_l",          XmCreateLabel,        "widgetedit_resource_fields"},
    {"widgetedit_page_b",          XmCreatePushButton,   "widgetedit_resource_fields", on_press(we_page_cb)},
    {"widgetedit_visible_tog",     XmCreateToggleButton, "widgetedit_resource_fields", on_change(resource_dirty_cb), VISIBLE},
    {"widgetedit_get_free_m",      XmCreatePulldownMenu, "widgetedit_resource_fields", on_entry(resource_dirty_cb)},
    {"widgetedit_get_default_b",   XmCreatePushButton,   "widgetedit_get_free_m",      {}, GET_DEFAULT},
    {"widgetedit_get_free_b",      XmCreatePushButton,   "widgetedit_get_free_m",      {}, GET_FREE},
    {"widgetedit_get_dont_b",      XmCreatePushButton,   "widgetedit_get_free_m",      {}, GET_DONT},
    {"widgetedit_free_get_opt",    XmCreateOptionMenu,   "widgetedit_resource_fields", {}, FREE_GET},
    {"widgetedit_free_get_l",      XmCreateLabel,        "widgetedit_resource_fields"},
    {"widgetedit_set_free_m",      XmCreatePulldownMenu, "widgetedit_resource_fields", on_entry(resource_dirty_cb)},
    {"widgetedit_set_default_b",   XmCreatePushButton,   "widgetedit_set_free_m",      {}, SET_DEFAULT},
    {"widgetedit_set_free_b",      XmCreatePushButton,   "widgetedit_set_free_m",      {}, SET_FREE},
    {"widgetedit_set_dont_b",      XmCreatePushButton,   "widgetedit_set_free_m",      {}, SET_DONT},
    {"widgetedit_free_set_opt",    XmCreateOptionMenu,   "widgetedit_resource_fields", {}, FREE_SET},
    {"widgetedit_free_set_l",      XmCreateLabel,        "widgetedit_resource_fields"},
    {"widgetedit_access",          XmCreateRowColumn,    "widgetedit_resource_fields"},
    {"widgetedit_create_t",        XmCreateToggleButton, "widgetedit_access",          {}, CREATE_TOGGLE},
    {"widgetedit_set_t",           XmCreateToggleButton, "widgetedit_access",          {}, SET_TOGGLE},
    {"widgetedit_get_t",           XmCreateToggleButton, "widgetedit_access",          {}, GET_TOGGLE},
    {"widgetedit_access_l",        XmCreateLabel,        "widgetedit_resource_fields"},
    {"we_resource_upd_b",          XmCreatePushButton,   "widgetedit_resource_fields", on_press(we_popup_update_cb), RESOURCE_UPDATE},
    {"we_resource_not_updated",    create_unapplied_note,        "widgetedit_resource_fields", {}, NOT_UPDATED},
    {"we_resource_del_b",          XmCreatePushButton,   "widgetedit_resource_fields", on_press(we_popup_delete_cb), RESOURCE_DELETE},
};

const WidgetLink links[] = {
    {"widgetedit_free_get_opt",  XmNsubMenuId,     "widgetedit_get_free_m"},
    {"widgetedit_free_set_opt",  XmNsubMenuId,     "widgetedit_set_free_m"},
    {"widgetedit_widget_form",   XmNdefaultButton, "widgetedit_applyb"},
    {"widgetedit_resource_form", XmNdefaultButton, "we_resource_upd_b"},
    {"widgetedit_form",          XmNcancelButton,  "widgetedit_closeb"},
    {"widgetedit_form",          XmNinitialFocus,  "widgetedit_widget_frame"},
};

// The question what becomes of a resource that has been changed but not updated.

enum WarnSlot { WARN_SHELL, WARN_BOX, WARN_SLOTS };

const WidgetRow warn_rows[] = {
    {"resource_warn_dialog",  XmCreateDialogShell, nullptr,                {}, WARN_SHELL},
    {"resource_warn_msg",     create_question_box, "resource_warn_dialog", on_answer(resource_apply, nullptr, "vqc_w_edit"), WARN_BOX},
    {"resource_warn_ignoreb", XmCreatePushButton,  "resource_warn_msg",    on_press(resource_ignore)},
    {"OK",                    find_child,          "resource_warn_msg"},
};

const WidgetLink warn_links[] = {
    {"resource_warn_msg", XmNdefaultButton, "OK"},
    {"resource_warn_msg", XmNinitialFocus,  "OK"},
};
// clang-format on

struct FreeModeButton {
  Slot button;
  FreeMode mode;
};
constexpr FreeModeButton free_mode_buttons[] = {
    {GET_DEFAULT, FreeMode::by_default}, {GET_FREE, FreeMode::free}, {GET_DONT, FreeMode::dont_free},
    {SET_DEFAULT, FreeMode::by_default}, {SET_FREE, FreeMode::free}, {SET_DONT, FreeMode::dont_free},
};

struct TextField {
  Slot field;
  Text WidgetDef::*text;
};
constexpr TextField text_fields[] = {
    {INCLUDE_FILENAME, &WidgetDef::include_filename},
    {DEFINED_NAME, &WidgetDef::defined_name},
    {CAN_ADD_CHILD, &WidgetDef::can_add_child},
    {APPROPRIATE_PARENT, &WidgetDef::appropriate_parent},
    {REALISE, &WidgetDef::realise},
    {ABSTRACT, &WidgetDef::abstract},
    {LARGEICON, &WidgetDef::largeicon},
    {SMALLICON, &WidgetDef::smallicon},
    {LRG_ICONHEADER, &WidgetDef::largeiconheader},
    {SML_ICONHEADER, &WidgetDef::smalliconheader},
    {PIXMAP, &WidgetDef::pixmap_resource},
    {W_HELP_DOC, &WidgetDef::widget_doc},
    {W_HELP_TAG, &WidgetDef::widget_tag},
    {D_HELP_DOC, &WidgetDef::dialogue_doc},
    {D_HELP_TAG, &WidgetDef::dialogue_tag},
};

struct Toggle {
  Slot toggle;
  bool WidgetDef::*flag;
};
constexpr Toggle toggles[] = {
    {GENERATE_INITIALISE, &WidgetDef::generate_initialise},
    {DISABLEGOTO, &WidgetDef::disablegoto},
    {DISABLEFGSWAP, &WidgetDef::disablefgswap},
    {DEFAULT_IS_DONT_FREE, &WidgetDef::default_is_dont_free},
    {CAN_CREATE, &WidgetDef::can_create},
    {CAN_MANAGE, &WidgetDef::can_manage},
    {CAN_EDIT_ABSTRACT, &WidgetDef::can_edit_abstract},
};

constexpr FieldOfWord resource_fields[] = {
    {Kw::resource_definitions, RESOURCE}, {Kw::counter, COUNTER}, {Kw::popup, POPUP}, {Kw::page, PAGE},
    {Kw::access, CREATE_TOGGLE},
};

struct AccessToggle {
  Slot toggle;
  Access access;
};
constexpr AccessToggle access_toggles[] = {
    {CREATE_TOGGLE, ACCESS_CREATE}, {GET_TOGGLE, ACCESS_GET}, {SET_TOGGLE, ACCESS_SET}};

/// The slot that has a member of a widget; none for one that no row has.
template <class Table, class Member>
std::optional<Slot> slot_of(const Table& table, Member member) {
  for (const auto& [slot, shown] : table) {
    if (shown == member) return slot;
  }
  return std::nullopt;
}

/// What waits for the answer about a changed resource.
enum class Pending { none, close, show_resource };
Pending pending = Pending::none;
std::string pending_resource;

bool resource_changed = false;

Widget at(Slot slot) { return widgetedit_dialog[slot]; }

WidgetDef* current_widget() {
  const Reference<WidgetDef>* element = widgetlist_getcurrent();
  return element ? element->record : nullptr;
}

bool has_current_widget() { return widgetlist_getcurrent() != nullptr; }

// The free modes: the three buttons of each menu follow one another, in the order of the modes.

void show_free_mode(Slot menu, FreeMode mode) {
  const int button = menu + 1 + static_cast<int>(mode);
  const ShowingField showing(at(menu));
  XtVaSetValues(at(menu), XmNmenuHistory, widgetedit_dialog[button], nullptr);
}

FreeMode shown_free_mode(Slot menu) {
  Widget button = nullptr;
  XtVaGetValues(at(menu), XmNmenuHistory, &button, nullptr);
  XtPointer mode = nullptr;
  XtVaGetValues(button, XmNuserData, &mode, nullptr);
  return static_cast<FreeMode>(reinterpret_cast<XtArgVal>(mode));
}

// The access: none given means all of them.

void show_access(int access) {
  for (const auto& [toggle, bit] : access_toggles) settoggle(at(toggle), access & bit);
}

int shown_access() {
  int access = 0;
  for (const auto& [toggle, bit] : access_toggles) access |= gettoggle(at(toggle)) ? bit : 0;
  return access == 0 ? ACCESS_NOT_GIVEN : access;
}

void show_resource_texts(const ResourceDef& resource) {
  settextf(at(COUNTER), resource.counter);
  settextf(at(POPUP), resource.popup);
  settextf(at(PAGE), resource.page);
}

void show_free_modes(const ResourceDef& resource) {
  show_free_mode(FREE_GET, resource.free_get);
  show_free_mode(FREE_SET, resource.free_set);
}

void show_resource_toggles(const ResourceDef& resource) {
  settoggle(at(VISIBLE), resource.visible);
  show_access(resource.access);
}

/// What another widget, or none, begins with. The toggles keep what they show.
void clear_resource() {
  settextf(at(RESOURCE), nullptr);
  show_resource_texts({});
  show_free_modes({});
}

void show_resource(Name name) {
  settextf(at(RESOURCE), name);
  const ResourceDef* known = resource_ptr(current_widget(), name);
  const ResourceDef& resource = known ? *known : ResourceDef{};
  show_resource_texts(resource);
  show_free_modes(resource);
  show_resource_toggles(resource);
  mark_text(at(RESOURCE));
  resource_changed = false;
}

void store_resource(ResourceDef& resource) {
  gettextf(at(COUNTER), &resource.counter);
  gettextf(at(POPUP), &resource.popup);
  gettextf(at(PAGE), &resource.page);
  if (resource.page) page_into_family(resource.page);
  gettoggle(at(VISIBLE), &resource.visible);
  resource.free_get = shown_free_mode(FREE_GET);
  resource.free_set = shown_free_mode(FREE_SET);
  resource.access = shown_access();
}

/// Adds the resource that the fields name, or rewrites it.
void update_resource(WidgetDef& widget) {
  const std::string name = gettextf(at(RESOURCE));
  if (name.empty()) return say("no_name");
  const std::string part = part_name(Part::resource, Name(name));
  say_unless_changed("nothing_changed", {part.c_str()});
  dirty = true;
  if (!resource_ptr(&widget, name)) {
    if (with_memory(we_resource_add(name, &widget)) != 0) return say("not_added", {part.c_str()});
    list_insert(at(RESOURCE_LIST), name, resource_index(&widget, name) + 1);
  }
  store_resource(*resource_ptr(&widget, name));
  note_applied(at(RESOURCE));
  resource_changed = false;
}

void ask_about_resource(Pending action) {
  if (!ensure_dialog(resource_warn_dialog, create_resource_warn_dialog)) return;
  pending = action;
  show_dialog(resource_warn_dialog[WARN_BOX], Place::over);
}

void select_resource(Name name) {
  if (resource_changed) {
    pending_resource = name.view();
    ask_about_resource(Pending::show_resource);
  } else {
    show_resource(name);
    hint_after_action(at(FORM),
                      filled(text_or_name("hint_accept_delete"),
                             {label_text(at(RESOURCE_UPDATE)).c_str(), label_text(at(RESOURCE_DELETE)).c_str(),
                              part_name(Part::resource, Name(name)).c_str()}));
  }
}

/// Lets the fields be completed that name something.
void complete_fields(Widget* record) {
  for (const auto& [slot, member] : text_fields) {
    for (const Field<WidgetDef>& field : widget_fields) {
      if (field.text() && *field.text() == member && named_by(field.kind)) complete_value(record[slot], field.kind);
    }
  }
  complete_value(record[POPUP], ValueKind::popup);
  complete_page(record[PAGE]);
}

/// Goes to a resource of the list, as a click on it does.
void go_to_resource(const std::string& name) {
  if (widgetedit_choose_resource(name)) XmProcessTraversal(at(RESOURCE), XmTRAVERSE_CURRENT);
}

std::vector<std::string> resource_names(const WidgetDef& widget) {
  std::vector<std::string> names;
  for (const ResourceDef& resource : widget.resource_definitions) names.emplace_back(resource.name.view());
  return names;
}

void show_widget(const WidgetDef* widget) {
  vq_set_title(at(SHELL), "widget_title", widget ? widget->name : Text());
  const WidgetDef new_widget;
  const WidgetDef& shown = widget ? *widget : new_widget;
  for (const auto& [field, text] : text_fields) settextf(at(field), shown.*text);
  for (const auto& [toggle, flag] : toggles) settoggle(at(toggle), shown.*flag);
  list_show(at(RESOURCE_LIST), resource_names(shown));
  clear_resource();
  for (Slot button : {APPLY, UNDO, RESOURCE_UPDATE, RESOURCE_DELETE}) {
    XtSetSensitive(at(button), widget ? True : False);
  }
  resource_changed = false;
}

}  // namespace

Widget* create_widgetedit_dialog(Widget parent) {
  Widget* record = build_dialog(parent, {part(frame_rows), status_line("widgetedit_form"), part(rows, links)}, SLOTS);
  if (!record) return nullptr;
  for (const auto& [button, mode] : free_mode_buttons) {
    XtVaSetValues(record[button], XmNuserData, static_cast<XtArgVal>(mode), nullptr);
  }
  complete_fields(record);
  search_in(
      record[RESOURCE_SEARCH], [] { return list_names(at(RESOURCE_LIST)); }, go_to_resource);
  watch_fields({record[WIDGET_FORM]}, record[NOT_APPLIED]);
  watch_fields({record[RESOURCE_FIELDS]}, record[NOT_UPDATED]);
  return record;
}

Widget* create_resource_warn_dialog(Widget parent) { return build_dialog(parent, warn_rows, WARN_SLOTS, warn_links); }

void widgetedit_show() {
  if (!widgetedit_dialog) {
    if (!ensure_dialog(widgetedit_dialog, create_widgetedit_dialog)) return;
    widgetedit_setwidget(widgetlist_getcurrent());
    show_resource_toggles({});
  }
  show_dialog(at(FORM));
  resource_changed = false;
}

void widgetedit_turn_to() {
  const bool is_up = widgetedit_dialog && XtIsManaged(at(FORM));
  is_up ? show_dialog(at(FORM)) : widgetedit_show();
}

void widgetedit_do_hide(Widget, XtPointer, XtPointer) {
  if (resource_changed) {
    ask_about_resource(Pending::close);
  } else {
    hide_dialog(at(FORM));
  }
}

void widgetedit_setwidget(const Reference<WidgetDef>* element) {
  if (widgetedit_dialog) show_widget(element ? element->record : nullptr);
}

void widget_do_update(Widget w, XtPointer, XtPointer) {
  WidgetDef* widget = current_widget();
  if (!widget) return;
  const BusyCursor busy(w);
  say_unless_changed("nothing_changed", {part_name(Part::widget, widget->name).c_str()});
  dirty = true;
  for (const auto& [field, text] : text_fields) gettextf(at(field), &(widget->*text));
  for (const auto& [toggle, flag] : toggles) gettoggle(at(toggle), &(widget->*flag));
  note_applied(at(REALISE));
}

void widget_do_undo(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  widgetedit_setwidget(widgetlist_getcurrent());
  if (const WidgetDef* widget = current_widget()) {
    say("fields_shown_again", {part_name(Part::widget, widget->name).c_str()});
  }
}

Widget widgetedit_field(Kw word) {
  const auto field = std::ranges::find(widget_fields, word, &Field<WidgetDef>::word);
  if (field == std::end(widget_fields)) return nullptr;
  const auto* text = field->text();
  const std::optional<Slot> slot =
      text ? slot_of(text_fields, *text) : slot_of(toggles, std::get<bool WidgetDef::*>(field->member));
  return slot ? at(*slot) : nullptr;
}

Widget resource_field(Kw word) { return field_of_word(widgetedit_dialog, resource_fields, word); }

bool widgetedit_choose_resource(Name name) {
  if (!resource_ptr(current_widget(), name)) return false;
  if (gettextf(at(RESOURCE)) == name.view() && list_selected(at(RESOURCE_LIST)) == name.view()) return true;
  list_select(at(RESOURCE_LIST), name);
  select_resource(name);
  return true;
}

void we_select_cb(Widget w, XtPointer, XtPointer call) {
  const BusyCursor busy(w);
  select_resource(clicked_name(w, *static_cast<XmListCallbackStruct*>(call)));
}

void we_popup_update_cb(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (WidgetDef* widget = current_widget()) update_resource(*widget);
}

void we_popup_delete_cb(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  WidgetDef* widget = current_widget();
  const std::string name = gettextf(at(RESOURCE));
  if (!resource_ptr(widget, name)) return say("not_in_list", {part_name(Part::resource, Name(name)).c_str()});
  list_delete(at(RESOURCE_LIST), name);
  we_resource_delete(widget, name);
  clear_resource();
  settoggle(at(VISIBLE), true);
  resource_changed = false;
}

void we_popup_cb(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  popupdlg_set_initial_state(at(POPUP), XtParent(at(SHELL)), has_current_widget);
}

void we_page_cb(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  pagedlg_set_initial_state(at(PAGE), XtParent(at(SHELL)), has_current_widget);
}

void resource_dirty_cb(Widget, XtPointer, XtPointer) { resource_changed = true; }

void resource_apply(Widget w, XtPointer, XtPointer) {
  we_popup_update_cb(w, nullptr, nullptr);
  resource_ignore(w, nullptr, nullptr);
}

void resource_ignore(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  hide_dialog(resource_warn_dialog[WARN_BOX]);
  resource_changed = false;
  switch (pending) {
    case Pending::none:
      break;
    case Pending::close:
      return widgetedit_do_hide(w, nullptr, nullptr);
    case Pending::show_resource:
      return show_resource(pending_resource);
  }
}

}  // namespace vqc::editors
