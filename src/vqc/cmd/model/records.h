#ifndef VQC_CMD_MODEL_RECORDS_H
#define VQC_CMD_MODEL_RECORDS_H

#include <cstdint>

#include "libkel/text.h"
#include "vqc/cmd/model/name_list.h"

namespace vqc {

// The records of a document: what a document says of each (its fields), and its place among others. A member's initial
// value is its value in a new record. Pools hold the records themselves; families refer to them. Members that are named
// like words of the document hold those words' values. Their texts are the document's.

/// What a list operation returns: 0 for success, or a number that the list's kind fixes for the failure.
using ErrorCode = int;

/// The failures of one kind of list.
struct Codes {
  ErrorCode duplicate;
  ErrorCode absent;
  ErrorCode no_owner = 1;     // a null family, or whatever else owns the list
  ErrorCode cannot_move = 0;  // the element to move is absent
};

/// A list of one kind.
template <class Element, Order order, Codes list_codes>
struct ListOf : NameList<Element, order> {
  static constexpr Codes codes = list_codes;
};

/// How a resource's value is freed after it has been got or set.
enum class FreeMode : std::uint8_t { by_default, free, dont_free };

/// `ResourceDef::access` is not_given or any of the others together.
enum Access : int { ACCESS_NOT_GIVEN = -1, ACCESS_CREATE = 1, ACCESS_GET = 2, ACCESS_SET = 4 };

/// What an element of a list has before all else, so that no field stands at the address of its record.
template <class Element>
struct Links {
  Element* next = nullptr;
  Element* previous = nullptr;
};

struct ResourceFields {
  Text name;
  Text popup;
  Text page;
  Text counter;
  int access = ACCESS_NOT_GIVEN;
  bool visible = true;
  FreeMode free_get = FreeMode::by_default;
  FreeMode free_set = FreeMode::by_default;
  // Never saved. They share a byte, without which each of very many resources would take eight more.
  bool mfc_compatible : 1 = false;
  bool java_compatible : 1 = false;

  bool operator==(const ResourceFields&) const = default;
};

/// One resource of one widget class, which owns it.
struct ResourceDef : Links<ResourceDef>, ResourceFields {};

struct WidgetFields {
  Text name;
  Text include_filename;
  Text defined_name;
  Text realise;
  Text abstract;
  Text can_add_child;
  Text appropriate_parent;
  bool disablefgswap = false;
  bool disablegoto = false;
  bool can_create = true;
  bool can_edit_abstract = true;
  bool can_manage = true;
  bool generate_initialise = false;
  Text largeicon;
  Text smallicon;
  Text largeiconheader;
  Text smalliconheader;
  Text pixmap_resource;
  Text widget_doc;
  Text widget_tag;
  Text dialogue_doc;
  Text dialogue_tag;
  bool default_is_dont_free = false;

  bool operator==(const WidgetFields&) const = default;
};

struct WidgetDef : Links<WidgetDef>, WidgetFields {
  int uses = 0;  // by families
  ListOf<ResourceDef, Order::sorted, Codes{26, 25, 3}> resource_definitions;
};

struct EnumEntryFields {
  Text name;
  Text code_symbol;
  Text resfile_symbol;

  bool operator==(const EnumEntryFields&) const = default;
};

/// One value of one enumeration, which owns it.
struct EnumEntry : Links<EnumEntry>, EnumEntryFields {};

struct EnumFields {
  Text name;
  Text type_name;  // "typename" in the document

  bool operator==(const EnumFields&) const = default;
};

struct EnumDef : Links<EnumDef>, EnumFields {
  int uses = 0;
  ListOf<EnumEntry, Order::appended, Codes{12, 11, 7, 11}> entries;
};

struct AliasFields {
  Text name;
  Text to_name;

  bool operator==(const AliasFields&) const = default;
};

struct AliasDef : Links<AliasDef>, AliasFields {
  int uses = 0;
};

struct ConverterFields {
  Text name;
  bool add_in_vq = false;
  bool add_in_code = false;
  Text proc_name;
  Text dialog;

  bool operator==(const ConverterFields&) const = default;
};

struct ConverterDef : Links<ConverterDef>, ConverterFields {
  int uses = 0;
};

/// A dialog's name is also its create procedure.
struct PopupFields {
  Text name;
  Text dialog_init;
  Text dialog_update;

  bool operator==(const PopupFields&) const = default;
};

/// A dialog that edits resources.
struct PopupDef : Links<PopupDef>, PopupFields {};

/// A page of the resource panel.
struct PageDef : Links<PageDef> {
  Text name;
};

/// A header file to include.
struct HeaderEntry : Links<HeaderEntry> {
  Text name;
  int uses = 0;
};

/// A family's use of a record. It owns nothing but itself.
template <class RecordType>
struct Reference : Links<Reference<RecordType>> {
  using Record = RecordType;
  Record* record = nullptr;
};

template <class Record, Order order, Codes codes>
using References = ListOf<Reference<Record>, order, codes>;
using HeaderReferences = References<HeaderEntry, Order::appended, Codes{20, 17, 1, 19}>;

/// The initialisation procedure of a family and what is generated for it.
struct FamilyInit {
  Text family_init;  // unlike other texts it may be empty without being null
  bool generate_family_init_vq = false;
  bool generate_family_init_code = false;
  bool generate_family_init_stub = false;
  bool generate_family_init_pre_shell = false;

  bool operator==(const FamilyInit&) const = default;
};

struct Family : Links<Family>, FamilyInit {
  Text name;
  bool generate_selected = true;  // what the user has chosen; it is never saved
  References<WidgetDef, Order::appended, Codes{6, 3, 1, 5}> widgets;
  References<EnumDef, Order::sorted, Codes{10, 7, 1, 7}> enumerations;
  References<AliasDef, Order::sorted, Codes{16, 13, 1, 13}> aliases;
  References<ConverterDef, Order::sorted, Codes{24, 21, 1, 23}> converters;
  HeaderReferences code_headers;
  HeaderReferences family_headers;
  HeaderReferences config_headers;
  References<PopupDef, Order::sorted, Codes{28, 21, 1, 21}> popups;
  References<PageDef, Order::appended, Codes{32, 31, 1, 31}> pages;
};

}  // namespace vqc

#endif
