// Shows resources as rows, those only that are looked for, and changes what is selected of them.

#include "vqc/cmd/editors/resource_window.h"

#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/Separator.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "libkel/message.h"
#include "vqc/cmd/editors/completion.h"
#include "vqc/cmd/editors/difference_words.h"
#include "vqc/cmd/editors/familylist.h"
#include "vqc/cmd/editors/kit/clipboard.h"
#include "vqc/cmd/editors/kit/columns.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/keys.h"
#include "vqc/cmd/editors/kit/long_list.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/kit/widgets.h"
#include "vqc/cmd/editors/session_history.h"
#include "vqc/cmd/editors/show_spot.h"
#include "vqc/cmd/table/tab_separated.h"

namespace vqc::editors {

namespace {

enum Slot {
  SHELL,
  FORM,
  FAMILY,
  FILTER,
  FILTER_COLUMN,
  SORT_COLUMN,
  DESCENDING,
  FOUND,
  LIST,
  VALUE_COLUMN,
  VALUE,
  TARGETS,
  SLOTS
};

Widget create_column_menu(Widget parent, char* name, ArgList, Cardinal);
Widget create_value_menu(Widget parent, char* name, ArgList, Cardinal);

// clang-format off
const WidgetRow frame_rows[] = {
    {"resources_dialog",      XmCreateDialogShell,  nullptr,            {}, SHELL},
    {"resources_form",        create_form,          "resources_dialog", on_help("vqc_resources"), FORM},
};

const WidgetRow rows[] = {
    {"resources_gob",         XmCreatePushButton,   "resources_form",   on_press(resources_do_go)},
    {"resources_allb",        XmCreatePushButton,   "resources_form",   on_press(resources_do_select_all)},
    {"resources_copyb",       XmCreatePushButton,   "resources_form",   on_press(resources_do_copy)},
    {"resources_pasteb",      XmCreatePushButton,   "resources_form",   on_press(resources_do_paste)},
    {"resources_closeb",      XmCreatePushButton,   "resources_form",   on_press(resources_do_hide)},
    {"resources_helpb",       XmCreatePushButton,   "resources_form",   on_press(vqc_do_help, "vqc_resources")},
    {"resources_separator",   XmCreateSeparator,    "resources_form"},

    {"resources_copytob",     XmCreatePushButton,   "resources_form",   on_press(resources_do_copy_to)},
    {"resources_targets_l",   XmCreateLabel,        "resources_form"},
    {"resources_targets",     XmCreateTextField,    "resources_form",   on_press(resources_do_copy_to), TARGETS},
    {"resources_setb",        XmCreatePushButton,   "resources_form",   on_press(resources_do_set)},
    {"resources_value_menu",  create_value_menu,    "resources_form",   on_entry(resources_do_choose_column)},
    {"resources_value_opt",   XmCreateOptionMenu,   "resources_form",   {}, VALUE_COLUMN},
    {"resources_value",       XmCreateTextField,    "resources_form",   on_press(resources_do_set), VALUE},

    {"resources_filter_menu", create_column_menu,   "resources_form",   on_entry(resources_do_limit)},
    {"resources_filter_opt",  XmCreateOptionMenu,   "resources_form",   {}, FILTER_COLUMN},
    {"resources_filter",      XmCreateTextField,    "resources_form",   on_change(resources_do_limit), FILTER},
    {"resources_family_l",    XmCreateLabel,        "resources_form"},
    {"resources_family",      XmCreateTextField,    "resources_form",   on_change(resources_do_limit), FAMILY},
    {"resources_sort_menu",   create_column_menu,   "resources_form",   on_entry(resources_do_sort)},
    {"resources_sort_opt",    XmCreateOptionMenu,   "resources_form",   {}, SORT_COLUMN},
    {"resources_descending",  XmCreateToggleButton, "resources_form",   on_change(resources_do_sort), DESCENDING},
    {"resources_found",       XmCreateLabel,        "resources_form",   {}, FOUND},
    {"resources_list",        create_long_list,     "resources_form",   {{{XmNdefaultActionCallback, resources_do_go}}}, LIST},
};

const WidgetLink links[] = {
    {"resources_filter_opt", XmNsubMenuId,    "resources_filter_menu"},
    {"resources_sort_opt",   XmNsubMenuId,    "resources_sort_menu"},
    {"resources_value_opt",  XmNsubMenuId,    "resources_value_menu"},
    {"resources_form",       XmNcancelButton, "resources_closeb"},
    {"resources_form",       XmNinitialFocus, "resources_family"},
};
// clang-format on

/// The message for each column.
constexpr std::array<const char*, all_columns.size()> column_messages = {
    "column_widget",  "column_name",     "column_page",     "column_popup", "column_counter",
    "column_visible", "column_free_get", "column_free_set", "column_access"};

const char* title_of(Column column) { return text_or_name(column_messages[static_cast<std::size_t>(column)]); }

/// What the window shows, and the state of the document that has it.
struct Shown {
  ResourceRows rows;
  std::size_t all = 0;  // of which these are those that are looked for
  std::array<std::size_t, all_columns.size()> widths = {};
  std::shared_ptr<const State> state;
  bool is_outdated = false;  // also when the document is in that state again, for its records may be others
};
Shown shown;

bool waits_for_idleness = false;

Widget at(Slot slot) { return resources_dialog[slot]; }

// The menus of columns: each button has its column as its data.

Widget create_menu(Widget parent, char* name, bool (*has)(Column column)) {
  Widget menu = XmCreatePulldownMenu(parent, name, nullptr, 0);
  for (const Column column : all_columns) {
    if (!has(column)) continue;
    const CompoundString title(title_of(column));
    const std::string button = std::string(name) + "_" + std::string(column_word(column));
    XtVaCreateManagedWidget(button.c_str(), xmPushButtonWidgetClass, menu, XmNlabelString, title.get(), XmNuserData,
                            &all_columns[static_cast<std::size_t>(column)], nullptr);
  }
  return menu;
}

Widget create_column_menu(Widget parent, char* name, ArgList, Cardinal) {
  return create_menu(parent, name, [](Column) { return true; });
}

Widget create_value_menu(Widget parent, char* name, ArgList, Cardinal) {
  return create_menu(parent, name, is_settable);
}

Column chosen_column(Slot option_menu) {
  Widget button = nullptr;
  XtVaGetValues(at(option_menu), XmNmenuHistory, &button, nullptr);
  XtPointer column = nullptr;
  XtVaGetValues(button, XmNuserData, &column, nullptr);
  return *static_cast<const Column*>(column);
}

// The rows. They are good for one state of the document only.

/// Nobody reads on where a name is longer than that.
constexpr std::size_t kWidest = 40;

std::string cut(std::string text) {
  if (text.size() > kWidest) text = displayable(text.substr(0, kWidest - 3)) + "...";
  return text;
}

/// The bytes of a text are as many as the columns it takes, or more.
void measure(Shown& table) {
  for (const Column column : all_columns) {
    std::size_t widest = columns_of(title_of(column));
    for (const ResourceRow& row : table.rows) widest = std::max(widest, cell(row, column).size());
    table.widths[static_cast<std::size_t>(column)] = std::min(widest, kWidest);
  }
}

template <class Say>
std::string line_of(Say say) {
  std::string line;
  for (const Column column : all_columns) {
    line +=
        to_the_left(cut(displayable(std::string(say(column)))), shown.widths[static_cast<std::size_t>(column)]) + "  ";
  }
  return line;
}

bool is_up_to_date() { return !shown.is_outdated && shown.state == document_state(); }

/// Nothing for the moment in which the document is another already.
std::string line_of_row(std::size_t row) {
  if (!is_up_to_date()) return {};
  return line_of([row](Column column) { return cell(shown.rows[row], column); });
}

/// Of the family that is named, or of all; none where there is no such family.
ResourceRows all_rows() {
  const std::string name = gettextf(at(FAMILY));
  if (name.empty()) return resource_rows(edited_document);
  const Family* family = edited_document.families.find(Name(name));
  return family ? resource_rows(*family) : ResourceRows();
}

Shown look() {
  Shown found;
  found.rows = all_rows();
  found.all = found.rows.size();
  const std::string filter = gettextf(at(FILTER));
  if (!filter.empty()) found.rows = matching_rows(found.rows, chosen_column(FILTER_COLUMN), filter);
  sort_rows(found.rows, chosen_column(SORT_COLUMN), gettoggle(at(DESCENDING)));
  measure(found);
  found.state = document_state();
  return found;
}

/// "120 of 400000 resources"
std::string words_of(const Shown& table) {
  const std::string family = gettextf(at(FAMILY));
  if (!family.empty() && !edited_document.families.find(Name(family))) {
    return filled(text_or_name("resources_no_family"), {family.c_str()});
  }
  const auto number = static_cast<int>(table.rows.size());
  return filled(text_or_name("resources_shown"), {number, static_cast<int>(table.all)});
}

void show_table() {
  XtVaSetValues(at(FOUND), XmNlabelString, CompoundString(displayable(words_of(shown)).c_str()).get(), nullptr);
  show_rows(at(LIST), {line_of(title_of), shown.rows.size(), line_of_row});
  recount();
}

/// The widget and the resource of a row, by which it is found again in another state of the document. The texts are
/// those of the state that is shown.
using RowName = std::pair<Text, Text>;

RowName name_of_row(const ResourceRow& row) { return {row.widget->name, row.resource->name}; }

std::vector<RowName> names_selected;

/// The resources that have these names now.
std::vector<const ResourceDef*> resources_of(const std::vector<RowName>& names) {
  std::vector<const ResourceDef*> resources;
  for (const auto& [widget_name, name] : names) {
    const WidgetDef* widget = edited_document.widgets.find(widget_name);
    const ResourceDef* resource = widget ? widget->resource_definitions.find(name) : nullptr;
    if (resource) resources.push_back(resource);
  }
  std::ranges::sort(resources);
  return resources;
}

void select_by_name(const std::vector<RowName>& names) {
  const std::vector<const ResourceDef*> resources = resources_of(names);
  std::vector<std::size_t> selected;
  for (std::size_t row = 0; row < shown.rows.size(); ++row) {
    if (std::ranges::binary_search(resources, shown.rows[row].resource)) selected.push_back(row);
  }
  select_rows(at(LIST), selected);
}

ResourceRows selected_resources() {
  ResourceRows selected;
  for (const std::size_t row : selected_rows(at(LIST))) selected.push_back(shown.rows[row]);
  return selected;
}

void note_selection() {
  names_selected.clear();
  for (const ResourceRow& row : selected_resources()) names_selected.push_back(name_of_row(row));
}

void show_again() {
  const auto before = std::exchange(shown, look());
  show_table();
  select_by_name(names_selected);
  note_selection();
}

/// Before rows are used.
void bring_up_to_date() {
  if (!is_up_to_date()) show_again();
}

void refresh_when_idle(XtPointer, XtIntervalId*) {
  waits_for_idleness = false;
  if (resources_dialog && XtIsManaged(at(FORM))) guarded(bring_up_to_date);
}

/// Says how many rows a button would act on.
void rows_selected() {
  bring_up_to_date();
  note_selection();
  hint(at(FORM), filled(text_or_name("resources_selected"), {static_cast<int>(names_selected.size())}));
}

// What is done with rows.

/// Shows everywhere what has been changed, which is one step for undoing it.
void show_changes(const Changes& changes, std::string step) {
  const DifferenceCount counts[] = {{Verb::added, Part::resource, static_cast<int>(changes.added)},
                                    {Verb::changed, Part::resource, static_cast<int>(changes.changed)}};
  std::vector<DifferenceCount> made(std::begin(counts), std::end(counts));
  std::erase_if(made, [](const DifferenceCount& count) { return count.number == 0; });
  if (made.empty()) return say("resources_same");
  show_changed();
  name_step(std::move(step));
  say_text(in_numbers(made));
}

const char* message_of(TextError error) {
  static constexpr const char* messages[] = {"paste_unknown_column",  "paste_doubled_column", "paste_missing_column",
                                             "paste_number_of_cells", "paste_unclosed_quote", "paste_unknown_widget",
                                             "paste_no_name",         "paste_no_value"};
  return messages[static_cast<std::size_t>(error)];
}

/// The first thing that is wrong, and how many more there are.
void say_refused(const std::vector<TextProblem>& problems) {
  const auto& [error, line, subject] = problems.front();
  const std::string words = filled(text_or_name(message_of(error)), {static_cast<int>(line), subject.c_str()});
  const auto more = static_cast<int>(problems.size()) - 1;
  if (more == 0) return say("paste_refused", {words.c_str()});
  say("paste_refused_more", {words.c_str(), more});
}

void take_pasted(const std::string& text) {
  if (text.empty()) return say("paste_nothing");
  const Pasted pasted = paste_text(edited_document, text);
  if (!pasted.problems.empty()) return say_refused(pasted.problems);
  show_changes(pasted, text_or_name("step_pasted"));
}

void answer_letter(char letter) {
  if (letter == 'a') resources_do_select_all(at(LIST), nullptr, nullptr);
  if (letter == 'c') resources_do_copy(at(LIST), nullptr, nullptr);
  if (letter == 'v') resources_do_paste(at(LIST), nullptr, nullptr);
}

std::vector<std::string> names_of_widgets() {
  std::vector<std::string> names;
  for (const WidgetDef& widget : edited_document.widgets) names.emplace_back(widget.name.view());
  return names;
}

/// What the chosen column can be set to, as far as that is known.
std::vector<std::string> values_to_set() {
  const Column column = chosen_column(VALUE_COLUMN);
  if (column == Column::page) return page_completions(edited_document);
  if (column == Column::popup) return completions(edited_document, ValueKind::popup);
  return known_values(column);
}

void set_up(Widget* record) {
  complete_from(record[FAMILY], names_in_pool<family_pool>);
  complete_from(record[VALUE], values_to_set);
  complete_words_from(record[TARGETS], names_of_widgets);
  when_rows_selected(record[LIST], rows_selected);
  answer_letters(record[LIST], answer_letter);
}

}  // namespace

Widget* create_resources_dialog(Widget parent) {
  Widget* record = build_dialog(parent, {part(frame_rows), status_line("resources_form"), part(rows, links)}, SLOTS);
  if (record) set_up(record);
  return record;
}

void resources_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (!ensure_dialog(resources_dialog, create_resources_dialog)) return;
  const Family* family = window_around(w) == main_shell() ? nullptr : family_getcurrent();
  settextf(at(FAMILY), family ? Name(family->name) : Name(nullptr));
  settextf(at(FILTER), nullptr);
  show_again();
  show_dialog(at(FORM));
}

std::optional<Spot> selected_resource() {
  bring_up_to_date();
  const ResourceRows selected = selected_resources();
  if (selected.empty()) return std::nullopt;
  const auto& [widget, resource] = selected.front();
  return Spot{Part::resource, string_of(resource->name), string_of(widget->name)};
}

void refresh_resources() {
  constexpr unsigned long kMilliseconds = 10;
  if (shown.state != document_state()) shown.is_outdated = true;
  if (!resources_dialog || !XtIsManaged(at(FORM)) || waits_for_idleness || is_up_to_date()) return;
  waits_for_idleness = true;
  XtAppAddTimeOut(XtWidgetToApplicationContext(at(FORM)), kMilliseconds, refresh_when_idle, nullptr);
}

void resources_do_limit(Widget, XtPointer, XtPointer) {
  if (!resources_dialog || !XtIsManaged(at(FORM))) return;
  show_again();
}

void resources_do_sort(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  show_again();
}

void resources_do_choose_column(Widget, XtPointer, XtPointer) { settextf(at(VALUE), nullptr); }

void resources_do_set(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  bring_up_to_date();
  const ResourceRows selected = selected_resources();
  if (selected.empty()) return say("resources_unselected");
  const Column column = chosen_column(VALUE_COLUMN);
  const std::string value = gettextf(at(VALUE));
  if (!is_value(column, value)) return say("resources_no_value", {title_of(column), value.c_str()});
  const std::string step = filled(text_or_name("step_set"), {title_of(column), static_cast<int>(selected.size())});
  show_changes(set_cells(edited_document, selected, column, value), step);
}

void resources_do_copy_to(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  bring_up_to_date();
  const ResourceRows selected = selected_resources();
  if (selected.empty()) return say("resources_unselected");
  const NamedWidgets targets = widgets_named(edited_document, gettextf(at(TARGETS)));
  if (!targets.unknown.empty()) return say("resources_no_widget", {targets.unknown.c_str()});
  if (targets.widgets.empty()) return say("resources_no_target");
  const std::string step = filled(text_or_name("step_copied"), {static_cast<int>(selected.size())});
  show_changes(copy_rows(edited_document, selected, targets.widgets), step);
}

void resources_do_copy(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  bring_up_to_date();
  const ResourceRows selected = selected_resources();
  if (selected.empty()) return say("resources_unselected");
  if (!copy_text(at(LIST), as_text(selected))) return say("resources_not_copied");
  say("resources_on_clipboard", {static_cast<int>(selected.size())});
}

void resources_do_paste(Widget, XtPointer, XtPointer) { paste_text(at(LIST), take_pasted); }

void resources_do_select_all(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  bring_up_to_date();
  select_all_rows(at(LIST));
  rows_selected();
}

void resources_do_go(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  const std::optional<Spot> resource = selected_resource();
  if (!resource) return say("resources_unselected");
  show_spot(*resource);
}

void resources_do_hide(Widget, XtPointer, XtPointer) {
  hide_dialog(at(FORM));
  show_rows(at(LIST), {});
  names_selected.clear();
  shown = {};
}

}  // namespace vqc::editors
