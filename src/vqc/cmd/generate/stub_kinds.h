#ifndef VQC_CMD_GENERATE_STUB_KINDS_H
#define VQC_CMD_GENERATE_STUB_KINDS_H

#include <span>
#include <string_view>
#include <vector>

#include "vqc/cmd/generate/walk.h"

namespace vqc {

/// How the stubs of one kind of procedure look.
struct StubKind {
  std::string_view returns;        // up to the procedure's name
  std::string_view names;          // of the parameters
  std::string_view parameters[6];  // up to an empty one
  std::string_view body;
  std::size_t further_in = 0;  // how many blanks more the parameters after the first are indented
};

/// All kinds there are.
std::span<const StubKind* const> all_stub_kinds();

/// A procedure that a document wants a body for.
struct Stub {
  const StubKind& kind;
  Text name;
  const Family& family;  // the first that names it
};

// The stubs that families want, in the order in which they are written: each name once among those of its kind.

std::vector<Stub> function_stubs(std::span<const Family* const> families);
std::vector<Stub> popup_stubs(const Document& document, std::span<const Family* const> families);

/// Writes what stands above the body, in the new style and in the old one.
void write_stub_head(Sink& out, const StubKind& kind, Text name);

}  // namespace vqc

#endif
