// The popup editor, which picks a resource popup and edits the procedures of those that are not predefined.

#include "vqc/cmd/editors/popuplist.h"

#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/TextF.h>

#include "vqc/cmd/editors/completion.h"
#include "vqc/cmd/editors/field_words.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/list_page.h"
#include "vqc/cmd/editors/kit/part_names.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/kit/unapplied.h"

namespace vqc::editors {

namespace {

enum Slot { SHELL, BOX, INIT, UPDATE, SEARCH, NOT_APPLIED, SLOTS };

// clang-format off
const WidgetRow shell_rows[] = {{"popupedit_dialog", XmCreateDialogShell, nullptr, {}, SHELL}};

const WidgetRow work_rows[] = {
    {"search_row",                  create_form,        "popupedit_work_area"},
    {"popupedit_search",            XmCreateTextField,  "search_row", {}, SEARCH},
    {"popupedit_search_l",          XmCreateLabel,      "search_row"},
    {"dialog_init",                 XmCreateTextField,  "popupedit_work_area", {}, INIT},
    {"converter_dialogue_init_l",   XmCreateLabel,      "popupedit_work_area"},
    {"dialog_update",               XmCreateTextField,  "popupedit_work_area", {}, UPDATE},
    {"converter_dialogue_update_l", XmCreateLabel,      "popupedit_work_area"},
    {"popupedit_applytb",           XmCreatePushButton, "popupedit_work_area", on_press(popuplist_do_add)},
    {"popupedit_deletetb",          XmCreatePushButton, "popupedit_work_area", on_press(popuplist_do_delete)},
    {"popupedit_not_applied",       create_unapplied_note,      "popupedit_work_area", {}, NOT_APPLIED},
};
// clang-format on

const ListPage popups = {.name = "popupedit",
                         .parent = "popupedit_dialog",
                         .slot = BOX,
                         .topic = "vqc_popup_edit",
                         .apply = popuplist_do_apply,
                         .cancel = popuplist_do_hide,
                         .select = popuplist_do_display,
                         .form = "popupedit_work_area",
                         .has_status_line = true,
                         .rows = work_rows};

constexpr FieldOfWord fields[] = {{Kw::dialog_init, INIT}, {Kw::dialog_update, UPDATE}};

void show_popup(Name name) { popup_setcurrent(popup_ptr(name)); }

}  // namespace

Widget* create_popupedit_dialog(Widget parent) {
  Widget* record = build_dialog(parent, {part(shell_rows), list_page(popups)}, SLOTS);
  if (!record) return nullptr;
  complete_value(record[INIT], ValueKind::popup_init_procedure);
  complete_value(record[UPDATE], ValueKind::popup_update_procedure);
  search_picker<popup_picker>(record[SEARCH]);
  watch_fields({record[INIT], record[UPDATE]}, record[NOT_APPLIED]);
  return record;
}

Picker popup_picker{
    .editor = {.part = Part::popup,
               .dialog = popupedit_dialog,
               .box_slot = BOX,
               .names = names_to_pick<popup_kind, popup_pool>()},
    .create = create_popupedit_dialog,
    .exists = [](Name name) { return popup_ptr(name) != nullptr; },
    .show = show_popup,
    .builtin_kind = BUILTIN_POPUP,
};

void popuplist_do_add(Widget w, XtPointer, XtPointer) {
  const std::string name = popup_picker.name();
  if (name.empty()) return say("no_name");
  const BusyCursor busy(w);
  if (check_builtin_name(name, BUILTIN_POPUP)) {
    say("predefined", {part_name(Part::popup, Name(name)).c_str()});
    return show_popup(name);
  }
  name_into_family(popup_picker, name);
  if (!popuplist_ptr(family_getcurrent(), name)) return;
  PopupDef* popup = popup_ptr(name);
  gettextf(popupedit_dialog[INIT], &popup->dialog_init);
  gettextf(popupedit_dialog[UPDATE], &popup->dialog_update);
  note_applied(popupedit_dialog[UPDATE]);
}

Widget popupedit_field(Kw word) { return field_of_word(popupedit_dialog, fields, word); }

void current_popup_changed(PopupDef* popup) {
  if (!popupedit_dialog) return;
  settextf(popup_picker.editor.name_field(), popup ? popup->name : Text());
  settextf(popupedit_dialog[INIT], popup ? popup->dialog_init : Text());
  settextf(popupedit_dialog[UPDATE], popup ? popup->dialog_update : Text());
}

}  // namespace vqc::editors
