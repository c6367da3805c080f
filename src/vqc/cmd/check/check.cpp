// Checks a document: the rules in their order.

#include "vqc/cmd/check/check.h"

#include <algorithm>

#include "vqc/cmd/check/rules.h"
#include "vqc/cmd/savefile/load.h"

namespace vqc {

namespace {

/// Findings on uses come before those on what is defined.
constexpr void (*rules[])(Inspection&) = {
    empty_references,        undefined_names,     dialogs_that_are_no_popups,
    pages_of_no_family,      popups_of_no_family, unused_names,
    pages_before_predefined, texts_in_c,          entries_without_code_symbol,
    aliases_without_to_name, names_twice_in_c,    icons_without_header,
    icon_headers_twice,      headers_not_found,   headers_in_working_folder,
    classes_of_stop_list,    bytes_not_utf8,
};

void note_popups_and_pages(const Document& document, RecordSet& records) {
  for (const Family& family : document.families) {
    for (const auto& popup : family.popups) records.insert(popup.record);
    for (const auto& page : family.pages) records.insert(page.record);
  }
}

}  // namespace

void check(const Document& document, const Source& source, const Places& places, const CheckOptions& options,
           Diagnostics& findings, const std::stop_token& stop) {
  Inspection inspection{document, source, places, options, findings};
  note_popups_and_pages(document, inspection.in_families);
  for (auto rule : rules) {
    if (stop.stop_requested()) return;
    rule(inspection);
  }
}

std::vector<Finding> findings_in(const std::shared_ptr<const Source>& source, Document& document, Places& places,
                                 const CheckOptions& options, const std::stop_token& stop) {
  Diagnostics diagnostics;
  load(source, document, diagnostics, AfterError::go_on, &places);
  if (!has_errors(diagnostics.findings())) check(document, *source, places, options, diagnostics, stop);
  std::vector<Finding> findings = diagnostics.take();
  std::ranges::stable_sort(findings, {}, [](const Finding& each) { return each.range.begin; });
  return findings;
}

}  // namespace vqc
