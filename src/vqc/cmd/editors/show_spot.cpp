// Opens windows, selects records and finds fields, so that what a spot names is under the user's hands.

#include "vqc/cmd/editors/show_spot.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "vqc/cmd/editors/aliaslist.h"
#include "vqc/cmd/editors/convlist.h"
#include "vqc/cmd/editors/entity.h"
#include "vqc/cmd/editors/enumedit.h"
#include "vqc/cmd/editors/enumlist.h"
#include "vqc/cmd/editors/familyinit.h"
#include "vqc/cmd/editors/familylist.h"
#include "vqc/cmd/editors/headerlists.h"
#include "vqc/cmd/editors/kit/given_options.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/options.h"
#include "vqc/cmd/editors/pagelist.h"
#include "vqc/cmd/editors/popuplist.h"
#include "vqc/cmd/editors/stop.h"
#include "vqc/cmd/editors/widgetedit.h"
#include "vqc/cmd/editors/widgetlist.h"
#include "vqc/cmd/lookup/uses.h"
#include "vqc/cmd/savefile/keywords.h"

namespace vqc::editors {

namespace {

/// A kind of record that families have.
struct KindOfRecord {
  Part part;
  Kw word;  // under which families name them
  bool (*is_in)(const Family& family, Name name);
  bool (*is_current)(Name name);
  ListEditor* editor = nullptr;  // on its page of the family dialog; null for what a picker shows
  EntitySlot page = ENTITY_FORM;
};

template <auto list>
bool is_in(const Family& family, Name name) {
  return (family.*list).find(name) != nullptr;
}
template <auto& kind>
bool is_current(Name name) {
  const auto* element = kind.current();
  return element && name_of(*element) == name;
}
bool is_never_current(Name) { return false; }

// clang-format off
const KindOfRecord kinds[] = {
    {Part::widget,        Kw::widget,        is_in<&Family::widgets>,        is_current<widget_kind>,    &widgetlist_editor,       WIDGETLIST_BOX},
    {Part::enumeration,   Kw::enumeration,   is_in<&Family::enumerations>,   is_current<enum_kind>,      &enumlist_editor,         ENUMLIST_BOX},
    {Part::alias,         Kw::alias,         is_in<&Family::aliases>,        is_current<alias_kind>,     &aliaslist_editor,        ALIASLIST_BOX},
    {Part::converter,     Kw::converter,     is_in<&Family::converters>,     is_current<converter_kind>, &converterlist_editor,    CONVERTER_BOX},
    {Part::code_header,   Kw::header,        is_in<&Family::code_headers>,   is_never_current,           &codeheaderlist_editor,   CODEHEADERLIST_BOX},
    {Part::family_header, Kw::family_header, is_in<&Family::family_headers>, is_never_current,           &familyheaderlist_editor, FAMILYHEADERLIST_BOX},
    {Part::config_header, Kw::cheader,       is_in<&Family::config_headers>, is_never_current,           &confheaderlist_editor,   CONFHEADERLIST_BOX},
    {Part::popup,         Kw::popup,         is_in<&Family::popups>,         is_never_current},
    {Part::page,          Kw::page,          is_in<&Family::pages>,          is_never_current},
};
// clang-format on

const KindOfRecord& kind_of(Part part) { return *std::ranges::find(kinds, part, &KindOfRecord::part); }

std::optional<Kw> word_of(const Spot& spot) {
  const Keyword* keyword = find_keyword(spot.field);
  return keyword ? std::optional(keyword->kw) : std::nullopt;
}

/// The field that a spot names, as its editor knows it; null for none.
Widget field_of(const Spot& spot, Widget (*field_for)(Kw word)) {
  const std::optional<Kw> word = word_of(spot);
  return word ? field_for(*word) : nullptr;
}

bool refuse(const char* message, const std::string& name) {
  say(message, {name.c_str()});
  return false;
}

/// Gives a field the keyboard; where there is none, another widget of its window.
bool go_into(Widget field, Widget otherwise) {
  give_keyboard(field ? field : otherwise);
  return true;
}

// What is current already stays: what has been typed into its fields, and not applied, is not lost.

void choose_family(const Family& family) {
  if (&family != family_getcurrent()) choose_name(family_editor, family.name);
  list_select(family_editor.list(), family.name);
}

void choose_record(const KindOfRecord& kind, Name name) {
  if (!kind.is_current(name)) choose_name(*kind.editor, name);
  list_select(kind.editor->list(), name);
}

/// The family of a name if it has the record, else the first that has it; null for none.
const Family* family_with(const KindOfRecord& kind, Name record, Name family) {
  const Family* named = edited_document.families.find(family);
  if (named && kind.is_in(*named, record)) return named;
  for (const Family& each : edited_document.families) {
    if (kind.is_in(each, record)) return &each;
  }
  return nullptr;
}

bool show_main_window() {
  show_dialog(XtParent(family_editor.box()));
  return go_into(nullptr, family_editor.name_field());
}

bool show_page(const Family& family, EntitySlot page) {
  choose_family(family);
  return entity_show_page(page);
}

/// A family's field is on the page of its initialisation, or is a list with a page of its own.
bool show_family(const Spot& spot) {
  const Family* family = edited_document.families.find(Name(spot.name));
  if (!family) return refuse("spot_gone", spot.name);
  const auto kind = std::ranges::find(kinds, word_of(spot), [](const auto& each) { return std::optional(each.word); });
  if (kind != std::end(kinds) && kind->editor) return show_page(*family, kind->page);
  choose_family(*family);
  if (!word_of(spot) || kind != std::end(kinds)) return show_main_window();
  return show_page(*family, FAMILYINIT_FORM) &&
         go_into(field_of(spot, familyinit_field), familyinit_field(Kw::family_init));
}

/// Shows a record on its page of a family that has it.
bool show_record(Part part, const std::string& name, const std::string& family_name) {
  const KindOfRecord& kind = kind_of(part);
  const Family* family = family_with(kind, name, family_name);
  if (!family) return refuse("spot_in_no_family", name);
  if (!show_page(*family, kind.page)) return false;
  choose_record(kind, name);
  return true;
}

bool show_widget(const Spot& spot) {
  if (!show_record(Part::widget, spot.name, spot.of)) return false;
  widgetedit_turn_to();
  return go_into(field_of(spot, widgetedit_field), widgetedit_field(Kw::include_filename));
}

bool show_resource(const Spot& spot) {
  if (!show_record(Part::widget, spot.of, {})) return false;
  widgetedit_turn_to();
  if (!widgetedit_choose_resource(spot.name)) return refuse("spot_gone", spot.name);
  return go_into(field_of(spot, resource_field), resource_field(Kw::resource_definitions));
}

bool show_enumeration(const Spot& spot) {
  if (!show_record(Part::enumeration, spot.name, spot.of)) return false;
  enumedit_show();
  return go_into(field_of(spot, enumedit_field), enumentry_editor.name_field());
}

bool show_entry(const Spot& spot) {
  if (!show_record(Part::enumeration, spot.of, {})) return false;
  enumedit_show();
  if (!enumentry_editor.names.has(spot.name)) return refuse("spot_gone", spot.name);
  if (shown_name(enumentry_editor) != spot.name) choose_name(enumentry_editor, spot.name);
  return go_into(field_of(spot, enumedit_field), enumentry_editor.name_field());
}

/// A record the fields of which are on its page.
bool show_on_page(const Spot& spot, Widget (*field_for)(Kw word)) {
  if (!show_record(spot.part, spot.name, spot.of)) return false;
  return go_into(field_of(spot, field_for), kind_of(spot.part).editor->name_field());
}

/// The family whose names a picker adds and removes: one that has the name, the current one if it does. While the
/// picker picks for a field, it is that field's.
void choose_family_for(const Picker& picker, const Spot& spot) {
  if (is_up(picker)) return;
  const Family* current = family_getcurrent();
  const Name wanted = spot.of.empty() && current ? Name(current->name) : Name(spot.of);
  if (const Family* family = family_with(kind_of(spot.part), spot.name, wanted)) choose_family(*family);
}

/// Pickers show what no family has, too.
bool show_in_picker(const Spot& spot, Picker& picker, Widget (*field_for)(Kw word)) {
  if (!picker.exists(spot.name)) return refuse("spot_gone", spot.name);
  choose_family_for(picker, spot);
  open_picker_on(picker, spot.name);
  return go_into(field_of(spot, field_for), picker.editor.name_field());
}

bool show_stop_list_dialog() {
  stoplist_do_popup(main_shell(), nullptr, nullptr);
  return true;
}

bool show_table_names(const Spot& spot) {
  if (!vqc_generate_options()) return refuse("spot_without_options", spot.field);
  genopt_do_popup(main_shell(), nullptr, nullptr);
  return go_into(field_of(spot, options_field), options_field(Kw::generate_family_table_string));
}

/// A procedure is shown where it is named first.
bool show_procedure(const Spot& spot) {
  const std::vector<Spot> uses = uses_of(edited_document, spot);
  return uses.empty() ? refuse("spot_gone", spot.name) : show_spot(uses.front());
}

Widget no_field(Kw) { return nullptr; }

}  // namespace

bool show_spot(const Spot& spot) {
  switch (spot.part) {
    case Part::family:
      return show_family(spot);
    case Part::widget:
      return show_widget(spot);
    case Part::enumeration:
      return show_enumeration(spot);
    case Part::alias:
      return show_on_page(spot, aliaslist_field);
    case Part::converter:
      return show_on_page(spot, converterlist_field);
    case Part::popup:
      return show_in_picker(spot, popup_picker, popupedit_field);
    case Part::page:
      return show_in_picker(spot, page_picker, no_field);
    case Part::code_header:
    case Part::family_header:
    case Part::config_header:
      return show_on_page(spot, no_field);
    case Part::resource:
      return show_resource(spot);
    case Part::entry:
      return show_entry(spot);
    case Part::families:
      return show_main_window();
    case Part::stop_list:
      return show_stop_list_dialog();
    case Part::table_names:
      return show_table_names(spot);
    case Part::output_names:
      return refuse("spot_not_shown", spot.field);
    case Part::procedure:
      return show_procedure(spot);
  }
  return false;
}

}  // namespace vqc::editors
