// The dialog behind the three Generate commands.

#include "vqc/cmd/editors/gendlg.h"

#include <Xm/DialogS.h>
#include <Xm/RowColumn.h>
#include <Xm/ScrolledW.h>
#include <Xm/ToggleB.h>

#include <vector>

#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/file_box.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/given_options.h"
#include "vqc/cmd/editors/safety_net.h"

namespace vqc::editors {

namespace {

enum Slot { SHELL, FSB, TOGGLES, SLOTS };

// clang-format off
const WidgetRow rows[] = {
    {"gen_dialog",   XmCreateDialogShell,    nullptr,        on_close(gen_do_hide), SHELL},
    {"gen_fsb",      create_modal_file_box,  "gen_dialog",   on_answer(gen_do_generate, gen_do_hide, "vqc_gen"), FSB},
    {"gen_families", XmCreateScrolledWindow, "gen_fsb"},
    {"gen_toggles",  XmCreateRowColumn,      "gen_families", {}, TOGGLES},
};
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

}  // namespace

Widget* create_gen_dialog(Widget parent) { return build_dialog(parent, rows, SLOTS); }

void gencon_do_popup(Widget w, XtPointer, XtPointer) { gen_popup(w, CONFIG_FILE, "generate_config_title"); }

void gencode_do_popup(Widget w, XtPointer, XtPointer) { gen_popup(w, CODE_FILE, "generate_code_title"); }

void genstubs_do_popup(Widget w, XtPointer, XtPointer) { gen_popup(w, STUBS_FILE, "generate_stubs_title"); }

void gen_do_generate(Widget w, XtPointer, XtPointer call) {
  const BusyCursor busy(w);
  const std::string path = chosen_path(w, call);
  hide_dialog(gen_dialog[FSB]);  // first: a message could not be answered behind a modal dialog
  const Switches switches{.comment = vqc_comment_code(), .verbose = vqc_verbose_code()};
  keep_before(path, Reason::before_generation);
  generate_file(edited_document, path.c_str(), chosen_families(), pending_kind, switches);
}

void gen_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(gen_dialog[FSB]); }

}  // namespace vqc::editors
