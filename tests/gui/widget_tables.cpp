#include "gui/widget_tables.h"

#include <Xm/MenuShell.h>
#include <Xm/ScrolledW.h>

#include "gui/hands.h"
#include "gui/looks.h"
#include "libkel/message.h"

using namespace vqc;

namespace {

const char document[] =
    "VQconfig\nwidget 'W' {\n}\nenumeration 'E' {\nenumentry 'e' {\n}\n}\n"
    "family 'F' {\nwidget='W'\nenumeration='E'\n}\n";

const std::vector<const char*> pressed = {XmNactivateCallback};
const std::vector<const char*> toggled = {XmNvalueChangedCallback};
const std::vector<const char*> box_of_four = {XmNokCallback, XmNapplyCallback, XmNcancelCallback, XmNhelpCallback};
const std::vector<const char*> box_of_three = {XmNokCallback, XmNcancelCallback, XmNhelpCallback};

const PromisedWidget promised[] = {
    // The main window
    {"family_form", "XmForm", "vqconfig"},
    {"family_selection", "XmSelectionBox", "family_form", box_of_four},
    {"family_arrowbox", "XmRowColumn", "family_selection"},
    {"family_uparrow", "XmArrowButton", "family_arrowbox", pressed},
    {"family_downarrow", "XmArrowButton", "family_arrowbox", pressed},
    {"family_menubar", "XmRowColumn", "family_form"},
    {"family_file_cascade", "XmCascadeButton", "family_menubar"},
    {"family_file_menu", "XmRowColumn", "family_menubar"},
    {"family_newb", "XmPushButton", "family_file_menu", pressed},
    {"family_openb", "XmPushButton", "family_file_menu", pressed},
    {"family_readb", "XmPushButton", "family_file_menu", pressed},
    {"family_saveb", "XmPushButton", "family_file_menu", pressed},
    {"family_saveasb", "XmPushButton", "family_file_menu", pressed},
    {"separator4", "XmSeparator", "family_file_menu"},
    {"family_exitb", "XmPushButton", "family_file_menu", pressed},
    {"family_edit_cascade", "XmCascadeButton", "family_menubar"},
    {"family_edit_menu", "XmRowColumn", "family_menubar"},
    {"family_stop_b", "XmPushButton", "family_edit_menu", pressed},
    {"family_options_cascade", "XmCascadeButton", "family_menubar"},
    {"family_options_menu", "XmRowColumn", "family_menubar"},
    {"family_generate_options_b", "XmPushButton", "family_options_menu", pressed},
    {"family_generate_cascade", "XmCascadeButton", "family_menubar"},
    {"family_generate_menu", "XmRowColumn", "family_menubar"},
    {"family_genconfigb", "XmPushButton", "family_generate_menu", pressed},
    {"family_gencodeb", "XmPushButton", "family_generate_menu", pressed},
    {"family_genstubs_b", "XmPushButton", "family_generate_menu", pressed},
    {"family_help_cascade", "XmCascadeButton", "family_menubar"},
    {"family_help_menu", "XmRowColumn", "family_menubar"},
    {"family_helpaboutb", "XmPushButton", "family_help_menu", pressed},
    {"family_helpgenb", "XmPushButton", "family_help_menu", pressed},
    {"family_helpcontentsb", "XmPushButton", "family_help_menu", pressed},
    {"family_helptutorialb", "XmPushButton", "family_help_menu", pressed},
    {"family_helpkeyboardb", "XmPushButton", "family_help_menu", pressed},

    // About the program, and errors
    {"about_dialog", "XmDialogShell", "vqconfig"},
    {"about_form", "XmForm", "about_dialog"},
    {"about_name", "XmLabel", "about_form"},
    {"about_version", "XmLabel", "about_form"},
    {"about_ok", "XmPushButton", "about_form"},
    {"error_dialog", "XmDialogShell", "vqconfig"},
    {"error_messageb", "XmMessageBox", "error_dialog", box_of_three},

    // Files
    {"open_dialog", "XmDialogShell", "vqconfig"},
    {"open_fsb", "XmFileSelectionBox", "open_dialog", box_of_three},
    {"read_dialog", "XmDialogShell", "vqconfig"},
    {"read_fsb", "XmFileSelectionBox", "read_dialog", box_of_three},
    {"save_dialog", "XmDialogShell", "vqconfig"},
    {"save_fsb", "XmFileSelectionBox", "save_dialog", box_of_three},
    {"savechanges_dialog", "XmDialogShell", "vqconfig"},
    {"savechanges_messagebox", "XmMessageBox", "savechanges_dialog", box_of_three},
    {"savechanges_nob", "XmPushButton", "savechanges_messagebox", pressed},
    {"gen_dialog", "XmDialogShell", "vqconfig"},
    {"gen_fsb", "XmFileSelectionBox", "gen_dialog", box_of_three},
    {"gen_toggles", "XmRowColumn"},

    // The names in generated code
    {"options_shell", "XmDialogShell", "vqconfig"},
    {"options_form", "XmForm", "options_shell"},
    {"options_data_frame", "XmFrame", "options_form"},
    {"options_data_label", "XmLabel", "options_data_frame"},
    {"options_data_form", "XmForm", "options_data_frame"},
    {"family_table_label", "XmLabel", "options_data_form"},
    {"family_table_text", "XmTextField", "options_data_form"},
    {"family_names_label", "XmLabel", "options_data_form"},
    {"family_names_text", "XmTextField", "options_data_form"},
    {"xwidget_array_label", "XmLabel", "options_data_form"},
    {"xwidget_array_text", "XmTextField", "options_data_form"},
    {"enumeration_array_label", "XmLabel", "options_data_form"},
    {"enumeration_array_text", "XmTextField", "options_data_form"},
    {"alias_array_label", "XmLabel", "options_data_form"},
    {"alias_array_text", "XmTextField", "options_data_form"},
    {"converter_array_label", "XmLabel", "options_data_form"},
    {"converter_array_text", "XmTextField", "options_data_form"},
    {"popup_array_label", "XmLabel", "options_data_form"},
    {"popup_array_text", "XmTextField", "options_data_form"},
    {"stop_list_array_label", "XmLabel", "options_data_form"},
    {"stop_list_array_text", "XmTextField", "options_data_form"},
    {"family_count_label", "XmLabel", "options_data_form"},
    {"family_count_text", "XmTextField", "options_data_form"},
    {"page_names_label", "XmLabel", "options_data_form"},
    {"page_names_text", "XmTextField", "options_data_form"},
    {"options_separator_1", "XmSeparator", "options_data_form"},
    {"options_separator_2", "XmSeparator", "options_form"},
    {"options_comment_code", "XmToggleButton", "options_form", toggled},
    {"options_verbose_code", "XmToggleButton", "options_form", toggled},
    {"options_ok", "XmPushButton", "options_form", pressed},
    {"options_reset", "XmPushButton", "options_form", pressed},
    {"options_cancel", "XmPushButton", "options_form", pressed},
    {"options_help", "XmPushButton", "options_form", pressed},

    // The stop list
    {"stop_list_shell", "XmDialogShell", "vqconfig"},
    {"stop_list_form", "XmForm", "stop_list_shell"},
    {"stop_list_scrolled_window", "XmScrolledWindow", "stop_list_form"},
    {"stop_list_container", "XmForm"},
    {"stop_list_composites", "XmForm", "stop_list_container"},
    {"stop_list_section_separator", "XmSeparator", "stop_list_container"},
    {"stop_list_primitives", "XmForm", "stop_list_container"},
    {"stop_list_separator", "XmSeparator", "stop_list_form"},
    {"stop_list_apply", "XmPushButton", "stop_list_form", pressed},
    {"stop_list_help", "XmPushButton", "stop_list_form", pressed},
    {"stop_list_close", "XmPushButton", "stop_list_form", pressed},
    {"stop_list_fake_separator", "XmSeparatorGadget", "stop_list_form"},
    {"stop_dialog", "XmToggleButton", "stop_list_composites"},
    {"stop_frame", "XmToggleButton", "stop_list_composites"},
    {"stop_message_box", "XmToggleButton", "stop_list_composites"},
    {"stop_main_window", "XmToggleButton", "stop_list_composites"},
    {"stop_drawing_area", "XmToggleButton", "stop_list_composites"},
    {"stop_dialog_template", "XmToggleButton", "stop_list_composites"},
    {"stop_menu_bar", "XmToggleButton", "stop_list_composites"},
    {"stop_bulletin_board", "XmToggleButton", "stop_list_composites"},
    {"stop_command", "XmToggleButton", "stop_list_composites"},
    {"stop_pulldown_menu", "XmToggleButton", "stop_list_composites"},
    {"stop_form", "XmToggleButton", "stop_list_composites"},
    {"stop_selection_prompt", "XmToggleButton", "stop_list_composites"},
    {"stop_radio_box", "XmToggleButton", "stop_list_composites"},
    {"stop_paned_window", "XmToggleButton", "stop_list_composites"},
    {"stop_selection_box", "XmToggleButton", "stop_list_composites"},
    {"stop_row_column", "XmToggleButton", "stop_list_composites"},
    {"stop_scrolled_window", "XmToggleButton", "stop_list_composites"},
    {"stop_file_selection", "XmToggleButton", "stop_list_composites"},
    {"stop_printshell", "XmToggleButton", "stop_list_composites"},
    {"stop_grabshell", "XmToggleButton", "stop_list_composites"},
    {"stop_container", "XmToggleButton", "stop_list_composites"},
    {"stop_notebook", "XmToggleButton", "stop_list_composites"},
    {"stop_spinbox", "XmToggleButton", "stop_list_composites"},
    {"stop_label", "XmToggleButton", "stop_list_primitives"},
    {"stop_cascade_button", "XmToggleButton", "stop_list_primitives"},
    {"stop_text_field", "XmToggleButton", "stop_list_primitives"},
    {"stop_push_button", "XmToggleButton", "stop_list_primitives"},
    {"stop_option_menu", "XmToggleButton", "stop_list_primitives"},
    {"stop_text", "XmToggleButton", "stop_list_primitives"},
    {"stop_toggle_button", "XmToggleButton", "stop_list_primitives"},
    {"stop_separator", "XmToggleButton", "stop_list_primitives"},
    {"stop_scrolled_text", "XmToggleButton", "stop_list_primitives"},
    {"stop_drawn_button", "XmToggleButton", "stop_list_primitives"},
    {"stop_scale", "XmToggleButton", "stop_list_primitives"},
    {"stop_list", "XmToggleButton", "stop_list_primitives"},
    {"stop_arrow_button", "XmToggleButton", "stop_list_primitives"},
    {"stop_scroll_bar", "XmToggleButton", "stop_list_primitives"},
    {"stop_scrolled_list", "XmToggleButton", "stop_list_primitives"},
    {"stop_combobox", "XmToggleButton", "stop_list_primitives"},
    {"stop_simplespinbox", "XmToggleButton", "stop_list_primitives"},
    {"stop_icongadget", "XmToggleButton", "stop_list_primitives"},

    // The family dialog
    {"entity_dialog", "XmDialogShell", "vqconfig"},
    {"entity_form", "XmForm", "entity_dialog"},
    {"entity_menubar", "XmRowColumn", "entity_form"},
    {"entity_viewb", "XmCascadeButton", "entity_menubar"},
    {"view_pulldown", "XmRowColumn", "entity_menubar"},
    {"entity_opt_aliases_t", "XmToggleButton", "view_pulldown", toggled},
    {"entity_opt_converters_t", "XmToggleButton", "view_pulldown", toggled},
    {"entity_opt_enums_t", "XmToggleButton", "view_pulldown", toggled},
    {"entity_opt_code_headers_t", "XmToggleButton", "view_pulldown", toggled},
    {"entity_opt_config_headers_t", "XmToggleButton", "view_pulldown", toggled},
    {"entity_opt_family_headers_t", "XmToggleButton", "view_pulldown", toggled},
    {"entity_opt_family_init_t", "XmToggleButton", "view_pulldown", toggled},
    {"entity_opt_widgets_t", "XmToggleButton", "view_pulldown", toggled},
    {"entity_view_form", "XmForm", "entity_form"},
    {"codeheaderlist_selection", "XmSelectionBox", "entity_view_form", box_of_three},
    {"codeheaderlist_arrowbox", "XmRowColumn"},
    {"codeheaderlist_uparrow", "XmArrowButton", "codeheaderlist_arrowbox", pressed},
    {"codeheaderlist_downarrow", "XmArrowButton", "codeheaderlist_arrowbox", pressed},
    {"codeheaderlist_quitb", "XmPushButton", nullptr, pressed},
    {"confheaderlist_selection", "XmSelectionBox", "entity_view_form", box_of_three},
    {"confheaderlist_arrowbox", "XmRowColumn"},
    {"confheaderlist_uparrow", "XmArrowButton", "confheaderlist_arrowbox", pressed},
    {"confheaderlist_downarrow", "XmArrowButton", "confheaderlist_arrowbox", pressed},
    {"confheaderlist_quitb", "XmPushButton", nullptr, pressed},
    {"familyheaderlist_selection", "XmSelectionBox", "entity_view_form", box_of_three},
    {"familyheaderlist_arrowbox", "XmRowColumn"},
    {"familyheaderlist_uparrow", "XmArrowButton", "familyheaderlist_arrowbox", pressed},
    {"familyheaderlist_downarrow", "XmArrowButton", "familyheaderlist_arrowbox", pressed},
    {"familyheaderlist_quitb", "XmPushButton", nullptr, pressed},
    {"aliaslist_selection", "XmSelectionBox", "entity_view_form", box_of_four},
    {"aliaslist_name_form", "XmForm"},
    {"aliaslist_to_name", "XmTextField", "aliaslist_name_form"},
    {"aliaslist_to_name_l", "XmLabel"},
    {"aliaslist_quitb", "XmPushButton", nullptr, pressed},
    {"enumlist_selection", "XmSelectionBox", "entity_view_form", box_of_four},
    {"separator5", "XmSeparator"},
    {"enumlist_quitb", "XmPushButton", nullptr, pressed},
    {"widgetlist_selection", "XmSelectionBox", "entity_view_form", box_of_four},
    {"widgetlist_arrowbox", "XmRowColumn"},
    {"widgetlist_uparrow", "XmArrowButton", "widgetlist_arrowbox", pressed},
    {"widgetlist_downarrow", "XmArrowButton", "widgetlist_arrowbox", pressed},
    {"widgetlist_quitb", "XmPushButton", nullptr, pressed},
    {"converter_selection", "XmSelectionBox", "entity_view_form", box_of_four},
    {"converter_data_form", "XmForm"},
    {"converter_arrowbox", "XmRowColumn", "converter_data_form"},
    {"converter_uparrow", "XmArrowButton", "converter_arrowbox", pressed},
    {"converter_downarrow", "XmArrowButton", "converter_arrowbox", pressed},
    {"converter_function_frame", "XmFrame"},
    {"converter_function_form", "XmForm", "converter_function_frame"},
    {"converter_proc", "XmTextField", "converter_function_form"},
    {"converter_proc_l", "XmLabel"},
    {"converter_vq_tog", "XmToggleButton"},
    {"converter_code_tog", "XmToggleButton"},
    {"converter_popup_frame", "XmFrame"},
    {"converter_popup_form", "XmForm", "converter_popup_frame"},
    {"convert_popup_t", "XmTextField", "converter_popup_form"},
    {"convert_popup_b", "XmPushButton", nullptr, pressed},
    {"converter_quitb", "XmPushButton", nullptr, pressed},
    {"familyinit_form", "XmMessageBox", "entity_view_form"},
    {"familyinit_applyb", "XmPushButton", "familyinit_form", pressed},
    {"familyinit_cancelb", "XmPushButton", "familyinit_form", pressed},
    {"familyinit_helpb", "XmPushButton", "familyinit_form", pressed},
    {"familyinit_work_area", "XmForm", "familyinit_form"},
    {"familyinit_init_l", "XmLabel", "familyinit_work_area"},
    {"familyinit_init_text", "XmTextField", "familyinit_work_area"},
    {"familyinit_add_vq_t", "XmToggleButton", "familyinit_work_area"},
    {"familyinit_add_code_t", "XmToggleButton", "familyinit_work_area"},
    {"familyinit_add_stub_t", "XmToggleButton", "familyinit_work_area"},
    {"familyinit_pre_shell_t", "XmToggleButton", "familyinit_work_area"},

    // The enumeration editor
    {"enumedit_dialog", "XmDialogShell", "vqconfig"},
    {"enumedit_selection", "XmSelectionBox", nullptr, box_of_four},
    {"enumedit_work_form", "XmForm"},
    {"enumedit_type", "XmTextField"},
    {"enumedit_type_l", "XmLabel"},
    {"enumedit_code_symbol", "XmTextField"},
    {"enumedit_code_symbol_l", "XmLabel"},
    {"enumedit_resfile_symbol", "XmTextField"},
    {"enumedit_resfile_symbol_l", "XmLabel"},
    {"enumedit_arrowbox", "XmRowColumn"},
    {"enumedit_uparrow", "XmArrowButton", "enumedit_arrowbox", pressed},
    {"enumedit_downarrow", "XmArrowButton", "enumedit_arrowbox", pressed},
    {"enumedit_quitb", "XmPushButton", nullptr, pressed},

    // The page and popup editors
    {"pageedit_dialog", "XmDialogShell"},
    {"pageedit_selection", "XmSelectionBox", nullptr, {XmNapplyCallback, XmNcancelCallback, XmNhelpCallback}},
    {"pageedit_work_area", "XmForm", "pageedit_selection"},
    {"pageedit_up_arrow", "XmArrowButton", "pageedit_work_area", pressed},
    {"pageedit_down_arrow", "XmArrowButton", "pageedit_work_area", pressed},
    {"pageedit_updateb", "XmPushButton", "pageedit_work_area", pressed},
    {"pageedit_removeb", "XmPushButton", "pageedit_work_area", pressed},
    {"popupedit_dialog", "XmDialogShell"},
    {"popupedit_selection", "XmSelectionBox", nullptr, {XmNapplyCallback, XmNcancelCallback, XmNhelpCallback}},
    {"popupedit_work_area", "XmForm", "popupedit_selection"},
    {"converter_dialogue_init_l", "XmLabel", "popupedit_work_area"},
    {"converter_dialogue_update_l", "XmLabel", "popupedit_work_area"},
    {"dialog_init", "XmTextField", "popupedit_work_area"},
    {"dialog_update", "XmTextField", "popupedit_work_area"},
    {"popupedit_applytb", "XmPushButton", "popupedit_work_area", pressed},
    {"popupedit_deletetb", "XmPushButton", "popupedit_work_area", pressed},

    // The widget editor
    {"widgetedit_dialog", "XmDialogShell", "vqconfig"},
    {"widgetedit_include_filename", "XmTextField"},
    {"widgetedit_defined_name", "XmTextField"},
    {"widgetedit_can_add_child", "XmTextField"},
    {"widgetedit_appropriate_parent", "XmTextField"},
    {"widgetedit_realise", "XmTextField"},
    {"widgetedit_abstract", "XmTextField"},
    {"widgetedit_largeicon", "XmTextField"},
    {"widgetedit_smallicon", "XmTextField"},
    {"widgetedit_lrg_iconheader", "XmTextField"},
    {"widgetedit_sml_iconheader", "XmTextField"},
    {"widgetedit_pixmap_t", "XmTextField"},
    {"widgetedit_w_help_doc", "XmTextField"},
    {"widgetedit_w_help_tag", "XmTextField"},
    {"widgetedit_d_help_doc", "XmTextField"},
    {"widgetedit_d_help_tag", "XmTextField"},
    {"widgetedit_generate_initialise", "XmToggleButton"},
    {"widgetedit_disablegoto", "XmToggleButton"},
    {"widgetedit_disablefgswap", "XmToggleButton"},
    {"widgetedit_default_is_dont_free", "XmToggleButton"},
    {"widgetedit_can_create", "XmToggleButton"},
    {"widgetedit_can_manage", "XmToggleButton"},
    {"widgetedit_can_edit_abstract", "XmToggleButton"},
    {"we_resource_list", "XmList", nullptr, {XmNbrowseSelectionCallback}},
    {"we_resource_t", "XmTextField", nullptr, toggled},
    {"widgetedit_counter_t", "XmTextField"},
    {"widgetedit_popup_t", "XmTextField", nullptr, toggled},
    {"widgetedit_page_t", "XmTextField", nullptr, toggled},
    {"widgetedit_visible_tog", "XmToggleButton", nullptr, toggled},
    {"widgetedit_free_get_opt", "XmRowColumn"},
    {"widgetedit_get_free_m", "XmRowColumn", nullptr, {XmNentryCallback}},
    {"widgetedit_get_default_b", "XmPushButton", "widgetedit_get_free_m"},
    {"widgetedit_get_free_b", "XmPushButton", "widgetedit_get_free_m"},
    {"widgetedit_get_dont_b", "XmPushButton", "widgetedit_get_free_m"},
    {"widgetedit_free_set_opt", "XmRowColumn"},
    {"widgetedit_set_free_m", "XmRowColumn", nullptr, {XmNentryCallback}},
    {"widgetedit_set_default_b", "XmPushButton", "widgetedit_set_free_m"},
    {"widgetedit_set_free_b", "XmPushButton", "widgetedit_set_free_m"},
    {"widgetedit_set_dont_b", "XmPushButton", "widgetedit_set_free_m"},
    {"widgetedit_create_t", "XmToggleButton"},
    {"widgetedit_set_t", "XmToggleButton"},
    {"widgetedit_get_t", "XmToggleButton"},
    {"widgetedit_applyb", "XmPushButton", nullptr, pressed},
    {"widgetedit_undob", "XmPushButton", nullptr, pressed},
    {"widgetedit_closeb", "XmPushButton", nullptr, pressed},
    {"widgetedit_helpb", "XmPushButton", nullptr, pressed},
    {"widgetedit_popup_b", "XmPushButton", nullptr, pressed},
    {"widgetedit_page_b", "XmPushButton", nullptr, pressed},
    {"we_resource_upd_b", "XmPushButton", nullptr, pressed},
    {"we_resource_del_b", "XmPushButton", nullptr, pressed},
    {"resource_warn_dialog", "XmDialogShell", "vqconfig"},
    {"resource_warn_msg", "XmMessageBox", "resource_warn_dialog", {XmNokCallback}},
    {"resource_warn_ignoreb", "XmPushButton", "resource_warn_msg", pressed},
};

const HelpButton buttons[] = {
    {"family_selection.Help", "vqc_family", "Families"},
    {"open_fsb.Help", "vqc_open", "Opening a Document"},
    {"read_fsb.Help", "vqc_read", "Reading a Document"},
    {"save_fsb.Help", "vqc_save", "Saving"},
    {"savechanges_messagebox.Help", "vqc_savechanges", "Unsaved Changes"},
    {"error_messageb.Help", "vqc_error", "Errors"},
    {"gen_fsb.Help", "vqc_gen", "Generating Code"},
    {"options_help", "vqc_gen_options", "Names in Generated Code"},
    {"stop_list_help", "vqc_stop_list", "Stop List"},
    {"codeheaderlist_selection.Help", "vqc_code_hdrs", "Code Headers"},
    {"confheaderlist_selection.Help", "vqc_conf_hdrs", "Config Headers"},
    {"familyheaderlist_selection.Help", "vqc_family_hdrs", "Family Headers"},
    {"aliaslist_selection.Help", "vqc_aliases", "Type Aliases"},
    {"enumlist_selection.Help", "vqc_enums", "Enumerations"},
    {"widgetlist_selection.Help", "vqc_classw", "Widgets"},
    {"converter_selection.Help", "vqc_converter", "Converters"},
    {"familyinit_helpb", "vqc_family_init", "Family Initialisation"},
    {"resource_warn_msg.Help", "vqc_w_edit", "Widget Editor"},
    {"enumedit_selection.Help", "vqc_enum_edit", "Enumeration Editor"},
    {"pageedit_selection.Help", "vqc_page_edit", "Pages"},
    {"popupedit_selection.Help", "vqc_popup_edit", "Popups"},
    {"widgetedit_helpb", "vqc_w_edit", "Widget Editor"},
    {"family_helpgenb", "vqc_family", "Families"},
    {"family_helpcontentsb", "entry", "VQconfig Help"},
    {"family_helptutorialb", "tutorial", "Tutorial"},
    {"family_helpkeyboardb", "keyboard", "Keyboard"},
};

void open_editors() {
  edit_family("F");
  edit_widget("W");
  press("widgetedit_page_b");
  press("widgetedit_popup_b");
  enter("we_resource_t", "r");
  press("widgetedit_closeb");
  edit_enumeration("E");
}

}  // namespace

std::span<const PromisedWidget> promised_widgets() { return promised; }

std::span<const HelpButton> help_buttons() { return buttons; }

void EveryDialog::open_every_dialog() {
  start({"-xrm", "VQconfig*generateOptions: True", folder.with("document.vqc", document)});
  for (const char* item : {"family_helpaboutb", "family_openb", "family_readb", "family_genconfigb",
                           "family_generate_options_b", "family_stop_b"}) {
    press(item);
  }
  open_editors();
  add_family("Extra");
  press("family_exitb");
  press("family_saveasb");
  error_show("bad_save_file");
  settle();
}

Widget parent_of(Widget w) {
  Widget parent = XtParent(w);
  const bool menu = parent && XmIsMenuShell(parent);
  const bool list = parent && XmIsScrolledWindow(parent) && std::string(XtName(parent)).ends_with("SW");
  return menu || list ? XtParent(parent) : parent;
}
