// Finds things in a document by some letters of their names.

#include "vqc/cmd/lookup/directory.h"

#include <absl/container/flat_hash_map.h>

#include <algorithm>
#include <optional>
#include <unordered_set>

#include "libkel/hash_set.h"
#include "vqc/cmd/lookup/match.h"
#include "vqc/cmd/lookup/namings.h"

namespace vqc {

/// Collects names, each once, and then brings the places of each together.
class Directory::Maker {
 public:
  explicit Maker(Directory& directory) : directory_(directory) {}

  void collect(const Document& document) {
    found_.reserve(size_of(document));
    each(document.families, Part::family);
    each(document.widgets, Part::widget);
    each(document.enumerations, Part::enumeration);
    each(document.aliases, Part::alias);
    each(document.converters, Part::converter);
    each(document.popups, Part::popup);
    each(document.pages, Part::page);
    each(document.code_headers, Part::code_header);
    each(document.family_headers, Part::family_header);
    each(document.config_headers, Part::config_header);
    collect_procedures(document);
    for (const EnumDef& enumeration : document.enumerations) each(enumeration.entries, Part::entry, enumeration.name);
    for (const WidgetDef& widget : document.widgets) each(widget.resource_definitions, Part::resource, widget.name);
  }

  void arrange() {
    std::uint32_t end = 0;
    auto name = directory_.names_.begin();
    for (const std::uint32_t count : counts_) (name++)->end = end += count;
    directory_.places_.resize(found_.size());
    for (std::size_t i = found_.size(); i-- > 0;) {
      const auto& [of_name, place] = found_[i];
      directory_.places_[directory_.begin_of(of_name) + --counts_[of_name]] = place;
    }
  }

 private:
  struct Hash {
    std::size_t operator()(std::string_view text) const { return hash_of(text); }
  };
  struct Found {
    std::uint32_t name;
    Place place;
  };

  /// About how many names there are.
  static std::size_t size_of(const Document& document) {
    std::size_t size = std::size_t{2} * document.widgets.size();
    for (const WidgetDef& widget : document.widgets) size += widget.resource_definitions.size();
    return size;
  }

  template <class List>
  void each(const List& list, Part part, Text of = {}) {
    for (const auto& element : list) add(element.name.view(), {part, of});
  }

  /// A procedure counts once, however many fields name it.
  void collect_procedures(const Document& document) {
    std::unordered_set<std::string_view, Hash> known;
    each_naming(document, [&](const Naming& naming, const Text*) {
      const std::string_view name = naming.name.view();
      if (naming.part == Part::procedure && known.insert(name).second) add(name, {Part::procedure, {}});
    });
  }

  void add(std::string_view name, Place place) {
    const auto number = static_cast<std::uint32_t>(counts_.size());
    const auto [known, is_new] = numbers_.try_emplace(name, number);
    if (is_new) {
      directory_.names_.push_back({name});
      counts_.push_back(0);
    }
    ++counts_[known->second];
    found_.push_back({known->second, place});
  }

  Directory& directory_;
  absl::flat_hash_map<std::string_view, std::uint32_t, Hash> numbers_;
  std::vector<std::uint32_t> counts_;  // of the places of each name
  std::vector<Found> found_;
};

Directory::Directory(const Document& document) : texts_(document.texts()) {
  Maker maker(*this);
  maker.collect(document);
  maker.arrange();
}

Directory::Hits Directory::find(std::string_view typed, std::size_t most) {
  match(typed);
  Hits found;
  for (const Key key : hits_) found.count += names_[number_of(key)].end - begin_of(number_of(key));
  std::vector<Key> best(std::min(most, hits_.size()));
  std::ranges::partial_sort_copy(hits_, best);
  for (const Key key : best) {
    const std::size_t name = number_of(key);
    for (std::size_t place = begin_of(name); place < names_[name].end && found.best.size() < most; ++place) {
      found.best.push_back(spot_at(name, place));
    }
  }
  return found;
}

/// Finds the names that match. Those that do are among those that have matched the beginning.
void Directory::match(std::string_view typed) {
  const Pattern pattern(typed);
  const bool goes_on = !Pattern(typed_).empty() && typed.starts_with(typed_);
  std::vector<Key> hits;
  const auto look_at = [&](std::size_t number) {
    const std::string_view name = names_[number].text;
    const std::optional<int> rank = pattern.rank(name);
    const Key size = std::min<Key>(name.size(), 0xffff);
    if (rank) hits.push_back(static_cast<Key>(*rank) << 48 | size << 32 | number);
  };
  if (goes_on) {
    for (const Key key : hits_) look_at(number_of(key));
  } else if (!pattern.empty()) {
    for (std::size_t number = 0; number < names_.size(); ++number) look_at(number);
  }
  hits_ = std::move(hits);
  typed_ = typed;
}

Spot Directory::spot_at(std::size_t name, std::size_t place) const {
  const auto& [part, of] = places_[place];
  return {part, std::string(names_[name].text), std::string(of.view())};
}

}  // namespace vqc
