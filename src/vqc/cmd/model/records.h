#ifndef VQC_CMD_MODEL_RECORDS_H
#define VQC_CMD_MODEL_RECORDS_H

#include <cstdint>

#include "libkel/text.h"
#include "vqc/cmd/model/name_list.h"

namespace vqc {

// The records of a document. A member's initial value is its value in a new record. Pools hold the records
// themselves; families refer to them. Members that are named like words of the document hold those words' values. Their
// texts are the document's.

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

/// One resource of one widget class, which owns it.
struct ResourceDef {
  ResourceDef* next = nullptr;
  ResourceDef* previous = nullptr;
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
};

struct WidgetDef {
  WidgetDef* next = nullptr;
  WidgetDef* previous = nullptr;
  Text name;
  int uses = 0;  // by families
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
  ListOf<ResourceDef, Order::sorted, Codes{26, 25, 3}> resource_definitions;
};

/// One value of one enumeration, which owns it.
struct EnumEntry {
  EnumEntry* next = nullptr;
  EnumEntry* previous = nullptr;
  Text name;
  Text code_symbol;
  Text resfile_symbol;
};

struct EnumDef {
  EnumDef* next = nullptr;
  EnumDef* previous = nullptr;
  Text name;
  int uses = 0;
  Text type_name;  // "typename" in the document
  ListOf<EnumEntry, Order::appended, Codes{12, 11, 7, 11}> entries;
};

struct AliasDef {
  AliasDef* next = nullptr;
  AliasDef* previous = nullptr;
  Text name;
  Text to_name;
  int uses = 0;
};

struct ConverterDef {
  ConverterDef* next = nullptr;
  ConverterDef* previous = nullptr;
  Text name;
  int uses = 0;
  bool add_in_vq = false;
  bool add_in_code = false;
  Text proc_name;
  Text dialog;
};

/// A dialog that edits resources. Its name is also its create procedure.
struct PopupDef {
  PopupDef* next = nullptr;
  PopupDef* previous = nullptr;
  Text name;
  Text dialog_init;
  Text dialog_update;
};

/// A page of the resource panel.
struct PageDef {
  PageDef* next = nullptr;
  PageDef* previous = nullptr;
  Text name;
};

/// A header file to include.
struct HeaderEntry {
  HeaderEntry* next = nullptr;
  HeaderEntry* previous = nullptr;
  Text name;
  int uses = 0;
};

/// A family's use of a record. It owns nothing but itself.
template <class RecordType>
struct Reference {
  using Record = RecordType;
  Reference* next = nullptr;
  Reference* previous = nullptr;
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
};

struct Family;

/// What families have before their fields, so that no field stands at the address of its family.
struct FamilyHead {
  Family* next = nullptr;
  Family* previous = nullptr;
  Text name;
  bool generate_selected = true;  // what the user has chosen; it is never saved
};

struct Family : FamilyHead, FamilyInit {
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
