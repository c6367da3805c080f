#include "vqc/cmd/editors/entity.h"

#include <Xm/SelectioB.h>
#include <Xm/ToggleB.h>

#include "vqc/cmd/editors/aliaslist.h"
#include "vqc/cmd/editors/convlist.h"
#include "vqc/cmd/editors/dialogs/entity_dialog.h"
#include "vqc/cmd/editors/dialogs/family_dialog.h"
#include "vqc/cmd/editors/enumlist.h"
#include "vqc/cmd/editors/headerlists.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/popuplist.h"
#include "vqc/cmd/editors/title.h"
#include "vqc/cmd/editors/widgetlist.h"
#include "vqc/cmd/model/family.h"

namespace {

struct InitFlag {
  EntitySlot toggle;
  bool FamilyInit::*flag;
};
constexpr InitFlag init_flags[] = {
    {FAMILYINIT_ADD_VQ, &FamilyInit::generate_family_init_vq},
    {FAMILYINIT_ADD_CODE, &FamilyInit::generate_family_init_code},
    {FAMILYINIT_ADD_STUB, &FamilyInit::generate_family_init_stub},
    {FAMILYINIT_PRE_SHELL, &FamilyInit::generate_family_init_pre_shell},
};

/// Where the user begins on a page.
Widget first_field(Widget page) {
  return page == entity_dialog[FAMILYINIT_FORM] ? entity_dialog[FAMILYINIT_INIT]
                                                : XmSelectionBoxGetChild(page, XmDIALOG_TEXT);
}

/// Maps one page, with the focus; the others stay managed, and filled.
void map_page(Widget shown) {
  for (int view = ENTITY_VIEW_ALIASES; view <= ENTITY_VIEW_WIDGETS; ++view) {
    Widget page = entity_dialog[page_of_view(view)];
    XtSetMappedWhenManaged(page, page == shown ? True : False);
  }
  XtVaSetValues(entity_dialog[ENTITY_FORM], XmNinitialFocus, shown, nullptr);
  XmProcessTraversal(first_field(shown), XmTRAVERSE_CURRENT);
}

bool has_current_family() { return family_getcurrent() != nullptr; }

bool create_on_first_use() {
  if (entity_dialog) return true;
  if (!made(entity_dialog, create_entity_dialog, family_dialog[FAMILY_SHELL])) return false;
  entity_setfamily(family_getcurrent());
  map_page(entity_dialog[WIDGETLIST_BOX]);
  return true;
}

}  // namespace

int entity_show() {
  if (!create_on_first_use()) return 0;
  show_dialog(entity_dialog[ENTITY_FORM]);
  return 1;
}

void entity_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(entity_dialog[ENTITY_FORM]); }

void entity_do_show_page(Widget toggle, XtPointer page, XtPointer call) {
  if (!static_cast<XmToggleButtonCallbackStruct*>(call)->set) return;
  const BusyCursor busy(toggle);
  map_page(static_cast<Widget>(page));
}

int entity_setfamily(Family* family) {
  if (!entity_dialog) return 0;
  vq_set_title(entity_dialog[ENTITY_SHELL], "family_title", family ? family->name.c_str() : nullptr);
  enumlist_setfamily(family);
  aliaslist_setfamily(family);
  converterlist_setfamily(family);
  codeheaderlist_setfamily(family);
  confheaderlist_setfamily(family);
  familyheaderlist_setfamily(family);
  familyinit_setfamily(family);
  widgetlist_setfamily(family);
  return 1;
}

void show_popups_cb(Widget w, XtPointer field, XtPointer) {
  const BusyCursor busy(w);
  popupdlg_set_initial_state(static_cast<Widget>(field), XtParent(entity_dialog[ENTITY_SHELL]), has_current_family);
}

void familyinit_setfamily(const Family* family) {
  if (!entity_dialog) return;
  settextf(entity_dialog[FAMILYINIT_INIT], family ? family->family_init.c_str() : nullptr);
  for (const auto& [toggle, flag] : init_flags) settoggle(entity_dialog[toggle], family && family->*flag);
}

void family_init_do_update(Widget, XtPointer, XtPointer) {
  Family* family = family_getcurrent();
  if (!entity_dialog || !family) return;
  family->family_init = gettextf(entity_dialog[FAMILYINIT_INIT]);  // an empty text is a text here
  for (const auto& [toggle, flag] : init_flags) gettoggle(entity_dialog[toggle], &(family->*flag));
}
