#include "vqc/cmd/editors/convlist.h"

#include "vqc/cmd/editors/dialogs/entity_dialog.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/model/converter.h"

namespace {

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
}

/// A converter that another family has given its procedure keeps what it has.
void converter_added(const Text& name) {
  ConverterDef* converter = converter_ptr(name);
  if (!converter->proc_name) store_converter(*converter);
  show_converter(*converter);
}

void update_converter(const Text& name) {
  dirty = true;
  store_converter(*converter_ptr(name));
}

void select_converter(const Text& name) {
  if (auto* element = converterlist_ptr(family_getcurrent(), name)) converterlist_setcurrent(element);
}

}  // namespace

ListEditor converterlist_editor{.dialog = entity_dialog,
                                .box_slot = CONVERTER_BOX,
                                .names = names_in_family<converter_kind>(),
                                .added = converter_added,
                                .accepted = update_converter,
                                .selected = select_converter};

void current_converter_changed(Reference<ConverterDef>* element) {
  if (!entity_dialog) return;
  if (!element) converterlist_editor.clear_name();
  show_converter(element ? *element->record : ConverterDef{});
}
