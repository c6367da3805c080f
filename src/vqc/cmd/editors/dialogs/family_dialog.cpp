#include "vqc/cmd/editors/dialogs/family_dialog.h"

#include <X11/Shell.h>
#include <Xm/ArrowB.h>
#include <Xm/CascadeB.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/SelectioB.h>
#include <Xm/Separator.h>

#include "desktop/font_units.h"
#include "vqc/cmd/editors/aboutdlg.h"
#include "vqc/cmd/editors/familydlg.h"
#include "vqc/cmd/editors/file_commands.h"
#include "vqc/cmd/editors/gendlg.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/open.h"
#include "vqc/cmd/editors/options.h"
#include "vqc/cmd/editors/read.h"
#include "vqc/cmd/editors/save.h"
#include "vqc/cmd/editors/stop.h"

namespace {

const WidgetRow rows[] = {
    {"family_form", create_form, nullptr},

    {"family_menubar", XmCreateMenuBar, "family_form"},
    {"family_file_menu", XmCreatePulldownMenu, "family_menubar"},
    {"family_newb", XmCreatePushButton, "family_file_menu", NO_SLOT, {{XmNactivateCallback, do_new}}},
    {"family_openb", XmCreatePushButton, "family_file_menu", NO_SLOT, {{XmNactivateCallback, open_do_popup}}},
    {"family_readb", XmCreatePushButton, "family_file_menu", NO_SLOT, {{XmNactivateCallback, read_do_popup}}},
    {"family_saveb", XmCreatePushButton, "family_file_menu", NO_SLOT, {{XmNactivateCallback, save_do_popup}}},
    {"family_saveasb", XmCreatePushButton, "family_file_menu", NO_SLOT, {{XmNactivateCallback, saveas_do_popup}}},
    {"separator4", XmCreateSeparator, "family_file_menu"},
    {"family_exitb", XmCreatePushButton, "family_file_menu", NO_SLOT, {{XmNactivateCallback, do_exit}}},
    {"family_file_cascade", XmCreateCascadeButton, "family_menubar"},

    {"family_edit_menu", XmCreatePulldownMenu, "family_menubar"},
    {"family_stop_b", XmCreatePushButton, "family_edit_menu", NO_SLOT, {{XmNactivateCallback, stoplist_do_popup}}},
    {"family_edit_cascade", XmCreateCascadeButton, "family_menubar"},

    {"family_options_menu", XmCreatePulldownMenu, "family_menubar"},
    {"family_generate_options_b",
     XmCreatePushButton,
     "family_options_menu",
     NO_SLOT,
     {{XmNactivateCallback, genopt_do_popup}}},
    {"family_options_cascade", XmCreateCascadeButton, "family_menubar", FAMILY_OPTIONS_CASCADE},

    {"family_generate_menu", XmCreatePulldownMenu, "family_menubar"},
    {"family_genconfigb",
     XmCreatePushButton,
     "family_generate_menu",
     NO_SLOT,
     {{XmNactivateCallback, gencon_do_popup}}},
    {"family_gencodeb", XmCreatePushButton, "family_generate_menu", NO_SLOT, {{XmNactivateCallback, gencode_do_popup}}},
    {"family_genstubs_b",
     XmCreatePushButton,
     "family_generate_menu",
     NO_SLOT,
     {{XmNactivateCallback, genstubs_do_popup}}},
    {"family_generate_cascade", XmCreateCascadeButton, "family_menubar"},

    {"family_help_menu", XmCreatePulldownMenu, "family_menubar"},
    {"family_helpaboutb", XmCreatePushButton, "family_help_menu", NO_SLOT, {{XmNactivateCallback, about_do_show}}},
    {"family_helpgenb",
     XmCreatePushButton,
     "family_help_menu",
     NO_SLOT,
     {{XmNactivateCallback, vqc_do_help, "vqc_family"}}},
    {"family_help_separator", XmCreateSeparator, "family_help_menu"},
    {"family_helpcontentsb",
     XmCreatePushButton,
     "family_help_menu",
     NO_SLOT,
     {{XmNactivateCallback, vqc_do_help, "entry"}}},
    {"family_helptutorialb",
     XmCreatePushButton,
     "family_help_menu",
     NO_SLOT,
     {{XmNactivateCallback, vqc_do_help, "tutorial"}}},
    {"family_helpkeyboardb",
     XmCreatePushButton,
     "family_help_menu",
     NO_SLOT,
     {{XmNactivateCallback, vqc_do_help, "keyboard"}}},
    {"family_help_cascade", XmCreateCascadeButton, "family_menubar"},

    {"family_selection",
     create_editor_box,
     "family_form",
     FAMILY_SELECTION,
     {{XmNokCallback, family_do_edit},
      {XmNapplyCallback, family_do_add},
      {XmNcancelCallback, family_do_delete},
      {XmNhelpCallback, vqc_do_help, "vqc_family"}}},
    {"Help", found_button, "family_selection", NO_SLOT, {{XmNactivateCallback, vqc_do_help, "vqc_family"}}},
    {"*ItemsList", found, "family_selection", FAMILY_LIST, {{XmNbrowseSelectionCallback, family_do_select}}},
    {"Text", found, "family_selection", FAMILY_TEXT},
    {"family_arrowbox", XmCreateRowColumn, "family_selection"},
    {"family_uparrow", XmCreateArrowButton, "family_arrowbox", NO_SLOT, {{XmNactivateCallback, family_do_up}}},
    {"family_downarrow", XmCreateArrowButton, "family_arrowbox", NO_SLOT, {{XmNactivateCallback, family_do_down}}},
};

const WidgetLink links[] = {
    {"family_file_cascade", XmNsubMenuId, "family_file_menu"},
    {"family_edit_cascade", XmNsubMenuId, "family_edit_menu"},
    {"family_options_cascade", XmNsubMenuId, "family_options_menu"},
    {"family_generate_cascade", XmNsubMenuId, "family_generate_menu"},
    {"family_help_cascade", XmNsubMenuId, "family_help_menu"},
    {"family_menubar", XmNmenuHelpWidget, "family_help_cascade"},
    {"family_selection", XmNcancelButton, nullptr},  // Escape must not delete
    {"family_selection", XmNinitialFocus, "Text"},
};

}  // namespace

Widget* create_family_dialog(Display* display, char* name, int argc, char** argv) {
  Widget shell =
      XtVaAppCreateShell(name, "VQconfig", applicationShellWidgetClass, display, XmNargc, argc, XmNargv, argv, nullptr);
  if (!shell) return nullptr;
  set_font_unit(shell);
  Widget* record = build_dialog(shell, rows, FAMILY_SLOTS, links);
  if (!record) return nullptr;
  record[FAMILY_SHELL] = shell;
  on_close(shell, do_exit);
  return record;
}
