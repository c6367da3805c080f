#include "vqc/cmd/editors/file_commands.h"

#include "vqc/cmd/editors/familydlg.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/open.h"
#include "vqc/cmd/editors/options.h"
#include "vqc/cmd/editors/pagelist.h"
#include "vqc/cmd/editors/popuplist.h"
#include "vqc/cmd/editors/save.h"
#include "vqc/cmd/editors/title.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/model/family.h"

namespace {

void really_exit() {
  if (session_hooks.end) session_hooks.end(0);
}

}  // namespace

void run_save_op() {
  if (save_op != SaveOp::none) close_save_dialog();  // saving from there would carry it out again
  switch (save_op) {
    case SaveOp::none:
      return;
    case SaveOp::open:
      return really_open_popup();
    case SaveOp::start_new:
      return really_do_new();
    case SaveOp::exit:
      return really_exit();
  }
}

void document_saved() {
  run_save_op();
  save_op = SaveOp::none;
}

void do_new(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (dirty) {
    savechanges_popup(SaveOp::start_new);
  } else {
    really_do_new();
  }
}

void really_do_new() {
  clear_document();
  options_dialog_reset();
  save_file = nullptr;
  dirty = false;
  show_document();
  vqc_set_title(nullptr);
}

void do_exit(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (dirty) {
    savechanges_popup(SaveOp::exit);
  } else {
    really_exit();
  }
}

std::span<const CommandKey> file_command_keys() {
  static constexpr CommandKey keys[] = {
      {'o', open_do_popup}, {'s', save_do_popup}, {'S', saveas_do_popup}, {'q', do_exit}};
  return keys;
}

void show_document() {
  show_additions();
  pagelist_display();
  popuplist_display();
}

void show_additions() {
  family_display();
  family_setcurrent(nullptr);
  refresh_names(page_picker);
  refresh_names(popup_picker);
}
