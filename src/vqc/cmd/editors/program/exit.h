#ifndef VQC_CMD_EDITORS_PROGRAM_EXIT_H
#define VQC_CMD_EDITORS_PROGRAM_EXIT_H

// The end of a session.

namespace vqc::editors {

/// Ends the session: what it has started goes too. Interactive sessions end in no other way.
[[noreturn]] void ExitVQConfig(int status);

}  // namespace vqc::editors

#endif
