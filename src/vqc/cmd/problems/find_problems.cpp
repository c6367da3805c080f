// Finds the problems of a document that is being edited: it is written as a text, which is read and checked as any
// other.

#include "vqc/cmd/problems/find_problems.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

#include "vqc/cmd/check/check.h"
#include "vqc/cmd/problems/spots.h"
#include "vqc/cmd/savefile/load.h"
#include "vqc/cmd/savefile/save.h"

namespace vqc {

namespace {

Severity severity_of(const Finding& finding) { return kind_of(finding.id).severity; }

std::vector<std::string> notes_of(const Finding& finding) {
  std::vector<std::string> notes;
  for (const Note& note : finding.notes) notes.push_back(note.words);
  if (!finding.suggestion.empty()) notes.push_back(suggestion_words(finding));
  return notes;
}

Problem problem_of(const Finding& finding) {
  return {.id = finding.id, .words = words_of(finding), .notes = notes_of(finding)};
}

/// Counts findings, and returns those for which there is room.
std::span<const Finding> counted(const std::vector<Finding>& findings, Problems& problems) {
  for (const Finding& finding : findings) ++problems.counts[static_cast<std::size_t>(severity_of(finding))];
  return std::span(findings).first(std::min(findings.size(), Problems::kMost - problems.first.size()));
}

bool is_inside_character(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// A line, or of a long one what stands around a place in it.
std::string shown_of(std::string_view line, std::size_t place) {
  constexpr std::size_t kBefore = 60;
  constexpr std::size_t kMost = 200;
  std::size_t begin = place - std::min(place, kBefore);
  std::size_t end = std::min(line.size(), begin + kMost);
  while (begin < end && is_inside_character(line[begin])) ++begin;
  while (end < line.size() && end > begin && is_inside_character(line[end])) --end;
  return std::string(line.substr(begin, end - begin));
}

TextLine line_at(const Source& source, std::size_t offset) {
  const Place place = source.place(offset);
  return {place, shown_of(source.line(place.line), offset - source.offset_of_line(place.line))};
}

/// Adds the errors of a text that cannot be read whole, with their lines and a note.
void add_errors(const std::shared_ptr<const Source>& source, const char* note, Problems& problems) {
  Document document;
  Diagnostics diagnostics;
  load(source, document, diagnostics, AfterError::go_on);
  std::vector<Finding> errors = diagnostics.take();
  std::erase_if(errors, [](const Finding& each) { return severity_of(each) != Severity::error; });
  std::ranges::stable_sort(errors, {}, [](const Finding& each) { return each.range.begin; });
  for (const Finding& error : counted(errors, problems)) {
    Problem problem = problem_of(error);
    problem.notes.emplace_back(note);
    problem.line = line_at(*source, error.range.begin);
    problems.first.push_back(std::move(problem));
  }
}

/// What a document says, as `write` writes it.
std::shared_ptr<const Source> text_of(const State& state, void (*write)(const Document&, Sink&)) {
  Document document;
  restore(document, {}, state);
  return Source::written_by([&](Sink& out) { write(document, out); });
}

/// Adds what is found in a document by its text. False where that has errors: nothing is added then.
bool add_findings(const std::shared_ptr<const Source>& source, const std::string& folder, const std::stop_token& stop,
                  Problems& problems) {
  Document document;
  Places places(*source);
  std::vector<Finding> findings = findings_in(source, document, places, {{}, folder}, stop);
  if (has_errors(findings)) return false;
  std::erase_if(findings, [](const Finding& each) { return !kind_of(each.id).shown; });
  std::ranges::stable_sort(findings, {}, severity_of);
  const std::span<const Finding> shown = counted(findings, problems);
  std::vector<std::optional<Spot>> spots = spots_of(shown, document, places);
  for (std::size_t i = 0; i < shown.size(); ++i) {
    problems.first.push_back(problem_of(shown[i]));
    problems.first.back().spot = std::move(spots[i]);
  }
  return true;
}

/// Texts are saved without escapes. One with a quote breaks the file; what is wrong with the document is looked for in
/// a text with escapes then.
void add_findings(const DocumentToCheck& checked, const std::stop_token& stop, Problems& problems) {
  const auto saved = text_of(*checked.state, save);
  if (stop.stop_requested() || add_findings(saved, checked.folder, stop, problems)) return;
  add_errors(saved, "this line, which Save would write, cannot be read again", problems);
  if (!stop.stop_requested()) add_findings(text_of(*checked.state, save_whole), checked.folder, stop, problems);
}

}  // namespace

Problems find_problems(const DocumentToCheck& document, const std::stop_token& stop) {
  Problems problems;
  // A Source is asked for places by one thread alone, so that this one gets its own.
  if (document.unread) {
    add_errors(Source::from_text(document.unread->text()),
               "this line stands in the document's file, which has not been read whole", problems);
  }
  if (!stop.stop_requested()) add_findings(document, stop, problems);
  return problems;
}

}  // namespace vqc
