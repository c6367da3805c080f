#include "vqc/cmd/editors/dialogs/entity_dialog.h"

#include <Xm/ArrowB.h>
#include <Xm/CascadeB.h>
#include <Xm/DialogS.h>
#include <Xm/Frame.h>
#include <Xm/Label.h>
#include <Xm/List.h>
#include <Xm/MessageB.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/SelectioB.h>
#include <Xm/Separator.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include "vqc/cmd/editors/aliaslist.h"
#include "vqc/cmd/editors/convlist.h"
#include "vqc/cmd/editors/entity.h"
#include "vqc/cmd/editors/enumlist.h"
#include "vqc/cmd/editors/headerlists.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/widgetlist.h"

namespace {

const WidgetRow rows[] = {
    {"entity_dialog", XmCreateDialogShell, nullptr, ENTITY_SHELL},
    {"entity_form", create_form, "entity_dialog", ENTITY_FORM},

    {"entity_menubar", XmCreateMenuBar, "entity_form"},
    {"view_pulldown", create_radio_menu, "entity_menubar"},
    {"entity_opt_aliases_t", XmCreateToggleButton, "view_pulldown", ENTITY_VIEW_ALIASES},
    {"entity_opt_converters_t", XmCreateToggleButton, "view_pulldown", ENTITY_VIEW_CONVERTERS},
    {"entity_opt_enums_t", XmCreateToggleButton, "view_pulldown", ENTITY_VIEW_ENUMS},
    {"entity_opt_code_headers_t", XmCreateToggleButton, "view_pulldown", ENTITY_VIEW_CODE_HEADERS},
    {"entity_opt_config_headers_t", XmCreateToggleButton, "view_pulldown", ENTITY_VIEW_CONFIG_HEADERS},
    {"entity_opt_family_headers_t", XmCreateToggleButton, "view_pulldown", ENTITY_VIEW_FAMILY_HEADERS},
    {"entity_opt_family_init_t", XmCreateToggleButton, "view_pulldown", ENTITY_VIEW_FAMILY_INIT},
    {"entity_opt_widgets_t", XmCreateToggleButton, "view_pulldown", ENTITY_VIEW_WIDGETS},
    {"entity_viewb", XmCreateCascadeButton, "entity_menubar"},

    {"entity_view_form", create_form, "entity_form"},

    {"codeheaderlist_selection",
     create_editor_box,
     "entity_view_form",
     CODEHEADERLIST_BOX,
     {{XmNokCallback, codeheaderlist_do_add},
      {XmNcancelCallback, codeheaderlist_do_delete},
      {XmNhelpCallback, vqc_do_help, "vqc_code_hdrs"}}},
    {"Help", found_button, "codeheaderlist_selection", NO_SLOT, {{XmNactivateCallback, vqc_do_help, "vqc_code_hdrs"}}},
    {"*ItemsList",
     found,
     "codeheaderlist_selection",
     NO_SLOT,
     {{XmNbrowseSelectionCallback, codeheaderlist_do_select}}},
    {"Apply", unwanted, "codeheaderlist_selection"},
    {"codeheaderlist_arrowbox", XmCreateRowColumn, "codeheaderlist_selection"},
    {"codeheaderlist_uparrow",
     XmCreateArrowButton,
     "codeheaderlist_arrowbox",
     NO_SLOT,
     {{XmNactivateCallback, codeheaderlist_do_up}}},
    {"codeheaderlist_downarrow",
     XmCreateArrowButton,
     "codeheaderlist_arrowbox",
     NO_SLOT,
     {{XmNactivateCallback, codeheaderlist_do_down}}},
    {"codeheaderlist_quitb",
     XmCreatePushButton,
     "codeheaderlist_selection",
     NO_SLOT,
     {{XmNactivateCallback, entity_do_hide}}},

    {"confheaderlist_selection",
     create_editor_box,
     "entity_view_form",
     CONFHEADERLIST_BOX,
     {{XmNokCallback, confheaderlist_do_add},
      {XmNcancelCallback, confheaderlist_do_delete},
      {XmNhelpCallback, vqc_do_help, "vqc_conf_hdrs"}}},
    {"Help", found_button, "confheaderlist_selection", NO_SLOT, {{XmNactivateCallback, vqc_do_help, "vqc_conf_hdrs"}}},
    {"*ItemsList",
     found,
     "confheaderlist_selection",
     NO_SLOT,
     {{XmNbrowseSelectionCallback, confheaderlist_do_select}}},
    {"Apply", unwanted, "confheaderlist_selection"},
    {"confheaderlist_arrowbox", XmCreateRowColumn, "confheaderlist_selection"},
    {"confheaderlist_uparrow",
     XmCreateArrowButton,
     "confheaderlist_arrowbox",
     NO_SLOT,
     {{XmNactivateCallback, confheaderlist_do_up}}},
    {"confheaderlist_downarrow",
     XmCreateArrowButton,
     "confheaderlist_arrowbox",
     NO_SLOT,
     {{XmNactivateCallback, confheaderlist_do_down}}},
    {"confheaderlist_quitb",
     XmCreatePushButton,
     "confheaderlist_selection",
     NO_SLOT,
     {{XmNactivateCallback, entity_do_hide}}},

    {"familyheaderlist_selection",
     create_editor_box,
     "entity_view_form",
     FAMILYHEADERLIST_BOX,
     {{XmNokCallback, familyheaderlist_do_add},
      {XmNcancelCallback, familyheaderlist_do_delete},
      {XmNhelpCallback, vqc_do_help, "vqc_family_hdrs"}}},
    {"Help",
     found_button,
     "familyheaderlist_selection",
     NO_SLOT,
     {{XmNactivateCallback, vqc_do_help, "vqc_family_hdrs"}}},
    {"*ItemsList",
     found,
     "familyheaderlist_selection",
     NO_SLOT,
     {{XmNbrowseSelectionCallback, familyheaderlist_do_select}}},
    {"Apply", unwanted, "familyheaderlist_selection"},
    {"familyheaderlist_arrowbox", XmCreateRowColumn, "familyheaderlist_selection"},
    {"familyheaderlist_uparrow",
     XmCreateArrowButton,
     "familyheaderlist_arrowbox",
     NO_SLOT,
     {{XmNactivateCallback, familyheaderlist_do_up}}},
    {"familyheaderlist_downarrow",
     XmCreateArrowButton,
     "familyheaderlist_arrowbox",
     NO_SLOT,
     {{XmNactivateCallback, familyheaderlist_do_down}}},
    {"familyheaderlist_quitb",
     XmCreatePushButton,
     "familyheaderlist_selection",
     NO_SLOT,
     {{XmNactivateCallback, entity_do_hide}}},

    {"aliaslist_selection",
     create_editor_box,
     "entity_view_form",
     ALIASLIST_BOX,
     {{XmNokCallback, aliaslist_do_update},
      {XmNapplyCallback, aliaslist_do_add},
      {XmNcancelCallback, aliaslist_do_delete},
      {XmNhelpCallback, vqc_do_help, "vqc_aliases"}}},
    {"Help", found_button, "aliaslist_selection", NO_SLOT, {{XmNactivateCallback, vqc_do_help, "vqc_aliases"}}},
    {"*ItemsList", found, "aliaslist_selection", NO_SLOT, {{XmNbrowseSelectionCallback, aliaslist_do_display}}},
    {"aliaslist_name_form", create_form, "aliaslist_selection"},
    {"aliaslist_to_name", XmCreateTextField, "aliaslist_name_form", ALIASLIST_TO_NAME},
    {"aliaslist_to_name_l", XmCreateLabel, "aliaslist_name_form"},
    {"aliaslist_quitb", XmCreatePushButton, "aliaslist_selection", NO_SLOT, {{XmNactivateCallback, entity_do_hide}}},

    {"enumlist_selection",
     create_editor_box,
     "entity_view_form",
     ENUMLIST_BOX,
     {{XmNokCallback, enumlist_do_edit},
      {XmNapplyCallback, enumlist_do_add},
      {XmNcancelCallback, enumlist_do_delete},
      {XmNhelpCallback, vqc_do_help, "vqc_enums"}}},
    {"Help", found_button, "enumlist_selection", NO_SLOT, {{XmNactivateCallback, vqc_do_help, "vqc_enums"}}},
    {"*ItemsList", found, "enumlist_selection", NO_SLOT, {{XmNbrowseSelectionCallback, enumlist_do_select}}},
    {"separator5", XmCreateSeparator, "enumlist_selection"},
    {"enumlist_quitb", XmCreatePushButton, "enumlist_selection", NO_SLOT, {{XmNactivateCallback, entity_do_hide}}},

    {"widgetlist_selection",
     create_editor_box,
     "entity_view_form",
     WIDGETLIST_BOX,
     {{XmNokCallback, widgetlist_do_edit},
      {XmNapplyCallback, widgetlist_do_add},
      {XmNcancelCallback, widgetlist_do_delete},
      {XmNhelpCallback, vqc_do_help, "vqc_classw"}}},
    {"Help", found_button, "widgetlist_selection", NO_SLOT, {{XmNactivateCallback, vqc_do_help, "vqc_classw"}}},
    {"*ItemsList", found, "widgetlist_selection", NO_SLOT, {{XmNbrowseSelectionCallback, widgetlist_do_select}}},
    {"widgetlist_arrowbox", XmCreateRowColumn, "widgetlist_selection"},
    {"widgetlist_uparrow",
     XmCreateArrowButton,
     "widgetlist_arrowbox",
     NO_SLOT,
     {{XmNactivateCallback, widgetlist_do_up}}},
    {"widgetlist_downarrow",
     XmCreateArrowButton,
     "widgetlist_arrowbox",
     NO_SLOT,
     {{XmNactivateCallback, widgetlist_do_down}}},
    {"widgetlist_quitb", XmCreatePushButton, "widgetlist_selection", NO_SLOT, {{XmNactivateCallback, entity_do_hide}}},

    {"converter_selection",
     create_editor_box,
     "entity_view_form",
     CONVERTER_BOX,
     {{XmNokCallback, converterlist_do_update},
      {XmNapplyCallback, converterlist_do_add},
      {XmNcancelCallback, converterlist_do_delete},
      {XmNhelpCallback, vqc_do_help, "vqc_converter"}}},
    {"Help", found_button, "converter_selection", NO_SLOT, {{XmNactivateCallback, vqc_do_help, "vqc_converter"}}},
    {"*ItemsList", found, "converter_selection", NO_SLOT, {{XmNbrowseSelectionCallback, converterlist_do_display}}},
    {"converter_data_form", create_form, "converter_selection"},
    {"converter_arrowbox", XmCreateRowColumn, "converter_data_form"},
    {"converter_uparrow",
     XmCreateArrowButton,
     "converter_arrowbox",
     NO_SLOT,
     {{XmNactivateCallback, converterlist_do_up}}},
    {"converter_downarrow",
     XmCreateArrowButton,
     "converter_arrowbox",
     NO_SLOT,
     {{XmNactivateCallback, converterlist_do_down}}},
    {"converter_function_frame", XmCreateFrame, "converter_data_form"},
    {"converter_function_form", create_form, "converter_function_frame"},
    {"converter_proc", XmCreateTextField, "converter_function_form", CONVERTER_PROC},
    {"converter_proc_l", XmCreateLabel, "converter_function_form"},
    {"converter_vq_tog", XmCreateToggleButton, "converter_function_form", CONVERTER_VQ},
    {"converter_code_tog", XmCreateToggleButton, "converter_function_form", CONVERTER_CODE},
    {"converter_popup_frame", XmCreateFrame, "converter_data_form"},
    {"converter_popup_form", create_form, "converter_popup_frame"},
    {"convert_popup_t", XmCreateTextField, "converter_popup_form", CONVERT_POPUP},
    {"convert_popup_l", XmCreateLabel, "converter_popup_form"},
    {"convert_popup_b", XmCreatePushButton, "converter_popup_form", CONVERT_POPUP_B},
    {"converter_quitb", XmCreatePushButton, "converter_selection", NO_SLOT, {{XmNactivateCallback, entity_do_hide}}},

    {"familyinit_form",
     create_plain_box,
     "entity_view_form",
     FAMILYINIT_FORM,
     {{XmNhelpCallback, vqc_do_help, "vqc_family_init"}}},
    {"familyinit_work_area", create_form, "familyinit_form"},
    {"familyinit_init_text", XmCreateTextField, "familyinit_work_area", FAMILYINIT_INIT},
    {"familyinit_init_l", XmCreateLabel, "familyinit_work_area"},
    {"familyinit_add_vq_t", XmCreateToggleButton, "familyinit_work_area", FAMILYINIT_ADD_VQ},
    {"familyinit_add_code_t", XmCreateToggleButton, "familyinit_work_area", FAMILYINIT_ADD_CODE},
    {"familyinit_add_stub_t", XmCreateToggleButton, "familyinit_work_area", FAMILYINIT_ADD_STUB},
    {"familyinit_pre_shell_t", XmCreateToggleButton, "familyinit_work_area", FAMILYINIT_PRE_SHELL},
    {"familyinit_applyb",
     XmCreatePushButton,
     "familyinit_form",
     NO_SLOT,
     {{XmNactivateCallback, family_init_do_update}}},
    {"familyinit_cancelb", XmCreatePushButton, "familyinit_form", NO_SLOT, {{XmNactivateCallback, entity_do_hide}}},
    {"familyinit_helpb",
     XmCreatePushButton,
     "familyinit_form",
     NO_SLOT,
     {{XmNactivateCallback, vqc_do_help, "vqc_family_init"}}},
};

// Escape must not press the button that deletes.
const WidgetLink links[] = {
    {"entity_viewb", XmNsubMenuId, "view_pulldown"},
    {"codeheaderlist_selection", XmNcancelButton, "codeheaderlist_quitb"},
    {"confheaderlist_selection", XmNcancelButton, "confheaderlist_quitb"},
    {"familyheaderlist_selection", XmNcancelButton, "familyheaderlist_quitb"},
    {"aliaslist_selection", XmNcancelButton, "aliaslist_quitb"},
    {"enumlist_selection", XmNcancelButton, "enumlist_quitb"},
    {"widgetlist_selection", XmNcancelButton, "widgetlist_quitb"},
    {"converter_selection", XmNcancelButton, "converter_quitb"},
    {"entity_view_form", XmNcancelButton, "familyinit_cancelb"},  // of its own, the box would put it last
    {"familyinit_form", XmNdefaultButton, "familyinit_applyb"},
};

}  // namespace

Widget* create_entity_dialog(Widget parent) {
  Widget* record = build_dialog(parent, rows, ENTITY_SLOTS, links);
  if (!record) return nullptr;
  for (int view = ENTITY_VIEW_ALIASES; view <= ENTITY_VIEW_WIDGETS; ++view) {
    add_callback(record[view], XmNvalueChangedCallback, entity_do_show_page, record[page_of_view(view)]);
  }
  add_callback(record[CONVERT_POPUP_B], XmNactivateCallback, show_popups_cb, record[CONVERT_POPUP]);
  settoggle(record[ENTITY_VIEW_WIDGETS], true);
  return record;
}
