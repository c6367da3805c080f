#ifndef VQC_CMD_EDITORS_PROGRAM_EXIT_H
#define VQC_CMD_EDITORS_PROGRAM_EXIT_H

/// Ends the session: what it has started goes too. Interactive sessions end in no other way.
[[noreturn]] void ExitVQConfig(int status);

#endif
