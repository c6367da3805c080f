#include "vqc/cmd/editors/dialogs/widgetedit_dialog.h"

#include <Xm/DialogS.h>
#include <Xm/Frame.h>
#include <Xm/Label.h>
#include <Xm/List.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/Separator.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/widgetedit.h"
#include "vqc/cmd/model/records.h"

namespace {

const WidgetRow rows[] = {
    {"widgetedit_dialog", XmCreateDialogShell, nullptr, WIDGETEDIT_SHELL, {{CLOSED, widgetedit_do_hide}}},
    {"widgetedit_form",
     create_form,
     "widgetedit_dialog",
     WIDGETEDIT_FORM,
     {{XmNhelpCallback, vqc_do_help, "vqc_w_edit"}}},
    {"widgetedit_applyb",
     XmCreatePushButton,
     "widgetedit_form",
     WIDGETEDIT_APPLY,
     {{XmNactivateCallback, widget_do_update}}},
    {"widgetedit_undob",
     XmCreatePushButton,
     "widgetedit_form",
     WIDGETEDIT_UNDO,
     {{XmNactivateCallback, widget_do_undo}}},
    {"widgetedit_closeb", XmCreatePushButton, "widgetedit_form", NO_SLOT, {{XmNactivateCallback, widgetedit_do_hide}}},
    {"widgetedit_helpb",
     XmCreatePushButton,
     "widgetedit_form",
     NO_SLOT,
     {{XmNactivateCallback, vqc_do_help, "vqc_w_edit"}}},
    {"widgetedit_separator", XmCreateSeparator, "widgetedit_form"},

    {"widgetedit_widget_frame", XmCreateFrame, "widgetedit_form"},
    {"widgetedit_widget_l", XmCreateLabel, "widgetedit_widget_frame"},
    {"widgetedit_widget_form", create_form, "widgetedit_widget_frame"},
    {"widgetedit_class_form", create_form, "widgetedit_widget_form"},
    {"widgetedit_include_filename", XmCreateTextField, "widgetedit_class_form", WIDGETEDIT_INCLUDE_FILENAME},
    {"widgetedit_include_filename_l", XmCreateLabel, "widgetedit_class_form"},
    {"widgetedit_defined_name", XmCreateTextField, "widgetedit_class_form", WIDGETEDIT_DEFINED_NAME},
    {"widgetedit_defined_name_l", XmCreateLabel, "widgetedit_class_form"},
    {"widgetedit_can_add_child", XmCreateTextField, "widgetedit_class_form", WIDGETEDIT_CAN_ADD_CHILD},
    {"widgetedit_can_add_child_l", XmCreateLabel, "widgetedit_class_form"},
    {"widgetedit_appropriate_parent", XmCreateTextField, "widgetedit_class_form", WIDGETEDIT_APPROPRIATE_PARENT},
    {"widgetedit_appropriate_parent_l", XmCreateLabel, "widgetedit_class_form"},
    {"widgetedit_realise", XmCreateTextField, "widgetedit_class_form", WIDGETEDIT_REALISE},
    {"widgetedit_realise_l", XmCreateLabel, "widgetedit_class_form"},
    {"widgetedit_abstract", XmCreateTextField, "widgetedit_class_form", WIDGETEDIT_ABSTRACT},
    {"widgetedit_abstract_l", XmCreateLabel, "widgetedit_class_form"},
    {"widgetedit_pixmap_t", XmCreateTextField, "widgetedit_class_form", WIDGETEDIT_PIXMAP},
    {"widgetedit_pixmap_l", XmCreateLabel, "widgetedit_class_form"},
    {"widgetedit_icon_form", create_form, "widgetedit_widget_form"},
    {"widgetedit_largeicon", XmCreateTextField, "widgetedit_icon_form", WIDGETEDIT_LARGEICON},
    {"widgetedit_largeicon_l", XmCreateLabel, "widgetedit_icon_form"},
    {"widgetedit_smallicon", XmCreateTextField, "widgetedit_icon_form", WIDGETEDIT_SMALLICON},
    {"widgetedit_smallicon_l", XmCreateLabel, "widgetedit_icon_form"},
    {"widgetedit_lrg_iconheader", XmCreateTextField, "widgetedit_icon_form", WIDGETEDIT_LRG_ICONHEADER},
    {"widgetedit_lrg_iconheader_l", XmCreateLabel, "widgetedit_icon_form"},
    {"widgetedit_sml_iconheader", XmCreateTextField, "widgetedit_icon_form", WIDGETEDIT_SML_ICONHEADER},
    {"widgetedit_sml_iconheader_l", XmCreateLabel, "widgetedit_icon_form"},
    {"widgetedit_w_help_doc", XmCreateTextField, "widgetedit_icon_form", WIDGETEDIT_W_HELP_DOC},
    {"widgetedit_w_help_doc_l", XmCreateLabel, "widgetedit_icon_form"},
    {"widgetedit_w_help_tag", XmCreateTextField, "widgetedit_icon_form", WIDGETEDIT_W_HELP_TAG},
    {"widgetedit_w_help_tag_l", XmCreateLabel, "widgetedit_icon_form"},
    {"widgetedit_d_help_doc", XmCreateTextField, "widgetedit_icon_form", WIDGETEDIT_D_HELP_DOC},
    {"widgetedit_d_help_doc_l", XmCreateLabel, "widgetedit_icon_form"},
    {"widgetedit_d_help_tag", XmCreateTextField, "widgetedit_icon_form", WIDGETEDIT_D_HELP_TAG},
    {"widgetedit_d_help_tag_l", XmCreateLabel, "widgetedit_icon_form"},
    {"widgetedit_toggles", XmCreateRowColumn, "widgetedit_widget_form"},
    {"widgetedit_can_create", XmCreateToggleButton, "widgetedit_toggles", WIDGETEDIT_CAN_CREATE},
    {"widgetedit_can_manage", XmCreateToggleButton, "widgetedit_toggles", WIDGETEDIT_CAN_MANAGE},
    {"widgetedit_can_edit_abstract", XmCreateToggleButton, "widgetedit_toggles", WIDGETEDIT_CAN_EDIT_ABSTRACT},
    {"widgetedit_generate_initialise", XmCreateToggleButton, "widgetedit_toggles", WIDGETEDIT_GENERATE_INITIALISE},
    {"widgetedit_disablegoto", XmCreateToggleButton, "widgetedit_toggles", WIDGETEDIT_DISABLEGOTO},
    {"widgetedit_disablefgswap", XmCreateToggleButton, "widgetedit_toggles", WIDGETEDIT_DISABLEFGSWAP},
    {"widgetedit_default_is_dont_free", XmCreateToggleButton, "widgetedit_toggles", WIDGETEDIT_DEFAULT_IS_DONT_FREE},

    {"widgetedit_resource_frame", XmCreateFrame, "widgetedit_form"},
    {"widgetedit_resource_l", XmCreateLabel, "widgetedit_resource_frame"},
    {"widgetedit_resource_form", create_form, "widgetedit_resource_frame"},
    {"we_resource_list",
     XmCreateScrolledList,
     "widgetedit_resource_form",
     WE_RESOURCE_LIST,
     {{XmNbrowseSelectionCallback, we_select_cb}}},
    {"widgetedit_resource_fields", create_form, "widgetedit_resource_form"},
    {"we_resource_t",
     XmCreateTextField,
     "widgetedit_resource_fields",
     WE_RESOURCE,
     {{XmNvalueChangedCallback, resource_dirty_cb}}},
    {"we_resource_l", XmCreateLabel, "widgetedit_resource_fields"},
    {"widgetedit_counter_t", XmCreateTextField, "widgetedit_resource_fields", WIDGETEDIT_COUNTER},
    {"widgetedit_counter_l", XmCreateLabel, "widgetedit_resource_fields"},
    {"widgetedit_popup_t",
     XmCreateTextField,
     "widgetedit_resource_fields",
     WIDGETEDIT_POPUP,
     {{XmNvalueChangedCallback, resource_dirty_cb}}},
    {"widgetedit_popup_l", XmCreateLabel, "widgetedit_resource_fields"},
    {"widgetedit_popup_b",
     XmCreatePushButton,
     "widgetedit_resource_fields",
     NO_SLOT,
     {{XmNactivateCallback, we_popup_cb}}},
    {"widgetedit_page_t",
     XmCreateTextField,
     "widgetedit_resource_fields",
     WIDGETEDIT_PAGE,
     {{XmNvalueChangedCallback, resource_dirty_cb}}},
    {"widgetedit_page_l", XmCreateLabel, "widgetedit_resource_fields"},
    {"widgetedit_page_b",
     XmCreatePushButton,
     "widgetedit_resource_fields",
     NO_SLOT,
     {{XmNactivateCallback, we_page_cb}}},
    {"widgetedit_visible_tog",
     XmCreateToggleButton,
     "widgetedit_resource_fields",
     WIDGETEDIT_VISIBLE,
     {{XmNvalueChangedCallback, resource_dirty_cb}}},
    {"widgetedit_get_free_m",
     XmCreatePulldownMenu,
     "widgetedit_resource_fields",
     NO_SLOT,
     {{XmNentryCallback, resource_dirty_cb}}},
    {"widgetedit_get_default_b", XmCreatePushButton, "widgetedit_get_free_m", WIDGETEDIT_GET_DEFAULT},
    {"widgetedit_get_free_b", XmCreatePushButton, "widgetedit_get_free_m", WIDGETEDIT_GET_FREE},
    {"widgetedit_get_dont_b", XmCreatePushButton, "widgetedit_get_free_m", WIDGETEDIT_GET_DONT},
    {"widgetedit_free_get_opt", XmCreateOptionMenu, "widgetedit_resource_fields", WIDGETEDIT_FREE_GET},
    {"widgetedit_free_get_l", XmCreateLabel, "widgetedit_resource_fields"},
    {"widgetedit_set_free_m",
     XmCreatePulldownMenu,
     "widgetedit_resource_fields",
     NO_SLOT,
     {{XmNentryCallback, resource_dirty_cb}}},
    {"widgetedit_set_default_b", XmCreatePushButton, "widgetedit_set_free_m", WIDGETEDIT_SET_DEFAULT},
    {"widgetedit_set_free_b", XmCreatePushButton, "widgetedit_set_free_m", WIDGETEDIT_SET_FREE},
    {"widgetedit_set_dont_b", XmCreatePushButton, "widgetedit_set_free_m", WIDGETEDIT_SET_DONT},
    {"widgetedit_free_set_opt", XmCreateOptionMenu, "widgetedit_resource_fields", WIDGETEDIT_FREE_SET},
    {"widgetedit_free_set_l", XmCreateLabel, "widgetedit_resource_fields"},
    {"widgetedit_access", XmCreateRowColumn, "widgetedit_resource_fields"},
    {"widgetedit_create_t", XmCreateToggleButton, "widgetedit_access", WIDGETEDIT_ACCESS_CREATE},
    {"widgetedit_set_t", XmCreateToggleButton, "widgetedit_access", WIDGETEDIT_ACCESS_SET},
    {"widgetedit_get_t", XmCreateToggleButton, "widgetedit_access", WIDGETEDIT_ACCESS_GET},
    {"widgetedit_access_l", XmCreateLabel, "widgetedit_resource_fields"},
    {"we_resource_upd_b",
     XmCreatePushButton,
     "widgetedit_resource_fields",
     WE_RESOURCE_UPDATE,
     {{XmNactivateCallback, we_popup_update_cb}}},
    {"we_resource_del_b",
     XmCreatePushButton,
     "widgetedit_resource_fields",
     WE_RESOURCE_DELETE,
     {{XmNactivateCallback, we_popup_delete_cb}}},
};

const WidgetLink links[] = {
    {"widgetedit_free_get_opt", XmNsubMenuId, "widgetedit_get_free_m"},
    {"widgetedit_free_set_opt", XmNsubMenuId, "widgetedit_set_free_m"},
    {"widgetedit_widget_form", XmNdefaultButton, "widgetedit_applyb"},
    {"widgetedit_resource_form", XmNdefaultButton, "we_resource_upd_b"},
    {"widgetedit_form", XmNcancelButton, "widgetedit_closeb"},
    {"widgetedit_form", XmNinitialFocus, "widgetedit_widget_frame"},
};

struct FreeModeButton {
  WidgeteditSlot button;
  FreeMode mode;
};
constexpr FreeModeButton free_mode_buttons[] = {
    {WIDGETEDIT_GET_DEFAULT, FreeMode::by_default}, {WIDGETEDIT_GET_FREE, FreeMode::free},
    {WIDGETEDIT_GET_DONT, FreeMode::dont_free},     {WIDGETEDIT_SET_DEFAULT, FreeMode::by_default},
    {WIDGETEDIT_SET_FREE, FreeMode::free},          {WIDGETEDIT_SET_DONT, FreeMode::dont_free},
};

}  // namespace

Widget* create_widgetedit_dialog(Widget parent) {
  Widget* record = build_dialog(parent, rows, WIDGETEDIT_SLOTS, links);
  if (!record) return nullptr;
  for (const auto& [button, mode] : free_mode_buttons) {
    XtVaSetValues(record[button], XmNuserData, static_cast<XtArgVal>(mode), nullptr);
  }
  return record;
}
