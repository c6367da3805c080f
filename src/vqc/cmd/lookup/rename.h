#ifndef VQC_CMD_LOOKUP_RENAME_H
#define VQC_CMD_LOOKUP_RENAME_H

#include <optional>
#include <string>

#include "vqc/cmd/model/document.h"
#include "vqc/cmd/model/part.h"

namespace vqc {

/// Why a thing cannot be given a name.
struct Refusal {
  enum Reason {
    gone,        // it is not there, or has no name
    predefined,  // the builder knows it by its name
    empty,
    same,
    taken,   // another thing of the kind has the name, or the builder has one
    faulty,  // the name breaks a rule for its kind
  };
  Reason reason;
  std::string words = {};  // of the rule

  bool operator==(const Refusal&) const = default;
};

/// Why a thing cannot be given a name; none if it can.
std::optional<Refusal> refusal_of(const Document& document, const Spot& thing, const std::string& name);

/// Gives a thing another name, which nothing speaks against, wherever it is named; returns in how many other places
/// that is. Lists keep their order, or have it by the new name. Where memory is short, which is thrown, all is as it
/// was.
int rename(Document& document, const Spot& thing, const std::string& name);

}  // namespace vqc

#endif
