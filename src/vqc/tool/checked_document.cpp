// Reads a document and checks it.

#include "vqc/tool/checked_document.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "vqc/cmd/check/check.h"

namespace vqc {

namespace {

/// Where headers beside a document lie.
std::string folder_of(const std::string& file) { return std::filesystem::path(file).parent_path(); }

}  // namespace

std::string display_name(const std::string& file) { return file == "-" ? "<stdin>" : file; }

std::unique_ptr<CheckedDocument> check_file(const std::string& file, const std::vector<std::string>& include_folders) {
  auto checked = std::make_unique<CheckedDocument>();
  checked->source = file == "-" ? Source::read(STDIN_FILENO, display_name(file)) : Source::read(file.c_str());
  if (!checked->source) {
    std::fprintf(stderr, "vqc: %s: %s\n", display_name(file).c_str(), std::strerror(errno));
    return nullptr;
  }
  Places places(*checked->source);
  checked->findings = findings_in(checked->source, checked->document, places, {include_folders, folder_of(file)});
  return checked;
}

}  // namespace vqc
