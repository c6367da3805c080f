#ifndef VQC_CMD_MODEL_HEADER_H
#define VQC_CMD_MODEL_HEADER_H

#include "vqc/cmd/model/kinds.h"

// The headers of the document for the code file.

inline ErrorCode codeheader_add(const Text& name) { return code_header_pool.add(name); }
inline ErrorCode codeheader_delete(const Text& name) { return code_header_pool.remove(name); }
inline HeaderEntry* codeheader_first() { return code_header_pool.first(); }
inline HeaderEntry* codeheader_next() { return code_header_pool.next(); }
inline HeaderEntry* codeheader_ptr(const Text& name) { return code_header_pool.ptr(name); }
inline int codeheader_count() { return code_header_pool.count(); }

// Those that a family uses.

inline ErrorCode codeheaderlist_add(const Text& name, Family* family) { return code_header_kind.add(name, family); }
inline ErrorCode codeheaderlist_delete(Family* family, const Text& name) {
  return code_header_kind.remove(family, name);
}
inline Reference<HeaderEntry>* codeheaderlist_first(const Family* family) { return code_header_kind.first(family); }
inline Reference<HeaderEntry>* codeheaderlist_next() { return code_header_kind.next(); }
inline Reference<HeaderEntry>* codeheaderlist_ptr(const Family* family, const Text& name) {
  return code_header_kind.ptr(family, name);
}
inline int codeheaderlist_count(const Family* family) { return code_header_kind.count(family); }
/// Counted from 1; 0 when absent.
inline int codeheaderlist_index(const Family* family, const Text& name) { return code_header_kind.index(family, name); }
inline void codeheaderlist_setcurrent(Reference<HeaderEntry>* element) { code_header_kind.set_current(element); }
inline Reference<HeaderEntry>* codeheaderlist_getcurrent() { return code_header_kind.current(); }
inline void zero_codeheaderlist() { code_header_kind.zero(); }
inline ErrorCode codeheaderlist_move_up(Family* family, const Text& name) {
  return code_header_kind.move_up(family, name);
}
inline ErrorCode codeheaderlist_move_down(Family* family, const Text& name) {
  return code_header_kind.move_down(family, name);
}

// The headers of the document for the family.

inline ErrorCode familyheader_add(const Text& name) { return family_header_pool.add(name); }
inline ErrorCode familyheader_delete(const Text& name) { return family_header_pool.remove(name); }
inline HeaderEntry* familyheader_first() { return family_header_pool.first(); }
inline HeaderEntry* familyheader_next() { return family_header_pool.next(); }
inline HeaderEntry* familyheader_ptr(const Text& name) { return family_header_pool.ptr(name); }
inline int familyheader_count() { return family_header_pool.count(); }

// Those that a family uses.

inline ErrorCode familyheaderlist_add(const Text& name, Family* family) { return family_header_kind.add(name, family); }
inline ErrorCode familyheaderlist_delete(Family* family, const Text& name) {
  return family_header_kind.remove(family, name);
}
inline Reference<HeaderEntry>* familyheaderlist_first(const Family* family) { return family_header_kind.first(family); }
inline Reference<HeaderEntry>* familyheaderlist_next() { return family_header_kind.next(); }
inline Reference<HeaderEntry>* familyheaderlist_ptr(const Family* family, const Text& name) {
  return family_header_kind.ptr(family, name);
}
inline int familyheaderlist_count(const Family* family) { return family_header_kind.count(family); }
/// Counted from 1; 0 when absent.
inline int familyheaderlist_index(const Family* family, const Text& name) {
  return family_header_kind.index(family, name);
}
inline void familyheaderlist_setcurrent(Reference<HeaderEntry>* element) { family_header_kind.set_current(element); }
inline Reference<HeaderEntry>* familyheaderlist_getcurrent() { return family_header_kind.current(); }
inline void zero_familyheaderlist() { family_header_kind.zero(); }
inline ErrorCode familyheaderlist_move_up(Family* family, const Text& name) {
  return family_header_kind.move_up(family, name);
}
inline ErrorCode familyheaderlist_move_down(Family* family, const Text& name) {
  return family_header_kind.move_down(family, name);
}

// The headers of the document for the config file.

inline ErrorCode confheader_add(const Text& name) { return config_header_pool.add(name); }
inline ErrorCode confheader_delete(const Text& name) { return config_header_pool.remove(name); }
inline HeaderEntry* confheader_first() { return config_header_pool.first(); }
inline HeaderEntry* confheader_next() { return config_header_pool.next(); }
inline HeaderEntry* confheader_ptr(const Text& name) { return config_header_pool.ptr(name); }
inline int confheader_count() { return config_header_pool.count(); }

// Those that a family uses.

inline ErrorCode confheaderlist_add(const Text& name, Family* family) { return config_header_kind.add(name, family); }
inline ErrorCode confheaderlist_delete(Family* family, const Text& name) {
  return config_header_kind.remove(family, name);
}
inline Reference<HeaderEntry>* confheaderlist_first(const Family* family) { return config_header_kind.first(family); }
inline Reference<HeaderEntry>* confheaderlist_next() { return config_header_kind.next(); }
inline Reference<HeaderEntry>* confheaderlist_ptr(const Family* family, const Text& name) {
  return config_header_kind.ptr(family, name);
}
inline int confheaderlist_count(const Family* family) { return config_header_kind.count(family); }
/// Counted from 1; 0 when absent.
inline int confheaderlist_index(const Family* family, const Text& name) {
  return config_header_kind.index(family, name);
}
inline void confheaderlist_setcurrent(Reference<HeaderEntry>* element) { config_header_kind.set_current(element); }
inline Reference<HeaderEntry>* confheaderlist_getcurrent() { return config_header_kind.current(); }
inline void zero_confheaderlist() { config_header_kind.zero(); }
inline ErrorCode confheaderlist_move_up(Family* family, const Text& name) {
  return config_header_kind.move_up(family, name);
}
inline ErrorCode confheaderlist_move_down(Family* family, const Text& name) {
  return config_header_kind.move_down(family, name);
}

#endif
