// Finds out what the user has chosen in a window.

#include "vqc/cmd/editors/chosen_spot.h"

#include <Xm/MenuShell.h>

#include <string>

#include "vqc/cmd/editors/convlist.h"
#include "vqc/cmd/editors/entity.h"
#include "vqc/cmd/editors/enumedit.h"
#include "vqc/cmd/editors/enumlist.h"
#include "vqc/cmd/editors/familyinit.h"
#include "vqc/cmd/editors/familylist.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/widgets.h"
#include "vqc/cmd/editors/pagelist.h"
#include "vqc/cmd/editors/popuplist.h"
#include "vqc/cmd/editors/resource_window.h"
#include "vqc/cmd/editors/widgetedit.h"
#include "vqc/cmd/editors/widgetlist.h"
#include "vqc/cmd/lookup/namings.h"

namespace vqc::editors {

namespace {

using Chosen = std::optional<Spot>;

/// What stands in a field, as a thing of that kind; none where nothing stands there.
Chosen named_in(Widget field, Part part) {
  const std::string name = gettextf(field);
  return name.empty() ? std::nullopt : Chosen({part, name});
}

/// What the field names that has the keyboard, if it is one of these.
template <class Record, std::size_t n>
Chosen named_by(Widget focus, const Field<Record> (&fields)[n], Widget (*field_for)(Kw word)) {
  for (const Field<Record>& field : fields) {
    const std::optional<Part> part = named_by(field.kind);
    if (part && focus == field_for(field.word)) return named_in(focus, *part);
  }
  return std::nullopt;
}

/// The record that stands in the name field of a list editor, which the buttons act on.
Chosen in_name_field(const ListEditor& editor, const std::string& of = {}) {
  const std::string name = gettextf(editor.name_field());
  return editor.names.has(name) ? Chosen({editor.part, name, of}) : std::nullopt;
}

Chosen in_main_window(Widget) { return in_name_field(family_editor); }

Chosen on_page_of_family() {
  if (const ListEditor* editor = entity_shown_list()) return in_name_field(*editor);
  const Family* family = family_getcurrent();
  return family ? Chosen({Part::family, string_of(family->name)}) : std::nullopt;
}

Chosen in_family_dialog(Widget focus) {
  if (Chosen named = named_by(focus, converter_fields, converterlist_field)) return named;
  if (Chosen named = named_by(focus, family_init_fields, familyinit_field)) return named;
  return on_page_of_family();
}

bool is_inside(Widget w, Widget ancestor) {
  while (w && w != ancestor) w = XtParent(w);
  return w != nullptr;
}

Chosen resource_of(const WidgetDef& widget) {
  const std::string name = gettextf(resource_field(Kw::resource_definitions));
  return resource_ptr(&widget, name) ? Chosen({Part::resource, name, string_of(widget.name)}) : std::nullopt;
}

Chosen named_by_resource(Widget focus) {
  if (focus == resource_field(Kw::page)) return named_in(focus, Part::page);
  if (focus == resource_field(Kw::popup)) return named_in(focus, Part::popup);
  return std::nullopt;
}

Chosen in_widget_editor(Widget focus) {
  if (Chosen named = named_by(focus, widget_fields, widgetedit_field)) return named;
  if (Chosen named = named_by_resource(focus)) return named;
  const Reference<WidgetDef>* element = widgetlist_getcurrent();
  if (!element) return std::nullopt;
  Widget resources = XtParent(XtParent(resource_field(Kw::resource_definitions)));
  const Chosen resource = is_inside(focus, resources) ? resource_of(*element->record) : std::nullopt;
  return resource ? resource : Chosen({Part::widget, string_of(element->record->name)});
}

Chosen in_enumeration_editor(Widget focus) {
  const Reference<EnumDef>* element = enumlist_getcurrent();
  if (!element) return std::nullopt;
  const std::string name = string_of(element->record->name);
  const bool is_on_type = focus == enumedit_field(Kw::type_name);
  const Chosen entry = is_on_type ? std::nullopt : in_name_field(enumentry_editor, name);
  return entry ? entry : Chosen({Part::enumeration, name});
}

Chosen in_popup_editor(Widget focus) {
  if (Chosen named = named_by(focus, popup_fields, popupedit_field)) return named;
  const std::string name = popup_picker.name();
  return popup_picker.exists(name) ? Chosen({Part::popup, name}) : std::nullopt;
}

Chosen in_page_editor(Widget) {
  const std::string name = page_picker.name();
  return page_picker.exists(name) ? Chosen({Part::page, name}) : std::nullopt;
}

Chosen in_resource_window(Widget) { return selected_resource(); }

/// A window, by the record of its dialog, which has the shell in front.
struct Window {
  Widget*& dialog;
  Chosen (*chosen)(Widget focus);
};
const Window windows[] = {
    {family_dialog, in_main_window},        {entity_dialog, in_family_dialog},
    {widgetedit_dialog, in_widget_editor},  {enumedit_dialog, in_enumeration_editor},
    {popupedit_dialog, in_popup_editor},    {pageedit_dialog, in_page_editor},
    {resources_dialog, in_resource_window},
};

}  // namespace

std::optional<Spot> chosen_spot(Widget w) {
  Widget shell = window_around(w);
  for (const auto& [dialog, chosen] : windows) {
    if (dialog && dialog[0] == shell) return chosen(XmGetFocusWidget(shell));
  }
  return std::nullopt;
}

}  // namespace vqc::editors
