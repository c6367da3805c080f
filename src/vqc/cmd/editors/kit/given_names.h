#ifndef VQC_CMD_EDITORS_KIT_GIVEN_NAMES_H
#define VQC_CMD_EDITORS_KIT_GIVEN_NAMES_H

#include "vqc/cmd/editors/kit/edited_document.h"

// The operations on the document that is being edited, under the names by which they are known. What adds, deletes or
// moves gives 0 or a code; what finds an element moves the cursor there. An index is counted from 1, and 0 when absent.

namespace vqc::editors {

// clang-format off
#define POOL(prefix, kind, pool)                                              \
  inline ErrorCode prefix##_add(Name name)    { return kind.add(name); }      \
  inline ErrorCode prefix##_delete(Name name) { return kind.remove(name); }   \
  inline auto* prefix##_first()               { return kind.first(); }        \
  inline auto* prefix##_next()                { return kind.next(); }         \
  inline auto* prefix##_ptr(Name name)        { return kind.ptr(name); }      \
  inline int prefix##_count()                 { return kind.count(); }
#define OWNED(prefix, kind, Owner)                                                                    \
  inline ErrorCode prefix##_add(Name name, Owner* owner)      { return kind.add(name, owner); }       \
  inline ErrorCode prefix##_delete(Owner* owner, Name name)   { return kind.remove(owner, name); }    \
  inline auto* prefix##_first(const Owner* owner)             { return kind.first(owner); }           \
  inline auto* prefix##_next()                                { return kind.next(); }                 \
  inline auto* prefix##_ptr(const Owner* owner, Name name)    { return kind.ptr(owner, name); }       \
  inline int prefix##_count(const Owner* owner)               { return kind.count(owner); }           \
  inline int prefix##_index(const Owner* owner, Name name)    { return kind.index(owner, name); }
#define CURRENT(prefix, kind)                                                                         \
  inline void prefix##_setcurrent(decltype(kind)::Element* element) { kind.set_current(element); }    \
  inline auto* prefix##_getcurrent()                                { return kind.current(); }
#define MOVES(prefix, kind, Owner)                                                                    \
  inline ErrorCode prefix##_move_up(Owner* owner, Name name)   { return kind.move_up(owner, name); }  \
  inline ErrorCode prefix##_move_down(Owner* owner, Name name) { return kind.move_down(owner, name); }
#define FAMILY_LIST(prefix, kind, list) \
  OWNED(prefix, kind, Family)           \
  CURRENT(prefix, kind)                 \
  inline void zero_##prefix() { kind.zero(); }
#define OWNED_LIST(kind, owner, list)
#include "vqc/cmd/editors/kit/kinds.def"

CURRENT(family, family_pool)
CURRENT(popup, popup_pool)
CURRENT(page, page_pool)
inline ErrorCode family_move_up(Name name)   { return family_pool.move_up(name); }
inline ErrorCode family_move_down(Name name) { return family_pool.move_down(name); }
MOVES(widgetlist, widget_kind, Family)
MOVES(converterlist, converter_kind, Family)
MOVES(pagelist, page_kind, Family)
MOVES(codeheaderlist, code_header_kind, Family)
MOVES(familyheaderlist, family_header_kind, Family)
MOVES(confheaderlist, config_header_kind, Family)

OWNED(enumentry, enum_entry_kind, EnumDef)
CURRENT(enumentry, enum_entry_kind)
MOVES(enumentry, enum_entry_kind, EnumDef)

CURRENT(resource, resource_kind)
// clang-format on

#undef POOL
#undef OWNED
#undef CURRENT
#undef MOVES
#undef FAMILY_LIST
#undef OWNED_LIST

inline ErrorCode we_resource_add(Name name, WidgetDef* widget) { return resource_kind.add(name, widget); }
inline ErrorCode we_resource_delete(WidgetDef* widget, Name name) { return resource_kind.remove(widget, name); }
inline ResourceDef* resource_first(const WidgetDef* widget) { return resource_kind.first(widget); }
inline ResourceDef* resource_next() { return resource_kind.next(); }
inline ResourceDef* resource_ptr(const WidgetDef* widget, Name name) { return resource_kind.ptr(widget, name); }
/// Counted from 0; 27 when the widget has no resources, -1 when it has others only.
inline int resource_index(const WidgetDef* widget, Name name) {
  return resource_kind.count(widget) == 0 ? 27 : resource_kind.index(widget, name) - 1;
}

inline const BuiltinName* register_builtin_name(Name name, int kind) {
  return edited_document.builtins.add(name, kind);
}
inline bool unregister_builtin_name(Name name, int kind) { return edited_document.builtins.remove(name, kind); }
inline bool check_builtin_name(Name name, int kind) { return edited_document.builtins.has(name, kind); }

/// Leaves no family, no current family and no cursor. The pools keep what no family counted as its own.
inline void family_delete_all() {
  while (Family* family = edited_document.families.any()) edited_document.remove(edited_document.families, family);
  for (AnyKind* kind : all_kinds) kind->zero();
  family_setcurrent(nullptr);
}

}  // namespace vqc::editors

#endif
