// The commands of the File menu, which end in each other: what loses a document may have to save it first, and what has
// been saved goes on with what waited.

#include "vqc/cmd/editors/file_commands.h"

#include <X11/keysym.h>
#include <Xm/DialogS.h>
#include <Xm/PushB.h>

#include <string>
#include <utility>

#include "libkel/message.h"
#include "vqc/cmd/editors/document_files.h"
#include "vqc/cmd/editors/familylist.h"
#include "vqc/cmd/editors/goto.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/file_box.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/options.h"
#include "vqc/cmd/editors/pagelist.h"
#include "vqc/cmd/editors/popuplist.h"
#include "vqc/cmd/editors/problems.h"
#include "vqc/cmd/editors/rename.h"
#include "vqc/cmd/editors/resource_window.h"
#include "vqc/cmd/editors/safety_net.h"
#include "vqc/cmd/editors/session_history.h"
#include "vqc/cmd/editors/stop.h"
#include "vqc/cmd/editors/title.h"
#include "vqc/cmd/editors/uses.h"

namespace vqc::editors {

namespace {

/// Of each of the four dialogs.
enum Slot { SHELL, BOX, SLOTS };

// clang-format off
const WidgetRow open_rows[] = {
    {"open_dialog", XmCreateDialogShell, nullptr,       on_close(open_do_hide), SHELL},
    {"open_fsb",    create_file_box,     "open_dialog", on_answer(do_open, open_do_hide, "vqc_open"), BOX},
};

const WidgetRow read_rows[] = {
    {"read_dialog", XmCreateDialogShell, nullptr,       on_close(read_do_hide), SHELL},
    {"read_fsb",    create_file_box,     "read_dialog", on_answer(do_read, read_do_hide, "vqc_read"), BOX},
};

const WidgetRow save_rows[] = {
    {"save_dialog", XmCreateDialogShell, nullptr,       on_close(save_do_hide), SHELL},
    {"save_fsb",    create_file_box,     "save_dialog", on_answer(do_save, save_do_hide, "vqc_save"), BOX},
};

const WidgetRow savechanges_rows[] = {
    {"savechanges_dialog",     XmCreateDialogShell, nullptr,                  on_close(savechanges_docancel), SHELL},
    {"savechanges_messagebox", create_question_box, "savechanges_dialog",
     on_answer(savechanges_dosave, savechanges_docancel, "vqc_savechanges"), BOX},
    {"savechanges_nob",        XmCreatePushButton,  "savechanges_messagebox", on_press(savechanges_dodiscard)},
    {"OK",                     find_child,          "savechanges_messagebox"},
};

const WidgetLink savechanges_links[] = {
    {"savechanges_messagebox", XmNdefaultButton, "OK"},
    {"savechanges_messagebox", XmNinitialFocus,  "OK"},
};
// clang-format on

/// The question's text for each operation, for a document with a name and one without.
struct Question {
  SaveOp operation;
  const char* named;
  const char* unnamed;
};
constexpr Question questions[] = {
    {SaveOp::open, "sbf_open", "sbu_open"},
    {SaveOp::open_recent, "sbf_open", "sbu_open"},
    {SaveOp::start_new, "sbf_new", "sbu_new"},
    {SaveOp::exit, "sbf_exit", "sbu_exit"},
};

std::string question_text(SaveOp operation) {
  for (const Question& question : questions) {
    if (question.operation != operation) continue;
    return filled(text_or_name(save_file ? question.named : question.unnamed), {save_file_path()});
  }
  return {};
}

void show_save_dialog(const char* title) {
  if (!ensure_dialog(save_dialog, create_save_dialog)) return;
  title_file_box(save_dialog[BOX], title);
  show_file_box(save_dialog[BOX], save_file_path(), name_in_box(save_dialog[BOX], save_file.value_or("")));
}

void close_save_dialog() {
  if (save_dialog) hide_dialog(save_dialog[BOX]);
}

/// Shows what a load has added to the document. What is typed in the page and popup editors stays.
void show_additions() {
  show_stop_list();
  family_display();
  family_setcurrent(nullptr);
  refresh_names(page_picker);
  refresh_names(popup_picker);
}

void really_exit() {
  if (session_hooks.end) session_hooks.end(0);
}

/// Makes the document of a file the one that is edited.
void replace_document(const std::string& path) {
  keep_unsaved();
  save_file = path;
  load_document();
  show_document();
  options_dialog_load();
  if (session_hooks.opened) session_hooks.opened();
}

/// The document that is to be opened without being asked for.
std::string recent_path;

void really_open_recent() { replace_document(recent_path); }

/// Carries out the operation that waits.
void run_save_op() {
  if (save_op != SaveOp::none) close_save_dialog();  // saving from there would carry it out again
  switch (save_op) {
    case SaveOp::none:
      return;
    case SaveOp::open:
      return really_open_popup();
    case SaveOp::open_recent:
      return really_open_recent();
    case SaveOp::start_new:
      return really_do_new();
    case SaveOp::exit:
      return really_exit();
  }
}

/// Says which file the document has been read from or written to.
void file_in_use() {
  vqc_set_title(save_file_path());
  keep_recent(*save_file);
}

/// Saves the document to its file, and goes on with what waits for that.
void save_document() {
  if (!write_save_file(save_file_path())) return;
  note_saving();
  file_in_use();
  run_save_op();
  save_op = SaveOp::none;
}

/// Carries out an operation that loses the document, after the question if something has changed.
void unless_changed(Widget w, SaveOp operation, void (*carry_out)()) {
  const BusyCursor busy(w);
  if (dirty) {
    savechanges_popup(operation);
  } else {
    carry_out();
  }
}

}  // namespace

Widget* create_open_dialog(Widget parent) { return build_dialog(parent, open_rows, SLOTS); }
Widget* create_read_dialog(Widget parent) { return build_dialog(parent, read_rows, SLOTS); }
Widget* create_save_dialog(Widget parent) { return build_dialog(parent, save_rows, SLOTS); }
Widget* create_savechanges_dialog(Widget parent) {
  return build_dialog(parent, savechanges_rows, SLOTS, savechanges_links);
}

bool load_document() {
  const bool opened = parseit(save_file, 1) != 0;
  dirty = false;
  note_loading();
  if (opened) file_in_use();
  return opened;
}

std::span<const CommandKey> file_command_keys() {
  static constexpr CommandKey keys[] = {{'o', open_do_popup},
                                        {'s', save_do_popup},
                                        {'S', saveas_do_popup},
                                        {'q', do_exit},
                                        {'z', undo_do},
                                        {'Z', redo_do},
                                        {'y', redo_do},
                                        {'k', goto_do_popup},
                                        {'u', uses_do_popup},
                                        {'p', problems_do_popup},
                                        {'t', resources_do_popup},
                                        {XK_F2, rename_do_popup}};
  return keys;
}

void show_document() {
  show_additions();
  pagelist_display();
  popuplist_display();
}

LoadResult restore_kept(std::string_view text, Reason reason) {
  edited_document.clear();
  LoadResult result = load_kept(text, reason, edited_document);
  dirty = true;
  show_document();
  options_dialog_load();
  return result;
}

void do_new(Widget w, XtPointer, XtPointer) { unless_changed(w, SaveOp::start_new, really_do_new); }

void really_do_new() {
  keep_unsaved();
  edited_document.clear();
  options_dialog_reset();
  save_file = std::nullopt;
  dirty = false;
  note_loading();
  show_document();
  vqc_set_title(nullptr);
}

void do_exit(Widget w, XtPointer, XtPointer) { unless_changed(w, SaveOp::exit, really_exit); }

void open_do_popup(Widget w, XtPointer, XtPointer) { unless_changed(w, SaveOp::open, really_open_popup); }

void really_open_popup() {
  if (ensure_dialog(open_dialog, create_open_dialog)) show_file_box(open_dialog[BOX], save_file_path());
}

void do_open(Widget w, XtPointer, XtPointer call) {
  const BusyCursor busy(w);
  replace_document(chosen_path(w, call));
  hide_dialog(open_dialog[BOX]);
}

void open_document(Widget w, std::string path) {
  recent_path = std::move(path);
  unless_changed(w, SaveOp::open_recent, really_open_recent);
}

void open_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(open_dialog[BOX]); }

void read_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (ensure_dialog(read_dialog, create_read_dialog)) show_file_box(read_dialog[BOX], save_file_path());
}

void do_read(Widget w, XtPointer, XtPointer call) {
  const BusyCursor busy(w);
  std::optional<std::string> path = chosen_path(w, call);
  parseit(path, 0);
  hide_dialog(read_dialog[BOX]);
  show_additions();
}

void read_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(read_dialog[BOX]); }

void save_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  save_op = SaveOp::none;
  really_save_popup();
}

void saveas_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  save_op = SaveOp::none;
  show_save_dialog("save_as_title");
}

void really_save_popup() {
  if (save_file) {
    save_document();
  } else {
    show_save_dialog("save_title");
  }
}

void do_save(Widget w, XtPointer, XtPointer call) {
  const BusyCursor busy(w);
  save_file = chosen_path(w, call);
  close_save_dialog();
  save_document();
}

void save_do_hide(Widget, XtPointer, XtPointer) {
  save_op = SaveOp::none;
  close_save_dialog();
}

void savechanges_popup(SaveOp operation) {
  save_op = operation;
  if (!ensure_dialog(savechanges_dialog, create_savechanges_dialog)) return;
  const std::string question = question_text(operation);
  XtVaSetValues(savechanges_dialog[BOX], XmNmessageString, CompoundString::of_lines(question.c_str()).get(), nullptr);
  show_dialog(savechanges_dialog[BOX], Place::over);
}

void savechanges_dosave(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  hide_dialog(savechanges_dialog[BOX]);
  really_save_popup();
}

void savechanges_dodiscard(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  hide_dialog(savechanges_dialog[BOX]);
  dirty = false;
  run_save_op();
}

void savechanges_docancel(Widget, XtPointer, XtPointer) {
  save_op = SaveOp::none;
  hide_dialog(savechanges_dialog[BOX]);
}

}  // namespace vqc::editors
