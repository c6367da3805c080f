// Any bytes are read as a document; whatever comes of it is sound, stays so while it is edited, and goes.

#include "model_check.h"
#include "support.h"

namespace {

/// Calls `edit(element)` with every second element of a list, which may go.
template <class List, class Edit>
void edit_every_second(const List& list, Edit edit) {
  bool second = false;
  for (auto* each = list.head(); each; second = !second) {
    auto* next = each->next;
    if (second) edit(each);
    each = next;
  }
}

template <class List>
void move_some(List& list) {
  edit_every_second(list, [&](auto* element) { list.move_up(element); });
  edit_every_second(list, [&](auto* element) { list.move_down(element); });
}

void move_in_lists(Document& document) {
  for (Family& family : document.families) {
    move_some(family.widgets);
    move_some(family.code_headers);
    move_some(family.family_headers);
    move_some(family.config_headers);
    move_some(family.pages);
  }
  move_some(document.families);
  for (EnumDef& each : document.enumerations) move_some(each.entries);
}

template <class List, class... Pool>
void remove_some(Document& document, List& list, Pool&... pool) {
  edit_every_second(list, [&](auto* element) { document.remove(list, pool..., element); });
}

void remove_from_lists(Document& document) {
  for (Family& family : document.families) {
    remove_some(document, family.widgets, document.widgets);
    remove_some(document, family.enumerations, document.enumerations);
    remove_some(document, family.aliases, document.aliases);
    remove_some(document, family.converters, document.converters);
    remove_some(document, family.code_headers, document.code_headers);
    remove_some(document, family.family_headers, document.family_headers);
    remove_some(document, family.config_headers, document.config_headers);
  }
  for (WidgetDef& each : document.widgets) remove_some(document, each.resource_definitions);
  for (EnumDef& each : document.enumerations) remove_some(document, each.entries);
  remove_some(document, document.families);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  Document document;
  read_into(document, text);
  require(document.dirty != model_is_empty(document), "a change is not known, or known without one");
  check_model(document);
  move_in_lists(document);
  check_model(document);
  remove_from_lists(document);
  check_model(document);
  read_into(document, text);
  check_model(document);
  document.clear();
  require(model_is_empty(document), "something is left of a document");
  require(saved(document) == "VQconfig\n", "something is left of a document that has no record");
  return 0;
}
