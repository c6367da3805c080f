#ifndef VQC_CMD_SAVEFILE_FIELDS_H
#define VQC_CMD_SAVEFILE_FIELDS_H

#include <string_view>
#include <variant>

#include "libkel/text.h"
#include "vqc/cmd/model/records.h"
#include "vqc/cmd/savefile/keywords.h"

/// A field of a record in the document: the word it is given by and the member it sets.
template <class Record>
struct Field {
  Kw word;
  std::variant<Text Record::*, bool Record::*> member;
};

// The fields of each kind of record, in the order in which they are written; they are read in any order.

inline constexpr Field<WidgetDef> widget_fields[] = {
    {Kw::include_filename, &WidgetDef::include_filename},
    {Kw::defined_name, &WidgetDef::defined_name},
    {Kw::realise, &WidgetDef::realise},
    {Kw::abstract, &WidgetDef::abstract},
    {Kw::can_add_child, &WidgetDef::can_add_child},
    {Kw::appropriate_parent, &WidgetDef::appropriate_parent},
    {Kw::can_manage, &WidgetDef::can_manage},
    {Kw::can_edit_abstract, &WidgetDef::can_edit_abstract},
    {Kw::disablegoto, &WidgetDef::disablegoto},
    {Kw::disablefgswap, &WidgetDef::disablefgswap},
    {Kw::can_create, &WidgetDef::can_create},
    {Kw::default_is_dont_free, &WidgetDef::default_is_dont_free},
    {Kw::generate_initialise, &WidgetDef::generate_initialise},
    {Kw::largeicon, &WidgetDef::largeicon},
    {Kw::smallicon, &WidgetDef::smallicon},
    {Kw::largeiconheader, &WidgetDef::largeiconheader},
    {Kw::smalliconheader, &WidgetDef::smalliconheader},
    {Kw::pixmap_resource, &WidgetDef::pixmap_resource},
    {Kw::dialogue_doc, &WidgetDef::dialogue_doc},
    {Kw::dialogue_tag, &WidgetDef::dialogue_tag},
    {Kw::widget_doc, &WidgetDef::widget_doc},
    {Kw::widget_tag, &WidgetDef::widget_tag},
};

inline constexpr Field<EnumDef> enum_fields[] = {
    {Kw::type_name, &EnumDef::type_name},
};

inline constexpr Field<EnumEntry> enum_entry_fields[] = {
    {Kw::code_symbol, &EnumEntry::code_symbol},
    {Kw::resfile_symbol, &EnumEntry::resfile_symbol},
};

inline constexpr Field<AliasDef> alias_fields[] = {
    {Kw::to_name, &AliasDef::to_name},
};

inline constexpr Field<ConverterDef> converter_fields[] = {
    {Kw::proc_name, &ConverterDef::proc_name},
    {Kw::dialog, &ConverterDef::dialog},
    {Kw::add_in_vq, &ConverterDef::add_in_vq},
    {Kw::add_in_code, &ConverterDef::add_in_code},
};

inline constexpr Field<PopupDef> popup_fields[] = {
    {Kw::dialog_init, &PopupDef::dialog_init},
    {Kw::dialog_update, &PopupDef::dialog_update},
};

/// The flags of a family's initialisation, of which all are written or none.
inline constexpr Field<FamilyInit> family_init_flags[] = {
    {Kw::generate_family_init_code, &FamilyInit::generate_family_init_code},
    {Kw::generate_family_init_stub, &FamilyInit::generate_family_init_stub},
    {Kw::generate_family_init_vq, &FamilyInit::generate_family_init_vq},
    {Kw::generate_family_init_pre_shell, &FamilyInit::generate_family_init_pre_shell},
};

/// The words for FreeMode, by its number.
inline constexpr std::string_view free_mode_words[] = {"VQC_FREE_DEFAULT", "VQC_FREE", "VQC_DONT_FREE"};

#endif
