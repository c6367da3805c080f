#ifndef VQC_CMD_CHECK_TEXT_FAULTS_H
#define VQC_CMD_CHECK_TEXT_FAULTS_H

#include <string>
#include <vector>

#include "libkel/diagnostics.h"
#include "libkel/text.h"
#include "vqc/cmd/model/part.h"
#include "vqc/cmd/savefile/fields.h"

namespace vqc {

/// What is wrong with a name or value, wherever it stands.
struct TextFault {
  FindingId id;
  std::vector<std::string> arguments;
};

/// What is wrong with the text of a field, or with a name, for where it comes out in C. Empty for nothing.
std::vector<TextFault> faults_of_text(Kw word, ValueKind kind, Text text);

/// What the name of a part is for who uses it, and the word that defines it.
struct NameKind {
  Kw word;
  ValueKind kind;
};
NameKind name_kind(Part part);

}  // namespace vqc

#endif
