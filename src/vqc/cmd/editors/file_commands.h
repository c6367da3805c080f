#ifndef VQC_CMD_EDITORS_FILE_COMMANDS_H
#define VQC_CMD_EDITORS_FILE_COMMANDS_H

#include <Xm/Xm.h>

#include <span>

#include "vqc/cmd/editors/kit/keys.h"

// What the File menu does with the document as a whole, and what waits while the user is asked whether to save it.

/// The operation that waits for the document to be saved.
enum class SaveOp { none, open, start_new, exit };
inline SaveOp save_op = SaveOp::none;

/// Carries it out.
void run_save_op();
/// Carries it out once the document has been saved, and forgets it.
void document_saved();

void do_new(Widget w, XtPointer, XtPointer);
void really_do_new();
void do_exit(Widget w, XtPointer, XtPointer);

/// The commands that a letter with Ctrl gives in every window.
std::span<const CommandKey> file_command_keys();

/// Shows what a load has left in the model, with no family current.
void show_document();
/// The same after a load that has added to the document. What is typed in the page and popup editors stays.
void show_additions();

#endif
