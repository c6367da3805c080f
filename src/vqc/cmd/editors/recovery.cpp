// Offers what a session has left that did not end well.

#include "vqc/cmd/editors/recovery.h"

#include <Xm/DialogS.h>
#include <Xm/MessageB.h>
#include <Xm/PushB.h>

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "libkel/message.h"
#include "vqc/cmd/editors/file_commands.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/edited_document.h"
#include "vqc/cmd/editors/kit/local_time.h"
#include "vqc/cmd/editors/safety_net.h"
#include "vqc/cmd/editors/title.h"
#include "vqc/cmd/history/journal.h"

namespace vqc::editors {

namespace {

namespace fs = std::filesystem;

enum Slot { SHELL, BOX, SLOTS };

// clang-format off
const WidgetRow rows[] = {
    {"recovery_dialog",     XmCreateDialogShell, nullptr,               on_close(recovery_do_later), SHELL},
    {"recovery_messagebox", create_question_box, "recovery_dialog",     on_answer(recovery_do_restore, recovery_do_later, "vqc_recovery"), BOX},
    {"recovery_discardb",   XmCreatePushButton,  "recovery_messagebox", on_press(recovery_do_discard)},
    {"OK",                  find_child,          "recovery_messagebox"},
};

const WidgetLink links[] = {
    {"recovery_messagebox", XmNdefaultButton, "OK"},
    {"recovery_messagebox", XmNinitialFocus,  "OK"},
};
// clang-format on

/// What is asked about.
std::optional<AbandonedJournal> offered;

bool is_for_open_document(const AbandonedJournal& journal) {
  std::error_code ignored;
  return !save_file || *save_file == journal.document || fs::equivalent(*save_file, journal.document, ignored);
}

/// Whether the file of a journal's document says the same.
bool is_saved(const AbandonedJournal& journal) {
  Document left;
  load_kept(journal.text, Reason::crash, left);
  return *capture(left, nullptr) == *state_of_file(journal.document);
}

std::string question(const AbandonedJournal& journal) {
  const std::string time = local_time(journal.time);
  if (journal.document.empty()) return filled(text_or_name("recovery_unnamed"), {time.c_str()});
  return filled(text_or_name("recovery_named"), {journal.document.c_str(), time.c_str()});
}

void ask(AbandonedJournal journal) {
  if (!ensure_dialog(recovery_dialog, create_recovery_dialog)) return;
  offered = std::move(journal);
  XtVaSetValues(recovery_dialog[BOX], XmNmessageString, CompoundString::of_lines(question(*offered).c_str()).get(),
                nullptr);
  show_dialog(recovery_dialog[BOX], Place::over);
}

/// Makes what was left the document.
void restore_offered() {
  save_file = offered->document.empty() ? std::nullopt : std::optional(offered->document.string());
  vqc_set_title(save_file_path());
  restore_kept(offered->text, Reason::crash);
}

/// What was left stays among the versions of its document.
void settle_offered() {
  keep_version(offered->document, offered->text, Reason::crash);
  offered->remove();
  offered.reset();
}

}  // namespace

Widget* create_recovery_dialog(Widget parent) { return build_dialog(parent, rows, SLOTS, links); }

void offer_recovery() {
  const fs::path folder = journals_folder();
  if (folder.empty()) return;
  for (AbandonedJournal& journal : Journal::abandoned(folder)) {
    if (!is_for_open_document(journal)) continue;
    if (!is_saved(journal)) return ask(std::move(journal));
    journal.remove();
  }
}

void recovery_do_restore(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  hide_dialog(recovery_dialog[BOX]);
  restore_offered();
  settle_offered();
}

void recovery_do_discard(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  hide_dialog(recovery_dialog[BOX]);
  settle_offered();
}

void recovery_do_later(Widget, XtPointer, XtPointer) {
  hide_dialog(recovery_dialog[BOX]);
  offered.reset();
}

}  // namespace vqc::editors
