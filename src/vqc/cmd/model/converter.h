#ifndef VQC_CMD_MODEL_CONVERTER_H
#define VQC_CMD_MODEL_CONVERTER_H

#include "vqc/cmd/model/kinds.h"

// The resource converters of the document.

inline ErrorCode converter_add(const Text& name) { return converter_pool.add(name); }
inline ErrorCode converter_delete(const Text& name) { return converter_pool.remove(name); }
inline ConverterDef* converter_first() { return converter_pool.first(); }
inline ConverterDef* converter_next() { return converter_pool.next(); }
inline ConverterDef* converter_ptr(const Text& name) { return converter_pool.ptr(name); }
inline int converter_count() { return converter_pool.count(); }

// The converters that a family uses.

inline ErrorCode converterlist_add(const Text& name, Family* family) { return converter_kind.add(name, family); }
inline ErrorCode converterlist_delete(Family* family, const Text& name) { return converter_kind.remove(family, name); }
inline Reference<ConverterDef>* converterlist_first(const Family* family) { return converter_kind.first(family); }
inline Reference<ConverterDef>* converterlist_next() { return converter_kind.next(); }
inline Reference<ConverterDef>* converterlist_ptr(const Family* family, const Text& name) {
  return converter_kind.ptr(family, name);
}
inline int converterlist_count(const Family* family) { return converter_kind.count(family); }
/// Counted from 1; 0 when absent.
inline int converterlist_index(const Family* family, const Text& name) { return converter_kind.index(family, name); }
inline void converterlist_setcurrent(Reference<ConverterDef>* element) { converter_kind.set_current(element); }
inline Reference<ConverterDef>* converterlist_getcurrent() { return converter_kind.current(); }
inline void zero_converterlist() { converter_kind.zero(); }
inline ErrorCode converterlist_move_up(Family* family, const Text& name) {
  return converter_kind.move_up(family, name);
}
inline ErrorCode converterlist_move_down(Family* family, const Text& name) {
  return converter_kind.move_down(family, name);
}

#endif
