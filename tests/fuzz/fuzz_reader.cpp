// Any bytes are read as a document; whatever comes of it is a sound model, stays one while it is edited, and goes.

#include "model_check.h"
#include "support.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/model/enumentry.h"
#include "vqc/cmd/model/family.h"
#include "vqc/cmd/model/widgetedit.h"

namespace {

/// Calls `edit(name)` with the name of every second element of a list, which may go.
template <class List, class Edit>
void edit_every_second(const List& list, Edit edit) {
  bool second = false;
  for (auto each = list.begin(); each != list.end(); second = !second) {
    const Text name = name_of(*each);
    ++each;
    if (second) edit(name);
  }
}

template <auto list, class Kind>
void move_some(Kind& kind) {
  for (Family& family : family_pool.list) {
    edit_every_second(family.*list, [&](const Text& name) { kind.move_up(&family, name); });
    edit_every_second(family.*list, [&](const Text& name) { kind.move_down(&family, name); });
  }
}

template <auto list, class Kind>
void delete_some(Kind& kind) {
  for (Family& family : family_pool.list) {
    edit_every_second(family.*list, [&](const Text& name) { kind.remove(&family, name); });
  }
}

void move_in_lists() {
  move_some<&Family::widgets>(widget_kind);
  move_some<&Family::code_headers>(code_header_kind);
  move_some<&Family::family_headers>(family_header_kind);
  move_some<&Family::config_headers>(config_header_kind);
  move_some<&Family::pages>(page_kind);
  edit_every_second(family_pool.list, family_move_up);
  for (EnumDef& each : enum_pool.list) {
    edit_every_second(each.entries, [&](const Text& name) { enumentry_move_up(&each, name); });
  }
}

void delete_from_lists() {
  delete_some<&Family::widgets>(widget_kind);
  delete_some<&Family::enumerations>(enum_kind);
  delete_some<&Family::aliases>(alias_kind);
  delete_some<&Family::converters>(converter_kind);
  delete_some<&Family::code_headers>(code_header_kind);
  delete_some<&Family::family_headers>(family_header_kind);
  delete_some<&Family::config_headers>(config_header_kind);
  for (WidgetDef& each : widget_pool.list) {
    edit_every_second(each.resource_definitions, [&](const Text& name) { we_resource_delete(&each, name); });
  }
  for (EnumDef& each : enum_pool.list) {
    edit_every_second(each.entries, [&](const Text& name) { enumentry_delete(&each, name); });
  }
  edit_every_second(family_pool.list, family_delete);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static MemoryFile file;
  start_afresh();
  file.write({reinterpret_cast<const char*>(data), size});
  read_document(file, true);
  require(dirty != model_is_empty(), "a change is not known, or known without one");
  check_model();
  move_in_lists();
  check_model();
  delete_from_lists();
  check_model();
  read_document(file, false);
  check_model();
  clear_document();
  require(model_is_empty(), "something is left of a document");
  return 0;
}
