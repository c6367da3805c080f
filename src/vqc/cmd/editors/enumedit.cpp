// The enumeration editor: the type and the entries of the family's current enumeration.

#include "vqc/cmd/editors/enumedit.h"

#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/TextF.h>

#include "vqc/cmd/editors/field_words.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/list_page.h"
#include "vqc/cmd/editors/kit/part_names.h"
#include "vqc/cmd/editors/kit/search_field.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/kit/unapplied.h"
#include "vqc/cmd/editors/title.h"

namespace vqc::editors {

namespace {

enum Slot { SHELL, BOX, TYPE, CODE_SYMBOL, RESFILE_SYMBOL, SEARCH, NOT_APPLIED, SLOTS };

// clang-format off
const WidgetRow shell_rows[] = {{"enumedit_dialog", XmCreateDialogShell, nullptr, {}, SHELL}};

const WidgetRow field_rows[] = {
    {"search_row",                create_form,       "enumedit_work_form"},
    {"enumedit_search",           XmCreateTextField, "search_row", {}, SEARCH},
    {"enumedit_search_l",         XmCreateLabel,     "search_row"},
    {"enumedit_type",             XmCreateTextField, "enumedit_work_form", {}, TYPE},
    {"enumedit_type_l",           XmCreateLabel,     "enumedit_work_form"},
    {"enumedit_code_symbol",      XmCreateTextField, "enumedit_work_form", {}, CODE_SYMBOL},
    {"enumedit_code_symbol_l",    XmCreateLabel,     "enumedit_work_form"},
    {"enumedit_resfile_symbol",   XmCreateTextField, "enumedit_work_form", {}, RESFILE_SYMBOL},
    {"enumedit_resfile_symbol_l", XmCreateLabel,     "enumedit_work_form"},
    {"enumedit_not_applied",      create_unapplied_note,     "enumedit_work_form", {}, NOT_APPLIED},
};
// clang-format on

const ListPage entries = {.name = "enumedit",
                          .parent = "enumedit_dialog",
                          .slot = BOX,
                          .topic = "vqc_enum_edit",
                          .ok = enumentry_do_update,
                          .apply = enumentry_do_add,
                          .cancel = enumentry_do_delete,
                          .select = enumentry_do_display,
                          .type = do_type<enumentry_editor>,
                          .up = enumentry_do_up,
                          .down = enumentry_do_down,
                          .quit = enumedit_do_hide,
                          .form = "enumedit_work_form",
                          .has_status_line = true,
                          .rows = field_rows};

constexpr FieldOfWord fields[] = {
    {Kw::type_name, TYPE},
    {Kw::code_symbol, CODE_SYMBOL},
    {Kw::resfile_symbol, RESFILE_SYMBOL},
};

EnumDef* current_enum() {
  const Reference<EnumDef>* element = enumlist_getcurrent();
  return element ? element->record : nullptr;
}

void show_symbols(const EnumEntry& entry) {
  settextf(enumedit_dialog[CODE_SYMBOL], entry.code_symbol);
  settextf(enumedit_dialog[RESFILE_SYMBOL], entry.resfile_symbol);
}

void store_symbols(Name name) {
  EnumEntry* entry = enumentry_ptr(current_enum(), name);
  gettextf(enumedit_dialog[CODE_SYMBOL], &entry->code_symbol);
  gettextf(enumedit_dialog[RESFILE_SYMBOL], &entry->resfile_symbol);
  note_applied(enumedit_dialog[RESFILE_SYMBOL]);
}

void show_entry(Name name) {
  const EnumEntry* entry = enumentry_ptr(current_enum(), name);
  if (!entry) return;
  settextf(enumedit_dialog[TYPE], current_enum()->type_name);
  show_symbols(*entry);
}

ErrorCode delete_entry(Name name) {
  show_symbols({});
  return enumentry_delete(current_enum(), name);
}

std::vector<std::string> entry_names() {
  std::vector<std::string> names;
  for (const EnumEntry& entry : current_enum()->entries) names.emplace_back(entry.name.view());
  return names;
}

}  // namespace

ListEditor enumentry_editor{
    .part = Part::entry,
    .dialog = enumedit_dialog,
    .box_slot = BOX,
    .names = {.has = [](Name name) { return enumentry_ptr(current_enum(), name) != nullptr; },
              .add = [](Name name) { return enumentry_add(name, current_enum()); },
              .remove = delete_entry,
              .position = [](Name name) { return enumentry_index(current_enum(), name); },
              .move_up = [](Name name, bool) { return enumentry_move_up(current_enum(), name); },
              .move_down = [](Name name, bool) { return enumentry_move_down(current_enum(), name); },
              .names = entry_names},
    .added = store_symbols,
    .accepted = store_symbols,
    .selected = show_entry,
    .delete_clears_name = true,
};

Widget* create_enumedit_dialog(Widget parent) {
  Widget* record = build_dialog(parent, {part(shell_rows), list_page(entries)}, SLOTS);
  if (!record) return nullptr;
  search_in(record[SEARCH], [] { return &enumentry_editor; });
  watch_fields({record[TYPE], record[CODE_SYMBOL], record[RESFILE_SYMBOL]}, record[NOT_APPLIED]);
  return record;
}

void enumedit_show() {
  if (!enumedit_dialog) {
    if (!ensure_dialog(enumedit_dialog, create_enumedit_dialog)) return;
    enumedit_setenum(enumlist_getcurrent());
  }
  show_dialog(enumedit_dialog[BOX]);
}

void enumedit_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(enumedit_dialog[BOX]); }

/// An enumeration without entries is shown as none at all.
void enumedit_setenum(const Reference<EnumDef>* element) {
  if (!enumedit_dialog) return;
  const EnumDef* shown = element && enumentry_count(element->record) > 0 ? element->record : nullptr;
  vq_set_title(enumedit_dialog[SHELL], "enum_title", shown ? shown->name : Text());
  settextf(enumedit_dialog[TYPE], shown ? shown->type_name : Text());
  show_symbols({});
  if (shown) {
    refill(enumentry_editor, true);
  } else {  // the buttons stay as they are
    list_show(enumentry_editor.list(), {});
    enumentry_editor.clear_name();
  }
}

Widget enumedit_field(Kw word) { return field_of_word(enumedit_dialog, fields, word); }

void enumentry_do_update(Widget w, XtPointer, XtPointer call) {
  EnumDef* enumeration = current_enum();
  if (!enumeration) return say("no_enumeration");
  say_unless_changed("nothing_changed", {part_name(Part::enumeration, enumeration->name).c_str()});
  dirty = true;
  gettextf(enumedit_dialog[TYPE], &enumeration->type_name);
  note_one_applied(enumedit_dialog[TYPE]);
  with_name(w, call, enumentry_editor, accept_name);
}

}  // namespace vqc::editors
