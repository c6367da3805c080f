#ifndef VQC_CMD_EDITORS_FILE_COMMANDS_H
#define VQC_CMD_EDITORS_FILE_COMMANDS_H

// What the File menu does with the document as a whole, the boxes that ask for a file, and the question whether to save
// the document before it is lost.

#include <span>
#include <string>
#include <string_view>

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/keys.h"
#include "vqc/cmd/history/versions.h"
#include "vqc/cmd/savefile/load_result.h"

namespace vqc::editors {

/// Null until the dialogs are first needed.
inline Widget* open_dialog = nullptr;
inline Widget* read_dialog = nullptr;
inline Widget* save_dialog = nullptr;
inline Widget* savechanges_dialog = nullptr;

Widget* create_open_dialog(Widget parent);
inline void delete_open_dialog(Widget* record) { delete_dialog(record); }
Widget* create_read_dialog(Widget parent);
inline void delete_read_dialog(Widget* record) { delete_dialog(record); }
Widget* create_save_dialog(Widget parent);
inline void delete_save_dialog(Widget* record) { delete_dialog(record); }
Widget* create_savechanges_dialog(Widget parent);
inline void delete_savechanges_dialog(Widget* record) { delete_dialog(record); }

/// The operation that waits for the document to be saved.
enum class SaveOp { none, open, open_recent, start_new, exit };
inline SaveOp save_op = SaveOp::none;

/// The commands that a letter with Ctrl gives in every window.
std::span<const CommandKey> file_command_keys();

/// Loads the document's file in the place of what there is. False when that cannot be done, which is shown.
bool load_document();

/// Shows what a load has left in the model, with no family current.
void show_document();

/// Makes a text that has been kept for that reason the document of the same file, from which it differs.
LoadResult restore_kept(std::string_view text, Reason reason);

// New and Exit.
void do_new(Widget w, XtPointer, XtPointer);
void really_do_new();
void do_exit(Widget w, XtPointer, XtPointer);

// Open: another document instead of the present one.
void open_do_popup(Widget w, XtPointer, XtPointer);
void really_open_popup();
void do_open(Widget w, XtPointer, XtPointer call);
void open_do_hide(Widget w, XtPointer, XtPointer);
/// The same of a document that need not be asked for.
void open_document(Widget w, std::string path);

// Read: another document into the present one.
void read_do_popup(Widget w, XtPointer, XtPointer);
void do_read(Widget w, XtPointer, XtPointer call);
void read_do_hide(Widget w, XtPointer, XtPointer);

// Save and Save As.
void save_do_popup(Widget w, XtPointer, XtPointer);
void saveas_do_popup(Widget w, XtPointer, XtPointer);
/// Saves the document, after asking for a file if it has none.
void really_save_popup();
void do_save(Widget w, XtPointer, XtPointer call);
/// Gives up saving, and with it the operation that waits for it.
void save_do_hide(Widget w, XtPointer, XtPointer);

/// Asks whether to save what has changed; `operation` waits for the answer.
void savechanges_popup(SaveOp operation);
void savechanges_dosave(Widget w, XtPointer, XtPointer);
void savechanges_dodiscard(Widget w, XtPointer, XtPointer);
void savechanges_docancel(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
