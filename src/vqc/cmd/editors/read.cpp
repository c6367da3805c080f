#include "vqc/cmd/editors/read.h"

#include "vqc/cmd/editors/dialogs/family_dialog.h"
#include "vqc/cmd/editors/dialogs/read_dialog.h"
#include "vqc/cmd/editors/file_commands.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/file_box.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/parse.h"

void read_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (made(read_dialog, create_read_dialog, family_dialog[FAMILY_SHELL]))
    show_file_box(read_dialog[READ_FSB], save_file);
}

void do_read(Widget w, XtPointer, XtPointer call) {
  const BusyCursor busy(w);
  Text path = chosen_path(w, call);
  parseit(&path, 0);
  hide_dialog(read_dialog[READ_FSB]);
  show_additions();
}

void read_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(read_dialog[READ_FSB]); }
