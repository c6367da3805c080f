#ifndef VQC_CMD_GENERATE_OLD_STUBS_H
#define VQC_CMD_GENERATE_OLD_STUBS_H

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "vqc/cmd/generate/c_outline.h"
#include "vqc/cmd/generate/stub_kinds.h"

namespace vqc {

/// What a document and an earlier stubs file have of a procedure.
struct Procedure {
  std::vector<const StubKind*> kinds;  // that the families taking part want
  bool is_named = false;               // by any family
  bool is_marked = false;
  std::vector<c::Function> functions;  // that are compiled
  std::vector<c::Declaration> declarations;
};
using Procedures = std::map<std::string, Procedure, std::less<>>;

/// The name of a procedure as its mark is read back.
std::string name_in_mark(Text name);

/// The procedures of a document, of which some families take part.
Procedures procedures_of(const Document& document, std::span<const Family* const> families);

/// A stub that has been retired, with the "#if 0" and the "#endif" around it.
struct RetiredStub {
  std::string_view name;
  std::size_t conditional;
  c::TokenRange tokens;
};

/// The line in a retired stub that says why.
std::string retirement_reason(std::string_view name);

/// An earlier stubs file.
struct OldStubs {
  c::Code code;
  c::Conditionals conditionals = {};
  c::Outline outline = {};
  std::vector<RetiredStub> revived = {};
  std::vector<RetiredStub> retired_again = {};  // of names that another retired stub has
  std::optional<c::Fault> fault = {};           // for which it cannot be understood

  std::string_view text() const { return code.text; }
  /// The types in the head of a function, and in a declaration.
  std::string types_of(const c::Function& function) const;
  std::string types_of(const c::Declaration& declaration) const;
};

/// Takes an earlier stubs file apart, and notes in `procedures` what it has of them. Retired stubs that come back to
/// life count as living.
OldStubs read_old_stubs(std::string_view text, Procedures& procedures);

}  // namespace vqc

#endif
