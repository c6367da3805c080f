#ifndef VQC_CMD_CHECK_RULES_H
#define VQC_CMD_CHECK_RULES_H

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "libkel/diagnostics.h"
#include "libkel/hash_set.h"
#include "libkel/nearest.h"
#include "libkel/source.h"
#include "vqc/cmd/check/check_options.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/places.h"

namespace vqc {

/// Records of any kind, by their addresses.
class RecordSet {
 public:
  /// False when it was there.
  bool insert(const void* record) { return records_.insert(record); }
  bool contains(const void* record) const { return records_.contains(record); }

 private:
  struct Hash {
    std::size_t operator()(const void* record) const { return hash_of_address(record); }
  };
  HashSet<const void*, Hash> records_;
};

inline constexpr std::size_t kMostCandidates = 1000;

/// What the rules look at, and where they put what they find.
struct Inspection {
  const Document& document;
  const Source& source;
  const Places& places;
  const CheckOptions& options;
  Diagnostics& findings;
  RecordSet in_families = {};  // the popups and pages that families have
  RecordSet told = {};         // what a finding on a use is about: none is needed where it is defined, or used again

  /// Where a value stands, with its quotes if it has any.
  std::optional<Range> place_of(Text text) const {
    const std::string_view all = source.text();
    const std::optional<Range> place = places.of(text);
    if (!place || place->begin == 0 || place->end >= all.size()) return place;
    const bool is_view = place->end - place->begin == text.view().size();
    const bool in_quotes = all[place->begin - 1] == '\'' && all[place->end] == '\'';
    return is_view && in_quotes ? Range{place->begin - 1, place->end + 1} : place;
  }

  /// Adds a finding, unless it concerns what the source does not say.
  void add(FindingId id, std::optional<Range> place, std::vector<std::string> arguments = {},
           std::vector<Note> notes = {}, std::string suggestion = {}) {
    if (place) findings.add({id, *place, std::move(arguments), std::move(notes), std::move(suggestion)});
  }

  /// What a misspelt name was perhaps meant to be; empty for nothing. Looking takes its time: the first names will do.
  std::string nearest_to(std::string_view name, std::span<const std::string_view> candidates) {
    if (candidates.size() > kMostCandidates || suggestions_left == 0) return {};
    --suggestions_left;
    return std::string(nearest(name, candidates));
  }
  std::size_t suggestions_left = 100;
};

/// Whether a family has the record.
template <class Record>
bool is_in_family(const Inspection& inspection, const Record& record) {
  if constexpr (requires { record.uses; }) {
    return record.uses > 0;
  } else {
    return inspection.in_families.contains(&record);
  }
}

// The rules, by the files in which they stand. check.cpp has their table.

// references.cpp
void empty_references(Inspection& inspection);
void undefined_names(Inspection& inspection);
void dialogs_that_are_no_popups(Inspection& inspection);
void pages_of_no_family(Inspection& inspection);
void popups_of_no_family(Inspection& inspection);
void unused_names(Inspection& inspection);
void pages_before_predefined(Inspection& inspection);

// c_texts.cpp
void texts_in_c(Inspection& inspection);
void entries_without_code_symbol(Inspection& inspection);
void aliases_without_to_name(Inspection& inspection);

// c_symbols.cpp
void names_twice_in_c(Inspection& inspection);

// icons.cpp
void icons_without_header(Inspection& inspection);
void icon_headers_twice(Inspection& inspection);

// headers.cpp
void headers_not_found(Inspection& inspection);
void headers_in_working_folder(Inspection& inspection);

// stop_list.cpp
void classes_of_stop_list(Inspection& inspection);

// bytes.cpp
void bytes_not_utf8(Inspection& inspection);

}  // namespace vqc

#endif
