// Documents as a whole: their texts, their memory, and what a new family has.

#include "vqc/cmd/model/document.h"

namespace vqc {

namespace {

/// Destroys the elements of a list that goes with them.
template <class List>
void destroy_all(List& list) {
  for (auto* element = list.any(); element;) {
    auto* next = element->next;
    std::destroy_at(element);
    element = next;
  }
}

}  // namespace

/// Only what has lists holds memory of its own.
Document::~Document() {
  destroy_all(widgets);
  destroy_all(enumerations);
  destroy_all(families);
}

Text Document::keep(Text text) {
  if (!text) return nullptr;
  auto* copy = static_cast<char*>(memory_->arena.allocate(text.view().size(), 1));
  text.view().copy(copy, text.view().size());
  return Text(std::string_view(copy, text.view().size()));
}

Family* Document::ensure(decltype(families)& list, Text name) {
  if (name.empty()) return nullptr;
  if (Family* family = list.find(name)) return family;
  Family* family = insert(list, name);
  predefine(*family);
  return family;
}

void Document::begin(ResourceDef& resource) const {
  resource.mfc_compatible = compatibility.mfc;
  resource.java_compatible = compatibility.java;
}

/// Gives a family the pages and popups that every family has. A predefined popup gets its built-in initialise procedure
/// back each time, whatever the document had made of it.
void Document::predefine(Family& family) {
  for (const Text page : predefined_pages) {
    ensure(family.pages, pages, page);
    builtins.add(page, BUILTIN_PAGE);
  }
  for (const auto& [name, dialog_init] : predefined_popups) {
    PopupDef* popup = ensure(family.popups, popups, name)->record;
    builtins.add(name, BUILTIN_POPUP);
    builtins.remove(popup->dialog_init, BUILTIN_POPUP_INIT);
    popup->dialog_init = dialog_init;
    builtins.add(dialog_init, BUILTIN_POPUP_INIT);
  }
}

void Document::clear_lists_of(Family& family) {
  each_family_list([&](auto list, auto pool) { clear(family.*list, this->*pool); });
}

void Document::clear() {
  clear(families);
  clear(widgets);
  clear(enumerations);
  clear(aliases);
  clear(converters);
  clear(popups);
  clear(pages);
  clear(code_headers);
  clear(family_headers);
  clear(config_headers);
  for (auto option : all_name_options) (names.*option).document = nullptr;
  output_names = {};
  excluded_classes = nullptr;
  memory_ = std::make_shared<Memory>();
}

}  // namespace vqc
