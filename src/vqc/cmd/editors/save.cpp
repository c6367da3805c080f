#include "vqc/cmd/editors/save.h"

#include "libkel/message.h"
#include "vqc/cmd/editors/dialogs/family_dialog.h"
#include "vqc/cmd/editors/dialogs/save_dialog.h"
#include "vqc/cmd/editors/dialogs/savechanges_dialog.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/file_box.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/save.h"

namespace {

void show_save_dialog(const char* title) {
  if (!made(save_dialog, create_save_dialog, family_dialog[FAMILY_SHELL])) return;
  Widget box = save_dialog[SAVE_FSB];
  title_file_box(box, title);
  show_file_box(box, save_file, name_in_box(box, save_file));
}

/// The question's text for each operation, for a document with a name and one without.
struct Question {
  SaveOp operation;
  const char* named;
  const char* unnamed;
};
constexpr Question questions[] = {
    {SaveOp::open, "sbf_open", "sbu_open"},
    {SaveOp::start_new, "sbf_new", "sbu_new"},
    {SaveOp::exit, "sbf_exit", "sbu_exit"},
};

std::string question_text(SaveOp operation) {
  for (const Question& question : questions) {
    if (question.operation != operation) continue;
    return filled(text_or_name(save_file ? question.named : question.unnamed), {save_file});
  }
  return {};
}

}  // namespace

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
    write_save_file(save_file);
  } else {
    show_save_dialog("save_title");
  }
}

void close_save_dialog() {
  if (save_dialog) hide_dialog(save_dialog[SAVE_FSB]);
}

void do_save(Widget w, XtPointer, XtPointer call) {
  const BusyCursor busy(w);
  save_file = chosen_path(w, call);
  close_save_dialog();
  write_save_file(save_file);
}

void save_do_hide(Widget, XtPointer, XtPointer) {
  save_op = SaveOp::none;
  close_save_dialog();
}

void savechanges_popup(SaveOp operation) {
  save_op = operation;
  if (!made(savechanges_dialog, create_savechanges_dialog, family_dialog[FAMILY_SHELL])) return;
  const std::string question = question_text(operation);
  XtVaSetValues(savechanges_dialog[SAVECHANGES_BOX], XmNmessageString, CompoundString::of_lines(question.c_str()).get(),
                nullptr);
  show_dialog(savechanges_dialog[SAVECHANGES_BOX], Place::over);
}

void savechanges_dosave(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  hide_dialog(savechanges_dialog[SAVECHANGES_BOX]);
  really_save_popup();
}

void savechanges_dodiscard(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  hide_dialog(savechanges_dialog[SAVECHANGES_BOX]);
  dirty = false;
  run_save_op();
}

void savechanges_docancel(Widget, XtPointer, XtPointer) {
  save_op = SaveOp::none;
  hide_dialog(savechanges_dialog[SAVECHANGES_BOX]);
}
