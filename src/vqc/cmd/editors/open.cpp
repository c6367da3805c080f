#include "vqc/cmd/editors/open.h"

#include "vqc/cmd/editors/dialogs/family_dialog.h"
#include "vqc/cmd/editors/dialogs/open_dialog.h"
#include "vqc/cmd/editors/file_commands.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/file_box.h"
#include "vqc/cmd/editors/options.h"
#include "vqc/cmd/editors/save.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/parse.h"

void open_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (dirty) {
    savechanges_popup(SaveOp::open);
  } else {
    really_open_popup();
  }
}

void really_open_popup() {
  if (made(open_dialog, create_open_dialog, family_dialog[FAMILY_SHELL]))
    show_file_box(open_dialog[OPEN_FSB], save_file);
}

void do_open(Widget w, XtPointer, XtPointer call) {
  const BusyCursor busy(w);
  save_file = chosen_path(w, call);
  parseit(&save_file, 1);
  dirty = false;
  hide_dialog(open_dialog[OPEN_FSB]);
  show_document();
  options_dialog_load();
}

void open_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(open_dialog[OPEN_FSB]); }
