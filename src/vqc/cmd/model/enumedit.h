#ifndef VQC_CMD_MODEL_ENUMEDIT_H
#define VQC_CMD_MODEL_ENUMEDIT_H

#include "vqc/cmd/model/kinds.h"

// The enumerations of the document.

inline ErrorCode enum_add(const Text& name) { return enum_pool.add(name); }
inline ErrorCode enum_delete(const Text& name) { return enum_pool.remove(name); }
inline EnumDef* enum_first() { return enum_pool.first(); }
inline EnumDef* enum_next() { return enum_pool.next(); }
inline EnumDef* enum_ptr(const Text& name) { return enum_pool.ptr(name); }
inline int enum_count() { return enum_pool.count(); }

#endif
