#ifndef VQC_CMD_MODEL_ALIAS_H
#define VQC_CMD_MODEL_ALIAS_H

#include "vqc/cmd/model/kinds.h"

// The aliases of the document.

inline ErrorCode alias_add(const Text& name) { return alias_pool.add(name); }
inline ErrorCode alias_delete(const Text& name) { return alias_pool.remove(name); }
inline AliasDef* alias_first() { return alias_pool.first(); }
inline AliasDef* alias_next() { return alias_pool.next(); }
inline AliasDef* alias_ptr(const Text& name) { return alias_pool.ptr(name); }
inline int alias_count() { return alias_pool.count(); }

// The aliases that a family uses.

inline ErrorCode aliaslist_add(const Text& name, Family* family) { return alias_kind.add(name, family); }
inline ErrorCode aliaslist_delete(Family* family, const Text& name) { return alias_kind.remove(family, name); }
inline Reference<AliasDef>* aliaslist_first(const Family* family) { return alias_kind.first(family); }
inline Reference<AliasDef>* aliaslist_next() { return alias_kind.next(); }
inline Reference<AliasDef>* aliaslist_ptr(const Family* family, const Text& name) {
  return alias_kind.ptr(family, name);
}
inline int aliaslist_count(const Family* family) { return alias_kind.count(family); }
/// Counted from 1; 0 when absent.
inline int aliaslist_index(const Family* family, const Text& name) { return alias_kind.index(family, name); }
inline void aliaslist_setcurrent(Reference<AliasDef>* element) { alias_kind.set_current(element); }
inline Reference<AliasDef>* aliaslist_getcurrent() { return alias_kind.current(); }
inline void zero_aliaslist() { alias_kind.zero(); }

#endif
