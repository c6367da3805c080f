#ifndef VQC_CMD_MODEL_PAGE_H
#define VQC_CMD_MODEL_PAGE_H

#include "vqc/cmd/model/kinds.h"

// The resource pages of the document.

inline ErrorCode page_add(const Text& name) { return page_pool.add(name); }
inline ErrorCode page_delete(const Text& name) { return page_pool.remove(name); }
inline PageDef* page_first() { return page_pool.first(); }
inline PageDef* page_next() { return page_pool.next(); }
inline PageDef* page_ptr(const Text& name) { return page_pool.ptr(name); }
inline void page_setcurrent(PageDef* page) { page_pool.set_current(page); }
inline PageDef* page_getcurrent() { return page_pool.current(); }
inline int page_count() { return page_pool.count(); }

// The pages that a family uses.

inline ErrorCode pagelist_add(const Text& name, Family* family) { return page_kind.add(name, family); }
inline ErrorCode pagelist_delete(Family* family, const Text& name) { return page_kind.remove(family, name); }
inline Reference<PageDef>* pagelist_first(const Family* family) { return page_kind.first(family); }
inline Reference<PageDef>* pagelist_next() { return page_kind.next(); }
inline Reference<PageDef>* pagelist_ptr(const Family* family, const Text& name) { return page_kind.ptr(family, name); }
inline int pagelist_count(const Family* family) { return page_kind.count(family); }
/// Counted from 1; 0 when absent.
inline int pagelist_index(const Family* family, const Text& name) { return page_kind.index(family, name); }
inline void pagelist_setcurrent(Reference<PageDef>* element) { page_kind.set_current(element); }
inline Reference<PageDef>* pagelist_getcurrent() { return page_kind.current(); }
inline void zero_pagelist() { page_kind.zero(); }
inline ErrorCode pagelist_move_up(Family* family, const Text& name) { return page_kind.move_up(family, name); }
inline ErrorCode pagelist_move_down(Family* family, const Text& name) { return page_kind.move_down(family, name); }

#endif
