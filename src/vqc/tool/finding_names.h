#ifndef VQC_TOOL_FINDING_NAMES_H
#define VQC_TOOL_FINDING_NAMES_H

#include <CLI/App.hpp>
#include <string>
#include <vector>

#include "libkel/diagnostics.h"

namespace vqc {

/// The kind of that name, or null.
const FindingKind* find_kind(const std::string& name);

/// Why there is no kind of that name, with one that is spelled like it.
std::string no_such_kind(const std::string& name);

/// An option that takes names of warnings and notes, once or several times.
void add_finding_option(CLI::App& command, const char* option, std::vector<std::string>& names, const char* about);

}  // namespace vqc

#endif
