// The dialog behind the three Generate commands.

#include "vqc/cmd/editors/gendlg.h"

#include <X11/IntrinsicP.h>
#include <Xm/CascadeB.h>
#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/ScrolledW.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include <algorithm>
#include <string>
#include <vector>

#include "libkel/leafnm.h"
#include "libkel/source.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/diff_text.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/file_box.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/given_options.h"
#include "vqc/cmd/editors/kit/search_field.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/safety_net.h"

namespace vqc::editors {

namespace {

enum Slot { SHELL, FSB, MENU_BAR, TOGGLES, SEARCH_ROW, SEARCH, SLOTS };

// clang-format off
const WidgetRow rows[] = {
    {"gen_dialog",           XmCreateDialogShell,    nullptr,        on_close(gen_do_hide), SHELL},
    {"gen_fsb",              create_modal_file_box,  "gen_dialog",   on_answer(gen_do_generate, gen_do_hide, "vqc_gen"), FSB},
    {"gen_families",         XmCreateScrolledWindow, "gen_fsb"},
    {"gen_toggles",          XmCreateRowColumn,      "gen_families", {}, TOGGLES},
    {"gen_menubar",          XmCreateMenuBar,        "gen_fsb",      {}, MENU_BAR},
    {"gen_families_menu",    XmCreatePulldownMenu,   "gen_menubar"},
    {"gen_all_b",            XmCreatePushButton,     "gen_families_menu", on_press(gen_do_all)},
    {"gen_none_b",           XmCreatePushButton,     "gen_families_menu", on_press(gen_do_none)},
    {"gen_families_cascade", XmCreateCascadeButton,  "gen_menubar"},
    {"search_row",           create_form,            "gen_fsb",      {}, SEARCH_ROW},
    {"gen_search",           XmCreateTextField,      "search_row",   {}, SEARCH},
    {"gen_search_l",         XmCreateLabel,          "search_row"},
};

const WidgetLink links[] = {{"gen_families_cascade", XmNsubMenuId, "gen_families_menu"}};
// clang-format on

FileKind pending_kind = CONFIG_FILE;
std::vector<Widget> family_toggles;

Widget family_toggle(Widget parent, const Family& family) {
  const CompoundString label(std::string(family.name.view()).c_str());
  return XtVaCreateWidget("toggleb", xmToggleButtonWidgetClass, parent, XmNlabelString, static_cast<XmString>(label),
                          XmNset, family.generate_selected ? XmSET : XmUNSET, nullptr);
}

void rebuild_toggles(Widget container) {
  XtUnmanageChild(container);
  for (Widget toggle : family_toggles) XtDestroyWidget(toggle);
  family_toggles.clear();
  for (const Family& family : edited_document.families) family_toggles.push_back(family_toggle(container, family));
  XtManageChildren(family_toggles.data(), static_cast<Cardinal>(family_toggles.size()));
  XtManageChild(container);
}

void set_toggles(bool on) {
  for (Widget toggle : family_toggles) settoggle(toggle, on);
}

/// Shows the toggle of a family, and gives it the keyboard.
void go_to_family(const std::string& name) {
  const int place = edited_document.families.position(Name(name));
  if (place == 0) return;
  Widget toggle = family_toggles[static_cast<std::size_t>(place) - 1];
  XmScrollVisible(XtNameToWidget(gen_dialog[FSB], "gen_families"), toggle, 0, 0);
  XmProcessTraversal(toggle, XmTRAVERSE_CURRENT);
}

/// A file box lays out one thing beside what is its own, which is the families. The field stands on its menu bar.
void place_search_row(Widget box, XtPointer record, XEvent*, Boolean*) {
  const auto* widgets = static_cast<const Widget*>(record);
  constexpr int kEdge = 4;
  Dimension width = 0;
  Dimension height = 0;
  XtVaGetValues(box, XmNwidth, &width, nullptr);
  XtVaGetValues(widgets[MENU_BAR], XmNheight, &height, nullptr);
  const int left = width / 3;
  Widget row = widgets[SEARCH_ROW];
  XtConfigureWidget(row, static_cast<Position>(left), kEdge, static_cast<Dimension>(width - left - kEdge),
                    static_cast<Dimension>(std::max(height - 2 * kEdge, 1)), 0);
  if (XtIsRealized(row)) XRaiseWindow(XtDisplay(row), XtWindow(row));
}

/// What the box offers where no file of the kind has been generated: the name that a run without a user would take.
std::string derived_name(Widget box, FileKind kind) {
  if (!save_file || save_file->empty()) return {};
  return name_in_box(box, batch_file_name(*save_file, kind));
}

/// Takes over what the toggles say: families are generated that are chosen.
Families chosen_families() {
  Families chosen;
  std::size_t place = 0;
  for (Family& family : edited_document.families) {
    family.generate_selected = place < family_toggles.size() && gettoggle(family_toggles[place]);
    if (family.generate_selected) chosen.push_back(&family);
    ++place;
  }
  return chosen;
}

void gen_popup(Widget w, FileKind kind, const char* title) {
  const BusyCursor busy(w);
  if (!ensure_dialog(gen_dialog, create_gen_dialog)) return;
  pending_kind = kind;
  Widget box = gen_dialog[FSB];
  title_file_box(box, title);
  XtVaSetValues(box, XmNpattern, static_cast<XmString>(CompoundString("*.c")), nullptr);
  rebuild_toggles(gen_dialog[TOGGLES]);
  const Text name = generated_name(edited_document, kind);
  const std::string offered = name ? std::string(name.view()) : derived_name(box, kind);
  show_file_box(box, save_file_path(), offered);
}

/// Comparing takes its time: of larger files only the lines are counted.
constexpr std::size_t kMostCompared = 1'000'000;

void say_what_was_written(const std::string& path, const Source* before) {
  const auto after = Source::read_regular(path.c_str());
  if (!after) return;
  const char* name = leafnm(path.c_str());
  const auto lines = static_cast<int>(std::ranges::count(after->text(), '\n'));
  if (!before || before->text().size() + after->text().size() > kMostCompared) return say("wrote", {name, lines});
  say("wrote_changed", {name, lines, changed_count(changed_lines(before->text(), after->text()))});
}

}  // namespace

Widget* create_gen_dialog(Widget parent) {
  Widget* record = build_dialog(parent, rows, SLOTS, links);
  if (!record) return nullptr;
  XtAddEventHandler(record[FSB], StructureNotifyMask, False, place_search_row, record);
  search_in(record[SEARCH], names_in_pool<family_pool>, go_to_family);
  return record;
}

void gen_do_all(Widget, XtPointer, XtPointer) { set_toggles(true); }

void gen_do_none(Widget, XtPointer, XtPointer) { set_toggles(false); }

Switches chosen_switches() { return {.comment = vqc_comment_code(), .verbose = vqc_verbose_code()}; }

void gencon_do_popup(Widget w, XtPointer, XtPointer) { gen_popup(w, CONFIG_FILE, "generate_config_title"); }

void gencode_do_popup(Widget w, XtPointer, XtPointer) { gen_popup(w, CODE_FILE, "generate_code_title"); }

void genstubs_do_popup(Widget w, XtPointer, XtPointer) { gen_popup(w, STUBS_FILE, "generate_stubs_title"); }

void gen_do_generate(Widget w, XtPointer, XtPointer call) {
  const BusyCursor busy(w);
  const std::string path = chosen_path(w, call);
  hide_dialog(gen_dialog[FSB]);  // first: a message could not be answered behind a modal dialog
  keep_before(path, Reason::before_generation);
  const auto before = Source::read_regular(path.c_str());
  if (!generate_file(edited_document, path.c_str(), chosen_families(), pending_kind, chosen_switches())) return;
  say_what_was_written(path, before.get());
}

void gen_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(gen_dialog[FSB]); }

}  // namespace vqc::editors
