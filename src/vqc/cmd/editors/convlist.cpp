// The page of a family's resource converters.

#include "vqc/cmd/editors/convlist.h"

#include <Xm/Frame.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include "vqc/cmd/editors/completion.h"
#include "vqc/cmd/editors/entity_dialog.h"
#include "vqc/cmd/editors/field_words.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/list_page.h"
#include "vqc/cmd/editors/kit/part_names.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/kit/unapplied.h"
#include "vqc/cmd/editors/popuplist.h"

namespace vqc::editors {

namespace {

// clang-format off
const WidgetRow field_rows[] = {
    {"converter_function_frame", XmCreateFrame,        "converter_data_form"},
    {"converter_function_form",  create_form,          "converter_function_frame"},
    {"converter_proc",           XmCreateTextField,    "converter_function_form", {}, CONVERTER_PROC},
    {"converter_proc_l",         XmCreateLabel,        "converter_function_form"},
    {"converter_vq_tog",         XmCreateToggleButton, "converter_function_form", {}, CONVERTER_VQ},
    {"converter_code_tog",       XmCreateToggleButton, "converter_function_form", {}, CONVERTER_CODE},
    {"converter_not_applied",    create_unapplied_note,        "converter_function_form", {}, CONVERTER_NOT_APPLIED},
    {"converter_popup_frame",    XmCreateFrame,        "converter_data_form"},
    {"converter_popup_form",     create_form,          "converter_popup_frame"},
    {"convert_popup_t",          XmCreateTextField,    "converter_popup_form",    {}, CONVERT_POPUP},
    {"convert_popup_l",          XmCreateLabel,        "converter_popup_form"},
    {"convert_popup_b",          XmCreatePushButton,   "converter_popup_form"},
};

const WidgetLink links[] = {{"convert_popup_b", XmNactivateCallback, "convert_popup_t", show_popups_cb}};
// clang-format on

const ListPage converters = {.name = "converter",
                             .parent = "entity_view_form",
                             .slot = CONVERTER_BOX,
                             .topic = "vqc_converter",
                             .ok = converterlist_do_update,
                             .apply = converterlist_do_add,
                             .cancel = converterlist_do_delete,
                             .select = converterlist_do_display,
                             .type = do_type<converterlist_editor>,
                             .up = converterlist_do_up,
                             .down = converterlist_do_down,
                             .quit = entity_do_hide,
                             .form = "converter_data_form",
                             .rows = field_rows,
                             .links = links};

constexpr FieldOfWord fields[] = {
    {Kw::proc_name, CONVERTER_PROC},
    {Kw::dialog, CONVERT_POPUP},
    {Kw::add_in_vq, CONVERTER_VQ},
    {Kw::add_in_code, CONVERTER_CODE},
};

void show_converter(const ConverterDef& converter) {
  settextf(entity_dialog[CONVERTER_PROC], converter.proc_name);
  settextf(entity_dialog[CONVERT_POPUP], converter.dialog);
  settoggle(entity_dialog[CONVERTER_VQ], converter.add_in_vq);
  settoggle(entity_dialog[CONVERTER_CODE], converter.add_in_code);
}

void store_converter(ConverterDef& converter) {
  gettextf(entity_dialog[CONVERTER_PROC], &converter.proc_name);
  gettextf(entity_dialog[CONVERT_POPUP], &converter.dialog);
  gettoggle(entity_dialog[CONVERTER_VQ], &converter.add_in_vq);
  gettoggle(entity_dialog[CONVERTER_CODE], &converter.add_in_code);
  note_applied(entity_dialog[CONVERTER_PROC]);
}

/// A converter that another family has given its procedure keeps what it has.
void converter_added(Name name) {
  ConverterDef* converter = converter_ptr(name);
  if (!converter->proc_name) store_converter(*converter);
  show_converter(*converter);
}

void update_converter(Name name) {
  say_unless_changed("nothing_changed", {part_name(Part::converter, name).c_str()});
  dirty = true;
  store_converter(*converter_ptr(name));
}

void select_converter(Name name) {
  if (auto* element = converterlist_ptr(family_getcurrent(), name)) converterlist_setcurrent(element);
}

bool has_current_family() { return family_getcurrent() != nullptr; }

}  // namespace

DialogPart converterlist_page() { return list_page(converters); }

void watch_converter(Widget* record) {
  watch_fields({XtNameToWidget(record[CONVERTER_BOX], "converter_data_form")}, record[CONVERTER_NOT_APPLIED]);
}

ListEditor converterlist_editor{.part = Part::converter,
                                .dialog = entity_dialog,
                                .box_slot = CONVERTER_BOX,
                                .names = names_in_family<converter_kind>(),
                                .added = converter_added,
                                .accepted = update_converter,
                                .selected = select_converter};

Widget converterlist_field(Kw word) { return field_of_word(entity_dialog, fields, word); }

void complete_converter(Widget* record) {
  complete_value(record[CONVERTER_PROC], ValueKind::converter_procedure);
  complete_value(record[CONVERT_POPUP], ValueKind::popup);
}

void current_converter_changed(Reference<ConverterDef>* element) {
  if (!entity_dialog) return;
  if (!element) converterlist_editor.clear_name();
  show_converter(element ? *element->record : ConverterDef{});
}

void show_popups_cb(Widget w, XtPointer field, XtPointer) {
  const BusyCursor busy(w);
  popupdlg_set_initial_state(static_cast<Widget>(field), XtParent(entity_dialog[ENTITY_SHELL]), has_current_family);
}

}  // namespace vqc::editors
