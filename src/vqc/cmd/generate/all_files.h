#ifndef VQC_CMD_GENERATE_ALL_FILES_H
#define VQC_CMD_GENERATE_ALL_FILES_H

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "libkel/output_files.h"
#include "vqc/cmd/generate/generate.h"
#include "vqc/cmd/generate/keep_stubs.h"

namespace vqc {

/// Where the files of a document go.
struct OutputPaths {
  std::string config;
  std::string code;
  std::optional<std::string> stubs;  // none for no stubs file
};

/// The files, which are not in their places yet.
struct GeneratedFiles {
  std::vector<OutputFile> files;  // in the order of FileKind
  KeptStubs stubs = {};           // nothing where no stubs file is made
};

/// Makes all files of some families of a document. What a person wrote in the stubs file that is there is kept. Throws
/// std::system_error when that file cannot be read.
GeneratedFiles generate_all(const Document& document, std::span<const Family* const> families, Switches switches,
                            const OutputPaths& paths);

/// A path that must not be written.
struct PathClash {
  std::string path;
  bool is_source;  // it leads to what the files are made from; otherwise another file goes there too

  bool operator==(const PathClash&) const = default;
};

/// The first of some outputs that leads to a source or to an output before it. Throws std::system_error when a path
/// cannot be followed.
std::optional<PathClash> find_clash(std::span<const std::string> sources, std::span<const std::string> outputs);

/// Whether one of some paths leads to the same file.
bool leads_to_any(const std::string& path, std::span<const std::string> others);

}  // namespace vqc

#endif
