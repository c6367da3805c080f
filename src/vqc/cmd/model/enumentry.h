#ifndef VQC_CMD_MODEL_ENUMENTRY_H
#define VQC_CMD_MODEL_ENUMENTRY_H

#include "vqc/cmd/model/kinds.h"

// The entries of an enumeration.

inline ErrorCode enumentry_add(const Text& name, EnumDef* owner) {
  if (!owner) return enum_entry_kind.codes.no_owner;
  return enum_entry_kind.add(owner->entries, name, [&] {
    return new (std::nothrow) EnumEntry{{}, nullptr, name, {}, {}};
  });
}
inline ErrorCode enumentry_delete(EnumDef* owner, const Text& name) {
  return owner ? enum_entry_kind.remove(owner->entries, name) : enum_entry_kind.codes.no_owner;
}
inline EnumEntry* enumentry_first(const EnumDef* owner) {
  return owner ? enum_entry_kind.first(owner->entries) : nullptr;
}
inline EnumEntry* enumentry_next() { return enum_entry_kind.next(); }
inline EnumEntry* enumentry_ptr(const EnumDef* owner, const Text& name) {
  return owner ? enum_entry_kind.ptr(owner->entries, name) : nullptr;
}
inline int enumentry_count(const EnumDef* owner) { return owner ? static_cast<int>(owner->entries.size()) : 0; }
/// Counted from 1; 0 when absent.
inline int enumentry_index(const EnumDef* owner, const Text& name) {
  return owner ? enum_entry_kind.position(owner->entries, name) : 0;
}
inline void enumentry_setcurrent(EnumEntry* entry) { enum_entry_kind.set_current(entry); }
inline EnumEntry* enumentry_getcurrent() { return enum_entry_kind.current(); }
inline ErrorCode enumentry_move_up(EnumDef* owner, const Text& name) {
  return owner ? enum_entry_kind.move_up(owner->entries, name) : enum_entry_kind.codes.no_owner;
}
inline ErrorCode enumentry_move_down(EnumDef* owner, const Text& name) {
  return owner ? enum_entry_kind.move_down(owner->entries, name) : enum_entry_kind.codes.no_owner;
}

#endif
