// Gives things other names.

#include "vqc/cmd/lookup/rename.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <vector>

#include "vqc/cmd/check/text_faults.h"
#include "vqc/cmd/lookup/namings.h"
#include "vqc/cmd/lookup/uses.h"

namespace vqc {

namespace {

Text text_of(const std::string& name) { return Text(std::string_view(name)); }

/// Calls visit(pool, references) with the pool of a part's records and where families have their references to them;
/// visit(list) with a list that needs no references. Nothing for what is no record.
template <class Doc, class Visit>
void with_list(Doc& document, const Spot& thing, Visit visit) {
  switch (thing.part) {
    case Part::family:
      return visit(document.families);
    case Part::widget:
      return visit(document.widgets, &Family::widgets);
    case Part::enumeration:
      return visit(document.enumerations, &Family::enumerations);
    case Part::alias:
      return visit(document.aliases, &Family::aliases);
    case Part::converter:
      return visit(document.converters, &Family::converters);
    case Part::popup:
      return visit(document.popups, &Family::popups);
    case Part::page:
      return visit(document.pages, &Family::pages);
    case Part::code_header:
      return visit(document.code_headers, &Family::code_headers);
    case Part::family_header:
      return visit(document.family_headers, &Family::family_headers);
    case Part::config_header:
      return visit(document.config_headers, &Family::config_headers);
    case Part::resource:
      if (auto* widget = document.widgets.find(text_of(thing.of))) visit(widget->resource_definitions);
      return;
    case Part::entry:
      if (auto* enumeration = document.enumerations.find(text_of(thing.of))) visit(enumeration->entries);
      return;
    default:
      return;
  }
}

/// Whether a thing of that kind and name is there. A procedure is where something names it.
bool is_there(const Document& document, const Spot& thing) {
  if (thing.part == Part::procedure) return count_uses(document, thing).all() > 0;
  bool found = false;
  with_list(document, thing, [&](const auto& list, auto...) { found = list.find(text_of(thing.name)) != nullptr; });
  return found;
}

/// Whether the builder has a thing of that kind and name by itself.
bool is_predefined(const Spot& thing) {
  const Text name = text_of(thing.name);
  switch (thing.part) {
    case Part::page:
      return std::ranges::find(predefined_pages, name) != std::end(predefined_pages);
    case Part::popup:
      return std::ranges::find(predefined_popups, name, &PredefinedPopup::name) != std::end(predefined_popups);
    case Part::procedure:
      return std::ranges::find(predefined_popups, name, &PredefinedPopup::dialog_init) != std::end(predefined_popups);
    default:
      return false;
  }
}

/// What a name breaks of the rules for its kind.
std::optional<Refusal> fault_of(Part part, const std::string& name) {
  const auto [word, kind] = name_kind(part);
  std::vector<TextFault> faults = faults_of_text(word, kind, text_of(name));
  if (faults.empty()) return std::nullopt;
  return Refusal{Refusal::faulty, words_of(Finding{faults.front().id, {}, std::move(faults.front().arguments)})};
}

/// All that has to change with a name. To find it takes memory; to change it does not.
class Renaming {
 public:
  Renaming(Document& document, const Spot& thing) {
    with_list(document, thing, [&](auto& list, auto... references) {
      auto* record = list.find(text_of(thing.name));
      if (!record) return;
      texts_.push_back(&record->name);
      note(list, record);
      (note_references(document, references, *record), ...);
    });
    each_naming(document, [&](const Naming& naming, Text* text) {
      if (!names(naming, thing)) return;
      ++places_;
      if (text) texts_.push_back(text);
    });
  }

  void to(Text name) {
    for (Text* text : texts_) *text = name;
    for (const auto& sort : sorts_) sort();
  }
  int places() const { return places_; }

 private:
  template <class List>
  void note(List& list, typename List::Element* element) {
    list.settle();
    sorts_.push_back([&list, element] { list.renamed(element); });
  }

  template <class References, class Record>
  void note_references(Document& document, References Family::*references, const Record& record) {
    for (Family& family : document.families) {
      if (auto* reference = (family.*references).find(record.name)) note(family.*references, reference);
    }
  }

  std::vector<Text*> texts_;
  std::vector<std::function<void()>> sorts_;
  int places_ = 0;
};

}  // namespace

std::optional<Refusal> refusal_of(const Document& document, const Spot& thing, const std::string& name) {
  const Spot renamed{thing.part, name, thing.of};
  if (!is_there(document, thing)) return Refusal{Refusal::gone};
  if (is_predefined(thing)) return Refusal{Refusal::predefined};
  if (name.empty()) return Refusal{Refusal::empty};
  if (name == thing.name) return Refusal{Refusal::same};
  if (is_there(document, renamed) || is_predefined(renamed)) return Refusal{Refusal::taken};
  return fault_of(thing.part, name);
}

int rename(Document& document, const Spot& thing, const std::string& name) {
  Renaming renaming(document, thing);
  renaming.to(document.keep(text_of(name)));
  document.dirty = true;
  return renaming.places();
}

}  // namespace vqc
