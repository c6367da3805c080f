#ifndef VQC_CMD_MODEL_ENUMLIST_H
#define VQC_CMD_MODEL_ENUMLIST_H

#include "vqc/cmd/model/kinds.h"

// The enumerations that a family uses.

inline ErrorCode enumlist_add(const Text& name, Family* family) { return enum_kind.add(name, family); }
inline ErrorCode enumlist_delete(Family* family, const Text& name) { return enum_kind.remove(family, name); }
inline Reference<EnumDef>* enumlist_first(const Family* family) { return enum_kind.first(family); }
inline Reference<EnumDef>* enumlist_next() { return enum_kind.next(); }
inline Reference<EnumDef>* enumlist_ptr(const Family* family, const Text& name) { return enum_kind.ptr(family, name); }
inline int enumlist_count(const Family* family) { return enum_kind.count(family); }
/// Counted from 1; 0 when absent.
inline int enumlist_index(const Family* family, const Text& name) { return enum_kind.index(family, name); }
inline void enumlist_setcurrent(Reference<EnumDef>* element) { enum_kind.set_current(element); }
inline Reference<EnumDef>* enumlist_getcurrent() { return enum_kind.current(); }
inline void zero_enumlist() { enum_kind.zero(); }

#endif
