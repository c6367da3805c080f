#ifndef VQC_CMD_MODEL_RECORDS_H
#define VQC_CMD_MODEL_RECORDS_H

#include <cstdint>

#include "libkel/text.h"
#include "vqc/cmd/model/in_blocks.h"
#include "vqc/cmd/model/name_list.h"

// The records of a document. A member's initial value is its value in a new record. Pools hold the records
// themselves; families refer to them. What can be deleted from anywhere in a long list also knows what stands before
// it. Members that are named like words of the document hold those words' values.

/// How a resource's value is freed after it has been got or set.
enum class FreeMode : std::uint8_t { by_default, free, dont_free };

/// `ResourceDef::access` is not_given or any of the others together.
enum Access : int { ACCESS_NOT_GIVEN = -1, ACCESS_CREATE = 1, ACCESS_GET = 2, ACCESS_SET = 4 };

/// One resource of one widget class, which owns it.
struct ResourceDef : InBlocks {
  ResourceDef* next = nullptr;
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

struct WidgetDef : InBlocks {
  ~WidgetDef();

  WidgetDef* next = nullptr;
  WidgetDef* previous = nullptr;
  Text name;
  int uses = 0;            // by families
  bool generated = false;  // scratch: the current section has written it
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
  NameList<ResourceDef, Order::sorted> resource_definitions;
};

/// One value of one enumeration, which owns it.
struct EnumEntry : InBlocks {
  EnumEntry* next = nullptr;
  Text name;
  Text code_symbol;
  Text resfile_symbol;
};

struct EnumDef : InBlocks {
  ~EnumDef();

  EnumDef* next = nullptr;
  EnumDef* previous = nullptr;
  Text name;
  int uses = 0;
  bool used = false;  // scratch: the current section has written it; so below
  Text type_name;     // "typename" in the document
  NameList<EnumEntry, Order::appended> entries;
};

struct AliasDef : InBlocks {
  AliasDef* next = nullptr;
  AliasDef* previous = nullptr;
  Text name;
  Text to_name;
  int uses = 0;
  bool used = false;
};

struct ConverterDef : InBlocks {
  ConverterDef* next = nullptr;
  ConverterDef* previous = nullptr;
  Text name;
  int uses = 0;
  bool used = false;
  bool add_in_vq = false;
  bool add_in_code = false;
  Text proc_name;
  Text dialog;
};

/// A dialog that edits resources. Its name is also its create procedure.
struct PopupDef : InBlocks {
  PopupDef* next = nullptr;
  PopupDef* previous = nullptr;
  Text name;
  int index = 0;  // scratch: its place in the generated table
  bool used = false;
  Text dialog_init;
  Text dialog_update;
};

/// A page of the resource panel.
struct PageDef : InBlocks {
  PageDef* next = nullptr;
  PageDef* previous = nullptr;
  Text name;
  int index = 0;
  bool used = false;
};

/// A header file to include.
struct HeaderEntry : InBlocks {
  HeaderEntry* next = nullptr;
  HeaderEntry* previous = nullptr;
  Text name;
  int uses = 0;
  bool used = false;
};

/// A family's use of a record. It owns nothing but itself.
template <class RecordType>
struct Reference : InBlocks {
  using Record = RecordType;
  Reference* next = nullptr;
  Reference* previous = nullptr;
  Record* record = nullptr;
};

template <class Record, Order order>
using References = NameList<Reference<Record>, order>;

/// The initialisation procedure of a family and what is generated for it.
struct FamilyInit : InBlocks {
  Text family_init;  // unlike other texts it may be empty without being null
  bool generate_family_init_vq = false;
  bool generate_family_init_code = false;
  bool generate_family_init_stub = false;
  bool generate_family_init_pre_shell = false;
};

struct Family : FamilyInit {
  ~Family();

  Family* next = nullptr;
  Family* previous = nullptr;
  Text name;
  bool generate_selected = true;
  References<WidgetDef, Order::appended> widgets;
  References<EnumDef, Order::sorted> enumerations;
  References<AliasDef, Order::sorted> aliases;
  References<ConverterDef, Order::sorted> converters;
  References<HeaderEntry, Order::appended> code_headers;
  References<HeaderEntry, Order::appended> family_headers;
  References<HeaderEntry, Order::appended> config_headers;
  References<PopupDef, Order::sorted> popups;
  References<PageDef, Order::appended> pages;
};

#endif
