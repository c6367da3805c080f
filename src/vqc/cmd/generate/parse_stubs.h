#ifndef VQC_CMD_GENERATE_PARSE_STUBS_H
#define VQC_CMD_GENERATE_PARSE_STUBS_H

#include <string>
#include <string_view>

#include "libkel/source.h"
#include "vqc/cmd/generate/walk.h"

namespace vqc {

// The marks by which a stubs file can be read back. With an empty name a comment is the pattern that such comments
// follow, with "%s" for the name.

std::string vqc_stub_prelude_start();
std::string vqc_stub_prelude_end();
std::string vqc_stub_vq_prelude_end();
std::string vqc_stub_orvo_prelude_end();
std::string vqc_stub_comment(std::string_view name);
std::string vqc_stub_vq_comment(std::string_view name);
std::string vqc_stub_orvo_comment(std::string_view name);

/// Whether a line ends a prelude.
bool vqc_is_prelude_end(std::string_view line);
/// The name in a line that marks a stub; empty for any other line.
std::string_view vqc_marked_stub(std::string_view line);

/// Whether an earlier stubs file has brought a stub of that name along.
inline bool vqc_check_stub_space(const Run& run, Text name) { return run.kept_stubs.contains(name); }

/// A writer of part of the prelude.
using PreludeWriter = void (*)(Run& run);

/// Begins a stubs file: the two writers write its prelude (null writes nothing), then everything after the prelude of
/// an `old` stubs file is carried over and its stubs are noted in the run, which must not outlive it. Null for no old
/// file.
void vqc_init_stubs_file(Run& run, const Source* old, PreludeWriter prelude, PreludeWriter prelude_end);

}  // namespace vqc

#endif
