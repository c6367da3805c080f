#ifndef VQC_CMD_EDITORS_ENTITY_DIALOG_H
#define VQC_CMD_EDITORS_ENTITY_DIALOG_H

// The record of the family dialog, which its frame and its pages share.

#include "vqc/cmd/editors/kit/dialog.h"

namespace vqc::editors {

/// The frame, the toggles of the View menu, their pages in the same order, and what they hold.
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
  ENTITY_SEARCH,
  ALIASLIST_TO_NAME,
  CONVERTER_PROC,
  CONVERTER_VQ,
  CONVERTER_CODE,
  CONVERT_POPUP,
  FAMILYINIT_INIT,
  FAMILYINIT_ADD_VQ,
  FAMILYINIT_ADD_CODE,
  FAMILYINIT_ADD_STUB,
  FAMILYINIT_PRE_SHELL,
  ALIASLIST_NOT_APPLIED,
  CONVERTER_NOT_APPLIED,
  FAMILYINIT_NOT_APPLIED,
  ENTITY_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* entity_dialog = nullptr;

/// Closes it, for the button on each of its pages. Nothing is applied or discarded.
inline void entity_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(entity_dialog[ENTITY_FORM]); }

}  // namespace vqc::editors

#endif
