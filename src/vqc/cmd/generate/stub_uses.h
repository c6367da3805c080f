#ifndef VQC_CMD_GENERATE_STUB_USES_H
#define VQC_CMD_GENERATE_STUB_USES_H

#include <functional>
#include <map>
#include <set>
#include <string_view>

#include "libkel/source.h"
#include "vqc/cmd/generate/old_stubs.h"

namespace vqc {

/// Functions by their names, which stand in the text of the file. The conditionals around them count as theirs.
using FunctionsByName = std::map<std::string_view, c::Function>;

/// Those of some functions that other code of the file uses, be it by way of others of them. A declaration is no use,
/// nor does what stands in ranges that are replaced count.
std::set<std::string_view> used_functions(const OldStubs& old, const FunctionsByName& functions,
                                          const std::vector<Range>& replaced);

}  // namespace vqc

#endif
