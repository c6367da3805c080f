// Headers as files.

#include "vqc/cmd/check/header_files.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include "libkel/sink.h"
#include "libkel/source.h"
#include "vqc/cmd/savefile/util.h"

namespace vqc {

namespace {

/// What a header asks with whether it has been included.
constexpr std::string_view guards[] = {"#ifndef", "#pragma once", "#if !defined"};

/// The name as the generated files have it.
std::string printed_name(Text name) {
  StringSink out;
  charout(out, name);
  out.finish();
  return out.text();
}

bool is_file(const std::filesystem::path& path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(path, ignored);
}

}  // namespace

std::optional<std::filesystem::path> find_header(const CheckOptions& options, Text name) {
  const std::string printed = printed_name(name);
  for (const std::string& folder : options.include_folders) {
    if (const auto path = std::filesystem::path(folder) / printed; is_file(path)) return path;
  }
  const auto beside = std::filesystem::path(options.document_folder) / printed;
  return is_file(beside) ? std::optional(beside) : std::nullopt;
}

bool has_guard(const CheckOptions& options, Text name) {
  const std::optional<std::filesystem::path> path = find_header(options, name);
  const std::shared_ptr<const Source> file = path ? Source::read(path->c_str()) : nullptr;
  if (!file) return !name.view().ends_with(".xbm");
  return std::ranges::any_of(
      guards, [&](std::string_view guard) { return file->text().find(guard) != std::string_view::npos; });
}

}  // namespace vqc
