// The rule that a name of C stands for one thing.

#include <algorithm>
#include <span>
#include <string_view>
#include <tuple>
#include <unordered_map>

#include "vqc/cmd/check/c_language.h"
#include "vqc/cmd/check/given.h"
#include "vqc/cmd/check/rules.h"
#include "vqc/cmd/model/c_names.h"

namespace vqc {

namespace {

/// What a name stands for, and where the document says so.
struct Symbol {
  std::string_view name;
  std::string_view about;
  std::optional<Range> place;
};

/// The names of procedures, tables, classes and popups that come out as the document gives them.
class Symbols {
 public:
  explicit Symbols(const Inspection& inspection) : inspection_(inspection) {
    add_tables();
    add_widgets();
    add_popups();
    add_converters();
    add_family_inits();
  }

  /// Those of one name together, in the order of the source; what it does not say comes first.
  std::vector<Symbol> sorted() && {
    std::ranges::sort(symbols_, {}, [](const Symbol& each) {
      return std::tuple(each.name, each.place.has_value(), each.place.value_or(Range{}).begin);
    });
    return std::move(symbols_);
  }

 private:
  /// A name that C does not take is found elsewhere.
  void add(Text name, std::string_view about, std::optional<Range> place) {
    if (name && is_identifier(name.view())) symbols_.push_back({name.view(), about, place});
  }

  template <class Record, std::size_t n>
  void add_procedures(const Field<Record> (&fields)[n], const Record& record) {
    for (const Field<Record>& field : fields) {
      const bool procedure = field.kind >= ValueKind::name_procedure;
      if (procedure) add(record.**field.text(), field.about, inspection_.place_of(record.**field.text()));
    }
  }

  void add_tables() {
    for (const HeaderKey& key : header_keys) {
      const auto* option = std::get_if<NameOption NameOptions::*>(&key.member);
      if (!option) continue;
      const NameOption& name = inspection_.document.names.**option;
      add(name.value(), key.about, inspection_.place_of(name.document));
    }
  }

  void add_widgets() {
    for (const WidgetDef& widget : inspection_.document.widgets) {
      if (!is_in_family(inspection_, widget)) continue;
      add(widget.name, "a widget class", inspection_.place_of(widget.name));
      add_procedures(widget_fields, widget);
    }
  }

  void add_popups() {
    for (const PopupDef& popup : inspection_.document.popups) {
      if (!is_in_family(inspection_, popup)) continue;
      add(popup.name, "the procedure that creates a dialog", inspection_.place_of(popup.name));
      add_procedures(popup_fields, popup);
    }
  }

  void add_converters() {
    for (const ConverterDef& converter : inspection_.document.converters) {
      if (is_in_family(inspection_, converter) && converter.add_in_vq) add_procedures(converter_fields, converter);
    }
  }

  void add_family_inits() {
    for (const Family& family : inspection_.document.families) add_procedures<FamilyInit>(family_init_fields, family);
  }

  const Inspection& inspection_;
  std::vector<Symbol> symbols_;
};

/// The names that are made from those of the document.
class MadeSymbols {
 public:
  explicit MadeSymbols(const Inspection& inspection) : inspection_(inspection) {
    std::size_t index = 0;
    for (const Family& family : inspection.document.families)
      families_.emplace(identifier_base(family, index++), &family);
  }

  /// What a name stands for when it is one of them.
  std::optional<Symbol> find(std::string_view name) const {
    if (const auto* widget = used(inspection_.document.widgets, name, "xw_", "")) {
      return made(name, "the record of a widget class", widget);
    }
    const auto* widget = used(inspection_.document.widgets, name, "xr_", "_resources");
    if (widget && !widget->resource_definitions.empty()) return made(name, "the resources of a widget class", widget);
    if (const auto* enumeration = used(inspection_.document.enumerations, name, "", "_enum")) {
      return made(name, "the values of an enumeration", enumeration);
    }
    for (const std::string_view ending : {"_widgets", "_headers"}) {
      const auto family = families_.find(std::string(middle(name, "", ending)));
      if (family != families_.end()) return made(name, "a table of a family", family->second);
    }
    return std::nullopt;
  }

 private:
  /// What stands in a name between two parts; empty if it does not have both.
  static std::string_view middle(std::string_view name, std::string_view before, std::string_view after) {
    const std::size_t size = before.size() + after.size();
    const bool has_both = name.size() > size && name.starts_with(before) && name.ends_with(after);
    return has_both ? name.substr(before.size(), name.size() - size) : std::string_view();
  }

  /// The record in a family whose name stands between two parts.
  template <class Pool>
  const typename Pool::Element* used(const Pool& pool, std::string_view name, std::string_view before,
                                     std::string_view after) const {
    const std::string_view of_record = middle(name, before, after);
    const auto* record = of_record.empty() ? nullptr : pool.find(Text(of_record));
    return record && is_in_family(inspection_, *record) ? record : nullptr;
  }

  template <class Record>
  Symbol made(std::string_view name, std::string_view about, const Record* record) const {
    return {name, about, inspection_.places.of(record)};
  }

  const Inspection& inspection_;
  std::unordered_map<std::string, const Family*> families_;  // by what their identifiers begin with
};

/// The finding stands where the source says the one or the other, at the later.
void tell(Inspection& inspection, const Symbol& first, const Symbol& second) {
  const bool swapped = !second.place || (first.place && first.place->begin > second.place->begin);
  const Symbol& later = swapped ? first : second;
  const Symbol& earlier = swapped ? second : first;
  const std::string about(earlier.about);
  inspection.add(FindingId::name_twice_in_c, later.place, {std::string(later.name), std::string(later.about), about},
                 {{earlier.place, earlier.place ? "here it is " + about : about + " has this name by itself"}});
}

/// All uses of one name.
void look_at(Inspection& inspection, std::span<const Symbol> uses, const MadeSymbols& made) {
  const Symbol& first = uses.front();
  const auto other = std::ranges::find_if(uses, [&](const Symbol& each) { return each.about != first.about; });
  if (other != uses.end()) return tell(inspection, first, *other);
  if (const std::optional<Symbol> same = made.find(first.name)) tell(inspection, *same, first);
}

}  // namespace

void names_twice_in_c(Inspection& inspection) {
  const std::vector<Symbol> symbols = Symbols(inspection).sorted();
  const MadeSymbols made(inspection);
  for (std::span<const Symbol> rest = symbols; !rest.empty();) {
    const auto end = std::ranges::find_if(rest, [&](const Symbol& each) { return each.name != rest.front().name; });
    const auto size = static_cast<std::size_t>(end - rest.begin());
    look_at(inspection, rest.first(size), made);
    rest = rest.subspan(size);
  }
}

}  // namespace vqc
