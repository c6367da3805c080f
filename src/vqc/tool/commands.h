#ifndef VQC_TOOL_COMMANDS_H
#define VQC_TOOL_COMMANDS_H

#include <CLI/App.hpp>

namespace vqc {

/// What vqc ends with. The worst of what happened wins.
enum ExitStatus : int { STATUS_GOOD = 0, STATUS_ERRORS = 1, STATUS_FAILED = 2 };

// Each adds a subcommand. When the command line asks for it, parsing runs it, and `status` gets what to end with.

void add_check(CLI::App& vqc, ExitStatus& status);
void add_generate(CLI::App& vqc, ExitStatus& status);
void add_explain(CLI::App& vqc, ExitStatus& status);
void add_help(CLI::App& vqc, ExitStatus& status);

}  // namespace vqc

#endif
