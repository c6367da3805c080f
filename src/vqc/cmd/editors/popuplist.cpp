#include "vqc/cmd/editors/popuplist.h"

#include "vqc/cmd/editors/dialogs/popupedit_dialog.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/model/builtin.h"
#include "vqc/cmd/model/popup.h"

namespace {

void show_popup(const Text& name) { popup_setcurrent(popup_ptr(name)); }

}  // namespace

Picker popup_picker{
    .editor = {.dialog = popupedit_dialog, .box_slot = POPUPEDIT_BOX, .names = names_to_pick<popup_kind, popup_pool>()},
    .create = create_popupedit_dialog,
    .exists = [](const Text& name) { return popup_ptr(name) != nullptr; },
    .show = show_popup,
    .builtin_kind = BUILTIN_POPUP,
};

void popuplist_do_add(Widget w, XtPointer, XtPointer) {
  const Text name = popup_picker.name();
  if (name.empty()) return;
  const BusyCursor busy(w);
  if (check_builtin_name(name, BUILTIN_POPUP)) return show_popup(name);
  name_into_family(popup_picker, name);
  if (!popuplist_ptr(family_getcurrent(), name)) return;
  PopupDef* popup = popup_ptr(name);
  gettextf(popupedit_dialog[POPUPEDIT_INIT], &popup->dialog_init);
  gettextf(popupedit_dialog[POPUPEDIT_UPDATE], &popup->dialog_update);
}

void current_popup_changed(PopupDef* popup) {
  if (!popupedit_dialog) return;
  settextf(popup_picker.editor.name_field(), popup ? popup->name.c_str() : nullptr);
  settextf(popupedit_dialog[POPUPEDIT_INIT], popup ? popup->dialog_init.c_str() : nullptr);
  settextf(popupedit_dialog[POPUPEDIT_UPDATE], popup ? popup->dialog_update.c_str() : nullptr);
}
