#ifndef VQC_CMD_EDITORS_DIALOGS_ENTITY_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_ENTITY_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// Everything that belongs to a family: a View toggle and a page for each kind, in the same order, and their fields.
enum EntitySlot {
  ENTITY_SHELL,
  ENTITY_FORM,
  ENTITY_VIEW_ALIASES,
  ENTITY_VIEW_CONVERTERS,
  ENTITY_VIEW_ENUMS,
  ENTITY_VIEW_CODE_HEADERS,
  ENTITY_VIEW_CONFIG_HEADERS,
  ENTITY_VIEW_FAMILY_HEADERS,
  ENTITY_VIEW_FAMILY_INIT,
  ENTITY_VIEW_WIDGETS,
  ALIASLIST_BOX,
  CONVERTER_BOX,
  ENUMLIST_BOX,
  CODEHEADERLIST_BOX,
  CONFHEADERLIST_BOX,
  FAMILYHEADERLIST_BOX,
  FAMILYINIT_FORM,
  WIDGETLIST_BOX,
  ALIASLIST_TO_NAME,
  CONVERTER_PROC,
  CONVERTER_VQ,
  CONVERTER_CODE,
  CONVERT_POPUP,
  CONVERT_POPUP_B,
  FAMILYINIT_INIT,
  FAMILYINIT_ADD_VQ,
  FAMILYINIT_ADD_CODE,
  FAMILYINIT_ADD_STUB,
  FAMILYINIT_PRE_SHELL,
  ENTITY_SLOTS,
};

/// The slot of the page that a View toggle shows.
constexpr int page_of_view(int view) { return view - ENTITY_VIEW_ALIASES + ALIASLIST_BOX; }

/// Null until the dialog is first needed.
inline Widget* entity_dialog = nullptr;

Widget* create_entity_dialog(Widget parent);
inline void delete_entity_dialog(Widget* record) { delete_dialog(record); }

#endif
