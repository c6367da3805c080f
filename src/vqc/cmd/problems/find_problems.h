#ifndef VQC_CMD_PROBLEMS_FIND_PROBLEMS_H
#define VQC_CMD_PROBLEMS_FIND_PROBLEMS_H

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include "libkel/diagnostics.h"
#include "libkel/source.h"
#include "vqc/cmd/history/state.h"
#include "vqc/cmd/model/part.h"

namespace vqc {

/// A line of a text, and the place in it that is meant. Of a long line there is a part.
struct TextLine {
  Place place;
  std::string text;

  bool operator==(const TextLine&) const = default;
};

/// Something that is wrong with a document, or looks so.
struct Problem {
  FindingId id;
  std::string words;
  std::vector<std::string> notes = {};  // what else there is to say about it
  std::optional<Spot> spot = {};        // what it is about in the document
  std::optional<TextLine> line = {};    // where it stands in a text that cannot be read whole

  bool operator==(const Problem&) const = default;
};

/// The problems of a document: how many there are of each severity, and as many of them as anybody reads.
struct Problems {
  static constexpr std::size_t kMost = 1000;

  std::array<std::size_t, 3> counts = {};
  std::vector<Problem> first;  // errors before warnings, each in the order of the document's text

  std::size_t count(Severity severity) const { return counts[static_cast<std::size_t>(severity)]; }
  bool operator==(const Problems&) const = default;
};

/// What is looked at.
struct DocumentToCheck {
  std::shared_ptr<const State> state;         // of the document
  std::string folder = {};                    // in which its file lies
  std::shared_ptr<const Source> unread = {};  // its file, if that has not been read whole
};

/// Finds what `vqc check` would find in the document when it has been saved, and all errors of a file that has not been
/// read whole. A stop leaves out what has not been found yet.
Problems find_problems(const DocumentToCheck& document, const std::stop_token& stop = {});

}  // namespace vqc

#endif
