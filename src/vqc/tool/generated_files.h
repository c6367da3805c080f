#ifndef VQC_TOOL_GENERATED_FILES_H
#define VQC_TOOL_GENERATED_FILES_H

#include <optional>
#include <string>
#include <vector>

#include "vqc/cmd/generate/all_files.h"
#include "vqc/cmd/generate/switches.h"
#include "vqc/cmd/model/document.h"

namespace vqc {

/// What is to be generated from which document.
struct GenerateRequest {
  std::string document;  // "-" for standard input
  std::string folder;    // of files that are given no name; empty for the document's own
  std::optional<std::string> config;
  std::optional<std::string> code;
  std::optional<std::string> stubs;
  std::optional<std::string> depfile;
  bool without_stubs = false;
  std::vector<std::string> families;  // empty for all
  Switches switches;
};

/// Throws std::runtime_error when one path leads to the document or to the file of another, or cannot be followed.
OutputPaths output_paths(const GenerateRequest& request);

/// The files that are wanted; the depfile is the last one, if there is one. Throws std::runtime_error when a family is
/// wanted that the document does not have, or when the stubs file that is there cannot be read.
GeneratedFiles generate_files(const GenerateRequest& request, const OutputPaths& paths, const Document& document);

}  // namespace vqc

#endif
