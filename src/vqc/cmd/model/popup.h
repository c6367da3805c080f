#ifndef VQC_CMD_MODEL_POPUP_H
#define VQC_CMD_MODEL_POPUP_H

#include "vqc/cmd/model/kinds.h"

// The resource popups of the document.

inline ErrorCode popup_add(const Text& name) { return popup_pool.add(name); }
inline ErrorCode popup_delete(const Text& name) { return popup_pool.remove(name); }
inline PopupDef* popup_first() { return popup_pool.first(); }
inline PopupDef* popup_next() { return popup_pool.next(); }
inline PopupDef* popup_ptr(const Text& name) { return popup_pool.ptr(name); }
inline void popup_setcurrent(PopupDef* popup) { popup_pool.set_current(popup); }
inline PopupDef* popup_getcurrent() { return popup_pool.current(); }
inline int popup_count() { return popup_pool.count(); }

// The popups that a family uses.

inline ErrorCode popuplist_add(const Text& name, Family* family) { return popup_kind.add(name, family); }
inline ErrorCode popuplist_delete(Family* family, const Text& name) { return popup_kind.remove(family, name); }
inline Reference<PopupDef>* popuplist_first(const Family* family) { return popup_kind.first(family); }
inline Reference<PopupDef>* popuplist_next() { return popup_kind.next(); }
inline Reference<PopupDef>* popuplist_ptr(const Family* family, const Text& name) {
  return popup_kind.ptr(family, name);
}
inline int popuplist_count(const Family* family) { return popup_kind.count(family); }
/// Counted from 1; 0 when absent.
inline int popuplist_index(const Family* family, const Text& name) { return popup_kind.index(family, name); }
inline void popuplist_setcurrent(Reference<PopupDef>* element) { popup_kind.set_current(element); }
inline Reference<PopupDef>* popuplist_getcurrent() { return popup_kind.current(); }
inline void zero_popuplist() { popup_kind.zero(); }

#endif
