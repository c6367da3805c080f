#ifndef VQC_CMD_MODEL_KINDS_H
#define VQC_CMD_MODEL_KINDS_H

#include "vqc/cmd/model/pool.h"

// Every kind of list there is, with its order and its failure codes: duplicate, absent, no owner, cannot move.

inline Pool<WidgetDef, Order::sorted, Codes{4, 3}> widget_pool;
inline Pool<EnumDef, Order::sorted, Codes{8, 7}> enum_pool;
inline Pool<AliasDef, Order::sorted, Codes{14, 13}> alias_pool;
inline Pool<ConverterDef, Order::sorted, Codes{22, 21}> converter_pool;
inline Pool<PopupDef, Order::sorted, Codes{26, 25}> popup_pool;
inline Pool<PageDef, Order::appended, Codes{30, 29}> page_pool;
inline Pool<HeaderEntry, Order::sorted, Codes{18, 17, 19}> code_header_pool;
inline Pool<HeaderEntry, Order::sorted, Codes{18, 17, 19}> family_header_pool;
inline Pool<HeaderEntry, Order::sorted, Codes{18, 17, 19}> config_header_pool;

inline OrderedList<ResourceDef, Order::sorted, Codes{26, 25}> resource_kind;
inline OrderedList<EnumEntry, Order::appended, Codes{12, 11, 7, 11}> enum_entry_kind;

inline FamilyList<widget_pool, &Family::widgets, Order::appended, Codes{6, 3, 1, 5}> widget_kind;
inline FamilyList<enum_pool, &Family::enumerations, Order::sorted, Codes{10, 7, 1, 7}> enum_kind;
inline FamilyList<alias_pool, &Family::aliases, Order::sorted, Codes{16, 13, 1, 13}> alias_kind;
inline FamilyList<converter_pool, &Family::converters, Order::sorted, Codes{24, 21, 1, 23}> converter_kind;
inline FamilyList<code_header_pool, &Family::code_headers, Order::appended, Codes{20, 17, 1, 19}> code_header_kind;
inline FamilyList<family_header_pool, &Family::family_headers, Order::appended, Codes{20, 17, 1, 19}>
    family_header_kind;
inline FamilyList<config_header_pool, &Family::config_headers, Order::appended, Codes{20, 17, 1, 19}>
    config_header_kind;
inline FamilyList<popup_pool, &Family::popups, Order::sorted, Codes{28, 21, 1, 21}> popup_kind;
inline FamilyList<page_pool, &Family::pages, Order::appended, Codes{32, 31, 1, 31}> page_kind;

inline Pool<Family, Order::appended, Codes{2, 1, 1, 1}> family_pool;

#endif
