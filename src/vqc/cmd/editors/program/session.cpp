// Starts a session: toolkit, hooks, main window and first document.

#include "vqc/cmd/editors/program/session.h"

#include <Xm/Xm.h>

#include <csignal>
#include <cstdlib>
#include <string>

#include "desktop/wheel.h"
#include "desktop/window_properties.h"
#include "libkel/installation.h"
#include "libkel/message.h"
#include "vqc/cmd/application/batch.h"
#include "vqc/cmd/editors/aliaslist.h"
#include "vqc/cmd/editors/convlist.h"
#include "vqc/cmd/editors/enumlist.h"
#include "vqc/cmd/editors/error.h"
#include "vqc/cmd/editors/familydlg.h"
#include "vqc/cmd/editors/file_commands.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/given_options.h"
#include "vqc/cmd/editors/kit/keys.h"
#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/editors/kit/placement.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/outside_changes.h"
#include "vqc/cmd/editors/pagelist.h"
#include "vqc/cmd/editors/popuplist.h"
#include "vqc/cmd/editors/problems.h"
#include "vqc/cmd/editors/program/exit.h"
#include "vqc/cmd/editors/program/help.h"
#include "vqc/cmd/editors/program/resources.h"
#include "vqc/cmd/editors/recovery.h"
#include "vqc/cmd/editors/resource_window.h"
#include "vqc/cmd/editors/safety_net.h"
#include "vqc/cmd/editors/session_history.h"
#include "vqc/cmd/editors/title.h"
#include "vqc/cmd/editors/uses.h"
#include "vqc/cmd/editors/versions_window.h"
#include "vqc/cmd/editors/widgetlist.h"

extern "C" void XmRegisterConverters();  // only Motif's private headers declare it

namespace vqc::editors {

namespace {

XtAppContext context = nullptr;

void document_opened() {
  warn_of_other_session();
  offer_recovery();
}

void show_uses_of(Widget w) { uses_do_popup(w, nullptr, nullptr); }
void show_problems_from(Widget w) { problems_do_popup(w, nullptr, nullptr); }
void show_resources_from(Widget w) { resources_do_popup(w, nullptr, nullptr); }

/// What follows whatever the user does.
void note_and_refresh() {
  note_action();
  refresh_versions();
  refresh_uses();
  refresh_resources();
}

/// Lets the lower layers speak to the editors, and the editors to the program. A batch run does without.
void install_hooks() {
  message_sink = &error_box;
  family_pool.on_current = current_family_changed;
  widget_kind.on_current = current_widget_changed;
  enum_kind.on_current = current_enum_changed;
  alias_kind.on_current = current_alias_changed;
  converter_kind.on_current = current_converter_changed;
  page_pool.on_current = current_page_changed;
  popup_pool.on_current = current_popup_changed;
  session_hooks = {.acted = note_and_refresh,
                   .opened = document_opened,
                   .end = ExitVQConfig,
                   .help = show_help,
                   .used_by = users_in_words,
                   .uses = show_uses_of,
                   .problems = show_problems_from,
                   .resources = show_resources_from};
}

void register_converters() {
  XmRegisterConverters();
  XtAppAddConverter(context, XtRString, XmRUnitType, XmCvtStringToUnitType, nullptr, 0);
}

void set_icon(Widget shell) {
  std::string file = installed("share/icons/hicolor/48x48/apps/vqconfig.xpm");
  Screen* screen = XtScreen(shell);
  const Pixmap icon = XmGetPixmap(screen, file.data(), BlackPixelOfScreen(screen), WhitePixelOfScreen(screen));
  if (icon != XmUNSPECIFIED_PIXMAP) XtVaSetValues(shell, XmNiconPixmap, icon, nullptr);
}

/// Loads the document that the command line names.
void load_first_document(Widget shell) {
  if (!batch_save) return;
  const BusyCursor busy(shell);
  save_file = batch_save_file;
  if (load_document()) show_document();
}

}  // namespace

const char* open_display(int* argc, char** argv) {
  XtSetLanguageProc(nullptr, nullptr, nullptr);
  XtToolkitInitialize();
  context = XtCreateApplicationContext();
  if (!context) return "cannot initialise application context";
  display = XtOpenDisplay(context, nullptr, argv[0], "VQconfig", nullptr, 0, argc, argv);
  return display ? nullptr : "cannot open display";
}

bool start_session(int argc, char** argv) {
  give_back_large_blocks();
  survive_short_memory();
  std::signal(SIGPIPE, SIG_IGN);  // writing to a display that is lost is to end with Xlib's message
  register_converters();
  use_keys(display, file_command_keys());
  watch_for_outside_changes(display);
  describe_windows(display);
  scroll_by_wheel(display);
  family_dialog = create_family_dialog(display, argv[0], argc, argv);
  if (!family_dialog) return false;
  Widget shell = family_dialog[FAMILY_SHELL];
  install_hooks();
  vqc_set_title(nullptr);
  forced_compatibility = batch_compatibility;
  vqc_init_resources(shell);
  if (!vqc_generate_options()) XtUnmanageChild(family_dialog[FAMILY_OPTIONS_CASCADE]);
  set_icon(shell);
  show_main_window(shell, XtParent(family_dialog[FAMILY_SELECTION]));
  XmProcessTraversal(family_dialog[FAMILY_TEXT], XmTRAVERSE_CURRENT);
  guarded([shell] {
    load_first_document(shell);
    begin_safety_net(save_file);
    begin_history();
    offer_recovery();
  });
  return true;
}

void serve_user() {
  XtAppMainLoop(context);
  std::exit(0);
}

}  // namespace vqc::editors
