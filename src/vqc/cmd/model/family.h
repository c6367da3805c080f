#ifndef VQC_CMD_MODEL_FAMILY_H
#define VQC_CMD_MODEL_FAMILY_H

#include "vqc/cmd/model/kinds.h"

// The families of the document. Each starts with the predefined pages and popups.

/// 1 for a null or empty name.
ErrorCode family_add(const Text& name);
ErrorCode family_delete(const Text& name);
inline Family* family_first() { return family_pool.first(); }
inline Family* family_next() { return family_pool.next(); }
inline Family* family_ptr(const Text& name) { return family_pool.ptr(name); }
inline int family_count() { return family_pool.count(); }
/// Null for no current family.
inline void family_setcurrent(Family* family) { family_pool.set_current(family); }
inline Family* family_getcurrent() { return family_pool.current(); }
inline ErrorCode family_move_up(const Text& name) { return family_pool.move_up(name); }
inline ErrorCode family_move_down(const Text& name) { return family_pool.move_down(name); }

/// Leaves no family, no current family and no cursor. The pools keep what no family counted as its own.
void family_delete_all();

/// Leaves no family, no record, no option, no name of a generated file and no stop list. The document's own name stays,
/// and what is removed sets `dirty`.
void clear_document();

#endif
