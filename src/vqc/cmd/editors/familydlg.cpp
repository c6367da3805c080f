// The main window: its menus, and the list of families.

#include "vqc/cmd/editors/familydlg.h"

#include <X11/Shell.h>
#include <Xm/CascadeB.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/Separator.h>
#include <Xm/TextF.h>

#include "desktop/font_units.h"
#include "vqc/cmd/editors/aboutdlg.h"
#include "vqc/cmd/editors/file_commands.h"
#include "vqc/cmd/editors/gendlg.h"
#include "vqc/cmd/editors/generate_all.h"
#include "vqc/cmd/editors/goto.h"
#include "vqc/cmd/editors/kit/main_shell.h"
#include "vqc/cmd/editors/kit/search_field.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/options.h"
#include "vqc/cmd/editors/problems.h"
#include "vqc/cmd/editors/recent_menu.h"
#include "vqc/cmd/editors/rename.h"
#include "vqc/cmd/editors/resource_window.h"
#include "vqc/cmd/editors/session_history.h"
#include "vqc/cmd/editors/stop.h"
#include "vqc/cmd/editors/uses.h"
#include "vqc/cmd/editors/versions_window.h"

namespace vqc::editors {

namespace {

// clang-format off
const WidgetRow menu_rows[] = {
    {"family_form",               create_form,           nullptr},

    {"family_menubar",            XmCreateMenuBar,       "family_form"},

    {"family_file_menu",          XmCreatePulldownMenu,  "family_menubar"},
    {"family_newb",               XmCreatePushButton,    "family_file_menu",     on_press(do_new)},
    {"family_openb",              XmCreatePushButton,    "family_file_menu",     on_press(open_do_popup)},
    {"family_readb",              XmCreatePushButton,    "family_file_menu",     on_press(read_do_popup)},
    {"family_recent_menu",        XmCreatePulldownMenu,  "family_file_menu",     {}, FAMILY_RECENT_MENU},
    {"family_recent_cascade",     XmCreateCascadeButton, "family_file_menu",     {}, FAMILY_RECENT_CASCADE},
    {"family_saveb",              XmCreatePushButton,    "family_file_menu",     on_press(save_do_popup)},
    {"family_saveasb",            XmCreatePushButton,    "family_file_menu",     on_press(saveas_do_popup)},
    {"family_versionsb",          XmCreatePushButton,    "family_file_menu",     on_press(versions_do_popup)},
    {"separator4",                XmCreateSeparator,     "family_file_menu"},
    {"family_exitb",              XmCreatePushButton,    "family_file_menu",     on_press(do_exit)},
    {"family_file_cascade",       XmCreateCascadeButton, "family_menubar",       {{{XmNcascadingCallback, fill_recent_menu}}}},

    {"family_edit_menu",          XmCreatePulldownMenu,  "family_menubar"},
    {"family_undob",              XmCreatePushButton,    "family_edit_menu",     on_press(undo_do), FAMILY_UNDO},
    {"family_redob",              XmCreatePushButton,    "family_edit_menu",     on_press(redo_do), FAMILY_REDO},
    {"family_edit_separator",     XmCreateSeparator,     "family_edit_menu"},
    {"family_gotob",              XmCreatePushButton,    "family_edit_menu",     on_press(goto_do_popup)},
    {"family_usesb",              XmCreatePushButton,    "family_edit_menu",     on_press(uses_do_popup)},
    {"family_renameb",            XmCreatePushButton,    "family_edit_menu",     on_press(rename_do_popup)},
    {"family_problemsb",          XmCreatePushButton,    "family_edit_menu",     on_press(problems_do_popup)},
    {"family_resourcesb",         XmCreatePushButton,    "family_edit_menu",     on_press(resources_do_popup)},
    {"family_stop_b",             XmCreatePushButton,    "family_edit_menu",     on_press(stoplist_do_popup)},
    {"family_edit_cascade",       XmCreateCascadeButton, "family_menubar"},

    {"family_options_menu",       XmCreatePulldownMenu,  "family_menubar"},
    {"family_generate_options_b", XmCreatePushButton,    "family_options_menu",  on_press(genopt_do_popup)},
    {"family_options_cascade",    XmCreateCascadeButton, "family_menubar",       {}, FAMILY_OPTIONS_CASCADE},

    {"family_generate_menu",      XmCreatePulldownMenu,  "family_menubar"},
    {"family_genconfigb",         XmCreatePushButton,    "family_generate_menu", on_press(gencon_do_popup)},
    {"family_gencodeb",           XmCreatePushButton,    "family_generate_menu", on_press(gencode_do_popup)},
    {"family_genstubs_b",         XmCreatePushButton,    "family_generate_menu", on_press(genstubs_do_popup)},
    {"family_genall_separator",   XmCreateSeparator,     "family_generate_menu"},
    {"family_genallb",            XmCreatePushButton,    "family_generate_menu", on_press(genall_do_popup)},
    {"family_generate_cascade",   XmCreateCascadeButton, "family_menubar"},

    {"family_help_menu",          XmCreatePulldownMenu,  "family_menubar"},
    {"family_helpaboutb",         XmCreatePushButton,    "family_help_menu",     on_press(about_do_show)},
    {"family_helpgenb",           XmCreatePushButton,    "family_help_menu",     on_press(vqc_do_help, "vqc_family")},
    {"family_help_separator",     XmCreateSeparator,     "family_help_menu"},
    {"family_helpcontentsb",      XmCreatePushButton,    "family_help_menu",     on_press(vqc_do_help, "entry")},
    {"family_helptutorialb",      XmCreatePushButton,    "family_help_menu",     on_press(vqc_do_help, "tutorial")},
    {"family_helpkeyboardb",      XmCreatePushButton,    "family_help_menu",     on_press(vqc_do_help, "keyboard")},
    {"family_help_cascade",       XmCreateCascadeButton, "family_menubar"},

    {"search_row",                create_form,           "family_form"},
    {"family_search",             XmCreateTextField,     "search_row",           {}, FAMILY_SEARCH},
    {"family_search_l",           XmCreateLabel,         "search_row"},
};

const WidgetLink menu_links[] = {
    {"family_file_cascade",     XmNsubMenuId,      "family_file_menu"},
    {"family_recent_cascade",   XmNsubMenuId,      "family_recent_menu"},
    {"family_edit_cascade",     XmNsubMenuId,      "family_edit_menu"},
    {"family_options_cascade",  XmNsubMenuId,      "family_options_menu"},
    {"family_generate_cascade", XmNsubMenuId,      "family_generate_menu"},
    {"family_help_cascade",     XmNsubMenuId,      "family_help_menu"},
    {"family_menubar",          XmNmenuHelpWidget, "family_help_cascade"},
};
// clang-format on

}  // namespace

Widget* create_family_dialog(Display* display, char* name, int argc, char** argv) {
  Widget shell =
      XtVaAppCreateShell(name, "VQconfig", applicationShellWidgetClass, display, XmNargc, argc, XmNargv, argv, nullptr);
  if (!shell) return nullptr;
  set_font_unit(shell);
  Widget* record =
      build_dialog(shell, {part(menu_rows, menu_links), status_line("family_form"), familylist_page()}, FAMILY_SLOTS);
  if (!record) return nullptr;
  record[FAMILY_SHELL] = shell;
  search_in(record[FAMILY_SEARCH], [] { return &family_editor; });
  answer_close(shell, do_exit);
  set_main_shell(shell);
  return record;
}

}  // namespace vqc::editors
