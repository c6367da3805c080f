// The rules on what families and resources name.

#include <algorithm>
#include <map>
#include <span>
#include <string_view>
#include <unordered_map>

#include "vqc/cmd/check/rules.h"
#include "vqc/cmd/savefile/keywords.h"

namespace vqc {

namespace {

/// Visits each kind of record that families name: its word, its pool, and where a family has its references.
template <class Visit>
void each_kind(const Document& document, Visit visit) {
  visit(Kw::widget, document.widgets, &Family::widgets);
  visit(Kw::enumeration, document.enumerations, &Family::enumerations);
  visit(Kw::alias, document.aliases, &Family::aliases);
  visit(Kw::converter, document.converters, &Family::converters);
  visit(Kw::popup, document.popups, &Family::popups);
  visit(Kw::page, document.pages, &Family::pages);
  visit(Kw::header, document.code_headers, &Family::code_headers);
  visit(Kw::cheader, document.config_headers, &Family::config_headers);
  visit(Kw::family_header, document.family_headers, &Family::family_headers);
}

/// Pages and headers are no more than their names.
constexpr bool needs_definition(Kw kind) {
  return kind == Kw::widget || kind == Kw::enumeration || kind == Kw::alias || kind == Kw::converter ||
         kind == Kw::popup;
}

bool is_predefined_page(Text name) { return std::ranges::find(predefined_pages, name) != std::end(predefined_pages); }

bool is_predefined_popup(Text name) {
  return std::ranges::find(predefined_popups, name, &PredefinedPopup::name) != std::end(predefined_popups);
}

bool is_predefined(Kw kind, Text name) {
  return (kind == Kw::page && is_predefined_page(name)) || (kind == Kw::popup && is_predefined_popup(name));
}

std::string word_of(Kw kind) { return std::string(keyword_text(kind)); }

/// Visits what the source refers to: its kind and pool, itself, and where.
template <class Visit>
void each_stated_reference(const Inspection& inspection, Visit visit) {
  each_kind(inspection.document, [&](Kw kind, const auto& pool, auto references) {
    for (const Family& family : inspection.document.families) {
      for (const auto& reference : family.*references) {
        if (const auto place = inspection.places.of(&reference)) visit(kind, pool, *reference.record, *place);
      }
    }
  });
}

/// A converter of the older form makes its popup itself: that stands where the converter names it.
bool makes_popup(const Inspection& inspection, const ConverterDef& converter, const PopupDef& popup) {
  const std::optional<Range> made = inspection.places.of(&popup);
  return made && made == inspection.place_of(converter.dialog);
}

/// The popups that converters bring along, beside those in families.
RecordSet popups_of_converters(const Inspection& inspection) {
  RecordSet popups;
  for (const ConverterDef& converter : inspection.document.converters) {
    const PopupDef* popup = inspection.document.popups.find(converter.dialog);
    if (popup && (converter.uses > 0 || makes_popup(inspection, converter, *popup))) popups.insert(popup);
  }
  return popups;
}

/// The name in a list that was perhaps meant; empty for none. Of a pool, only what is defined can be meant.
template <class List>
std::string nearest_name(Inspection& inspection, std::string_view name, const List& list) {
  constexpr bool is_pool = !requires(typename List::Element element) { element.record; };
  std::vector<std::string_view> names;
  if (list.size() > kMostCandidates) return {};
  for (const auto& element : list) {
    if (!is_pool || inspection.places.of(&element)) names.push_back(name_of(element).view());
  }
  return inspection.nearest_to(name, names);
}

using FamiliesOfWidgets = std::unordered_map<const WidgetDef*, std::vector<const Family*>>;

FamiliesOfWidgets families_of_widgets(const Document& document) {
  FamiliesOfWidgets families;
  for (const Family& family : document.families) {
    for (const auto& widget : family.widgets) families[widget.record].push_back(&family);
  }
  return families;
}

/// "a, b, c": the names of a list, as many as people read.
template <class List>
std::string listed(const List& list) {
  constexpr unsigned kMost = 12;
  std::string names;
  unsigned count = 0;
  for (const auto& element : list) {
    if (count++ == kMost) return names + ", ...";
    names += (names.empty() ? "" : ", ") + string_of(name_of(element));
  }
  return names;
}

/// The rule that a page or popup of a resource is one of a family that has the widget.
template <auto member, auto pool, auto references>
class OfNoFamily {
 public:
  OfNoFamily(Inspection& inspection, FindingId id, Kw kind)
      : inspection_(inspection), id_(id), kind_(kind), families_of_(families_of_widgets(inspection.document)) {}

  void apply() {
    for (const WidgetDef& widget : inspection_.document.widgets) {
      const auto found = families_of_.find(&widget);
      look_at(widget, found == families_of_.end() ? no_families_ : found->second);
    }
  }

 private:
  using Families = std::vector<const Family*>;

  void look_at(const WidgetDef& widget, const Families& families) {
    for (const auto& [name, place] : missing_in(widget, families)) {
      inspection_.told.insert((inspection_.document.*pool).find(Text(name)));
      inspection_.add(id_, place, {std::string(name), string_of(widget.name)}, notes_on(families),
                      suggestion(name, families));
    }
  }

  /// The pages or popups that resources of a widget cannot have, each where it stands first.
  std::map<std::string_view, Range> missing_in(const WidgetDef& widget, const Families& families) const {
    std::map<std::string_view, Range> missing;
    Text available;
    for (const ResourceDef& resource : widget.resource_definitions) {
      const Text name = resource.*member;
      if (!name || name == available) continue;
      if (!missing.contains(name.view()) && is_available(name, families)) {
        available = name;
      } else if (const auto place = inspection_.place_of(name)) {
        const auto [entry, is_new] = missing.emplace(name.view(), *place);
        if (place->begin < entry->second.begin) entry->second = *place;
      }
    }
    return missing;
  }

  /// That a widget is in no family is another matter. What no family has is not looked for in each of many.
  bool is_available(Text name, const Families& families) const {
    const auto has_it = [&](const Family* family) { return (family->*references).find(name) != nullptr; };
    if (!families.empty() && has_it(families.front())) return true;
    return is_in_any_family(name) && (families.empty() || std::ranges::any_of(families, has_it));
  }

  bool is_in_any_family(Text name) const {
    const auto* record = (inspection_.document.*pool).find(name);
    return is_predefined(kind_, name) || (record && inspection_.in_families.contains(record));
  }

  std::vector<Note> notes_on(const Families& families) const {
    constexpr std::size_t kMost = 3;
    std::vector<Note> notes;
    for (const Family* family : std::span(families).first(std::min(kMost, families.size()))) {
      notes.push_back({inspection_.places.of(family), "the " + word_of(kind_) + "s of the family '" +
                                                          string_of(family->name) + "' are " +
                                                          listed(family->*references)});
    }
    return notes;
  }

  std::string suggestion(std::string_view name, const Families& families) const {
    return families.empty() ? "" : nearest_name(inspection_, name, families.front()->*references);
  }

  Inspection& inspection_;
  FindingId id_;
  Kw kind_;
  FamiliesOfWidgets families_of_;
  Families no_families_;
};

}  // namespace

void empty_references(Inspection& inspection) {
  each_stated_reference(inspection, [&](Kw kind, const auto&, const auto& record, Range place) {
    if (record.name.empty()) inspection.add(FindingId::empty_reference, place, {word_of(kind)});
  });
}

void undefined_names(Inspection& inspection) {
  each_stated_reference(inspection, [&](Kw kind, const auto& pool, const auto& record, Range place) {
    if (!needs_definition(kind) || record.name.empty() || is_predefined(kind, record.name)) return;
    if (inspection.places.of(&record) || !inspection.told.insert(&record)) return;
    inspection.add(FindingId::undefined_name, place, {word_of(kind), string_of(record.name)}, {},
                   nearest_name(inspection, record.name.view(), pool));
  });
}

/// A popup that a family names too is found there.
void dialogs_that_are_no_popups(Inspection& inspection) {
  for (const ConverterDef& converter : inspection.document.converters) {
    const Text dialog = converter.dialog;
    const PopupDef* popup = inspection.document.popups.find(dialog);
    if (!dialog || is_predefined_popup(dialog)) continue;
    if (popup && (inspection.places.of(popup) || inspection.told.contains(popup))) continue;
    inspection.add(FindingId::dialog_is_no_popup, inspection.place_of(dialog), {string_of(dialog)}, {},
                   nearest_name(inspection, dialog.view(), inspection.document.popups));
  }
}

void unused_names(Inspection& inspection) {
  const RecordSet of_converters = popups_of_converters(inspection);
  each_kind(inspection.document, [&](Kw kind, const auto& pool, auto) {
    for (const auto& record : pool) {
      if (is_in_family(inspection, record) || of_converters.contains(&record)) continue;
      if (is_predefined(kind, record.name) || inspection.told.contains(&record)) continue;
      inspection.add(FindingId::unused_name, inspection.places.of(&record), {word_of(kind), string_of(record.name)});
    }
  });
}

void pages_of_no_family(Inspection& inspection) {
  OfNoFamily<&ResourceDef::page, &Document::pages, &Family::pages>(inspection, FindingId::page_of_no_family, Kw::page)
      .apply();
}

void popups_of_no_family(Inspection& inspection) {
  OfNoFamily<&ResourceDef::popup, &Document::popups, &Family::popups>(inspection, FindingId::popup_of_no_family,
                                                                      Kw::popup)
      .apply();
}

/// The builder has room of its own for the first pages of a document, and counts the others.
void pages_before_predefined(Inspection& inspection) {
  std::size_t place = 0;
  for (const PageDef& page : inspection.document.pages) {
    if (place++ == std::size(predefined_pages)) return;
    if (is_predefined_page(page.name) || !is_in_family(inspection, page)) continue;
    const std::optional<Range> defined = inspection.places.of(&page);
    inspection.add(FindingId::page_before_predefined, defined ? defined : inspection.place_of(page.name),
                   {string_of(page.name)});
  }
}

}  // namespace vqc
