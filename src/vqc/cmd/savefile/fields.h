#ifndef VQC_CMD_SAVEFILE_FIELDS_H
#define VQC_CMD_SAVEFILE_FIELDS_H

#include <string_view>
#include <variant>

#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/keywords.h"

namespace vqc {

/// What a field's value is for who uses it.
enum class ValueKind {
  flag,
  plain_text,
  identifier,              // of C
  expression,              // of C
  header,                  // the name of a header file
  file,                    // the name of a generated file
  icon,                    // what the variables of a bitmap begin with
  class_names,             // of widgets, with commas between them
  popup,                   // the name of a popup
  name_procedure,          // char *(*)(char *)
  create_procedure,        // Widget (*)(char *, WidgetClass, Widget, ArgList, Cardinal)
  abstract_procedure,      // Boolean (*)(XWidget_p, Widget, Boolean *, Boolean *)
  child_procedure,         // Boolean (*)(XWidget_p, WidgetClass)
  parent_procedure,        // Boolean (*)(Widget, WidgetClass)
  family_procedure,        // void (*)(Widget)
  converter_procedure,     // Boolean (*)()
  popup_init_procedure,    // void (*)(Widget, Widget, char *)
  popup_update_procedure,  // void (*)(Widget)
};

/// A field of a record in the document: the word it is given by, the member it sets, what its value is, and a line
/// about it for people.
template <class Record>
struct Field {
  Kw word;
  std::variant<Text Record::*, bool Record::*> member;
  ValueKind kind;
  std::string_view about;

  /// The text member, or null.
  constexpr Text Record::*const* text() const { return std::get_if<Text Record::*>(&member); }
};

// The fields of each kind of record, in the order in which they are written; they are read in any order.

// clang-format off

inline constexpr Field<WidgetDef> widget_fields[] = {
    {Kw::include_filename,     &WidgetDef::include_filename,     ValueKind::header,             "the header that declares the class"},
    {Kw::defined_name,         &WidgetDef::defined_name,         ValueKind::name_procedure,     "the procedure that gives the name defined for a widget in code"},
    {Kw::realise,              &WidgetDef::realise,              ValueKind::create_procedure,   "the procedure that creates a widget"},
    {Kw::abstract,             &WidgetDef::abstract,             ValueKind::abstract_procedure, "the procedure that says which children can be edited"},
    {Kw::can_add_child,        &WidgetDef::can_add_child,        ValueKind::child_procedure,    "the procedure that says which children can be added"},
    {Kw::appropriate_parent,   &WidgetDef::appropriate_parent,   ValueKind::parent_procedure,   "the procedure that says which parents are fit"},
    {Kw::can_manage,           &WidgetDef::can_manage,           ValueKind::flag,               "whether widgets of the class can be managed"},
    {Kw::can_edit_abstract,    &WidgetDef::can_edit_abstract,    ValueKind::flag,               "whether they can be edited as abstract"},
    {Kw::disablegoto,          &WidgetDef::disablegoto,          ValueKind::flag,               "a switch of the builder's run-time"},
    {Kw::disablefgswap,        &WidgetDef::disablefgswap,        ValueKind::flag,               "a switch of the builder's run-time"},
    {Kw::can_create,           &WidgetDef::can_create,           ValueKind::flag,               "whether widgets of the class can be created"},
    {Kw::default_is_dont_free, &WidgetDef::default_is_dont_free, ValueKind::flag,               "whether values are not freed where nothing else is said"},
    {Kw::generate_initialise,  &WidgetDef::generate_initialise,  ValueKind::flag,               "whether there is an initialise procedure"},
    {Kw::largeicon,            &WidgetDef::largeicon,            ValueKind::icon,               "the large icon"},
    {Kw::smallicon,            &WidgetDef::smallicon,            ValueKind::icon,               "the small icon"},
    {Kw::largeiconheader,      &WidgetDef::largeiconheader,      ValueKind::header,             "the header with the large icon"},
    {Kw::smalliconheader,      &WidgetDef::smalliconheader,      ValueKind::header,             "the header with the small icon"},
    {Kw::pixmap_resource,      &WidgetDef::pixmap_resource,      ValueKind::plain_text,         "the resource that holds the widget's own pixmap"},
    {Kw::dialogue_doc,         &WidgetDef::dialogue_doc,         ValueKind::plain_text,         "the help document of the widget's dialogue"},
    {Kw::dialogue_tag,         &WidgetDef::dialogue_tag,         ValueKind::plain_text,         "the place in it"},
    {Kw::widget_doc,           &WidgetDef::widget_doc,           ValueKind::plain_text,         "the help document of the widget"},
    {Kw::widget_tag,           &WidgetDef::widget_tag,           ValueKind::plain_text,         "the place in it"},
};

inline constexpr Field<EnumDef> enum_fields[] = {
    {Kw::type_name, &EnumDef::type_name, ValueKind::expression, "the resource type"},
};

inline constexpr Field<EnumEntry> enum_entry_fields[] = {
    {Kw::code_symbol,    &EnumEntry::code_symbol,    ValueKind::expression, "the value in code"},
    {Kw::resfile_symbol, &EnumEntry::resfile_symbol, ValueKind::plain_text, "the value in resource files"},
};

inline constexpr Field<AliasDef> alias_fields[] = {
    {Kw::to_name, &AliasDef::to_name, ValueKind::expression, "the resource type that is meant"},
};

inline constexpr Field<ConverterDef> converter_fields[] = {
    {Kw::proc_name,   &ConverterDef::proc_name,   ValueKind::converter_procedure, "the procedure that adds the converter"},
    {Kw::dialog,      &ConverterDef::dialog,      ValueKind::popup,               "the popup that edits such resources"},
    {Kw::add_in_vq,   &ConverterDef::add_in_vq,   ValueKind::flag,                "whether the builder calls the procedure"},
    {Kw::add_in_code, &ConverterDef::add_in_code, ValueKind::flag,                "whether the code that it writes does"},
};

inline constexpr Field<PopupDef> popup_fields[] = {
    {Kw::dialog_init,   &PopupDef::dialog_init,   ValueKind::popup_init_procedure,   "the procedure that fills the dialog"},
    {Kw::dialog_update, &PopupDef::dialog_update, ValueKind::popup_update_procedure, "the procedure that brings it up to date"},
};

/// What belongs to a family's initialisation, all of which is written or none.
inline constexpr Field<FamilyInit> family_init_fields[] = {
    {Kw::family_init,                    &FamilyInit::family_init,                    ValueKind::family_procedure, "the procedure that initialises the family"},
    {Kw::generate_family_init_code,      &FamilyInit::generate_family_init_code,      ValueKind::flag,             "whether the code that the builder writes calls it"},
    {Kw::generate_family_init_stub,      &FamilyInit::generate_family_init_stub,      ValueKind::flag,             "whether there is a stub for it"},
    {Kw::generate_family_init_vq,        &FamilyInit::generate_family_init_vq,        ValueKind::flag,             "whether the builder calls it"},
    {Kw::generate_family_init_pre_shell, &FamilyInit::generate_family_init_pre_shell, ValueKind::flag,             "whether it is called before the shell is made"},
};

// clang-format on

/// A key of a document's header. The keys are written and read in this order only.
struct HeaderKey {
  Kw word;
  std::variant<Text OutputNames::*, NameOption NameOptions::*> member;
  ValueKind kind;
  std::string_view about;

  /// Where a document, constant or not, has the value.
  template <class Doc>
  auto& value(Doc& document) const {
    if (const auto* file = std::get_if<Text OutputNames::*>(&member)) return document.output_names.**file;
    return (document.names.*std::get<NameOption NameOptions::*>(member)).document;
  }
};

// clang-format off
inline constexpr HeaderKey header_keys[] = {
    {Kw::code_name,                    &OutputNames::code,         ValueKind::file,        "the code file"},
    {Kw::config_name,                  &OutputNames::config,       ValueKind::file,        "the config file"},
    {Kw::stubs_name,                   &OutputNames::stubs,        ValueKind::file,        "the stubs file"},
    {Kw::generate_family_table_string, &NameOptions::family_table, ValueKind::identifier,  "the table of families"},
    {Kw::generate_family_name_string,  &NameOptions::family_names, ValueKind::identifier,  "the names of the families"},
    {Kw::generate_xwidget_string,      &NameOptions::xwidgets,     ValueKind::identifier,  "the table of widget classes"},
    {Kw::generate_stop_list_string,    &NameOptions::stop_list,    ValueKind::identifier,  "the stop list"},
    {Kw::generate_popup_string,        &NameOptions::popups,       ValueKind::identifier,  "the table of popups"},
    {Kw::generate_page_name_string,    &NameOptions::page_names,   ValueKind::identifier,  "the names of the pages"},
    {Kw::generate_family_count_string, &NameOptions::family_count, ValueKind::identifier,  "the number of families"},
    {Kw::generate_enumeration_string,  &NameOptions::enumerations, ValueKind::identifier,  "the table of enumerations"},
    {Kw::generate_converter_string,    &NameOptions::converters,   ValueKind::identifier,  "the table of converters"},
    {Kw::generate_alias_string,        &NameOptions::aliases,      ValueKind::identifier,  "the table of aliases"},
};
// clang-format on

/// The words for FreeMode, by its number.
inline constexpr std::string_view free_mode_words[] = {"VQC_FREE_DEFAULT", "VQC_FREE", "VQC_DONT_FREE"};

}  // namespace vqc

#endif
