#include "vqc/cmd/model/family.h"

#include "vqc/cmd/model/builtin.h"
#include "vqc/cmd/model/options.h"
#include "vqc/cmd/model/stop.h"

Family::~Family() {
  widget_kind.clear(this);
  enum_kind.clear(this);
  alias_kind.clear(this);
  converter_kind.clear(this);
  code_header_kind.clear(this);
  family_header_kind.clear(this);
  config_header_kind.clear(this);
  popup_kind.clear(this);
  page_kind.clear(this);
}

ErrorCode family_add(const Text& name) {
  if (name.empty()) return family_pool.codes.no_owner;
  const ErrorCode result = family_pool.add(name);
  if (result != 0) return result;
  Family* family = family_pool.list.find(name);
  predefine_pages(family);
  predefine_popups(family);
  return 0;
}

ErrorCode family_delete(const Text& name) { return family_pool.remove(name); }

void family_delete_all() {
  family_pool.clear();
  widget_kind.zero();
  enum_kind.zero();
  alias_kind.zero();
  converter_kind.zero();
  code_header_kind.zero();
  family_header_kind.zero();
  config_header_kind.zero();
  popup_kind.zero();
  page_kind.zero();
  family_setcurrent(nullptr);
  family_pool.zero();
}

void clear_document() {
  family_delete_all();
  widget_pool.clear();
  enum_pool.clear();
  alias_pool.clear();
  converter_pool.clear();
  popup_pool.clear();
  page_pool.clear();
  code_header_pool.clear();
  family_header_pool.clear();
  config_header_pool.clear();
  clear_options();
  stop_list_set(nullptr);
}
