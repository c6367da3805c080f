// All files of a document: what they hold, and whether they can be where they go.

#include "vqc/cmd/generate/all_files.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "libkel/sink.h"
#include "libkel/source.h"

namespace vqc {

namespace {

namespace fs = std::filesystem;

std::string generated(const Document& document, std::span<const Family* const> families, FileKind kind,
                      Switches switches) {
  StringSink out;
  generate(document, families, kind, switches, out);
  out.finish();
  return std::move(out).text();
}

/// What a file holds by now: nothing when there is none, or a device or a pipe.
std::string earlier_text(const std::string& path) {
  std::error_code none;
  if (!fs::is_regular_file(path, none)) return "";
  const auto source = Source::read(path.c_str());
  if (!source) throw std::system_error(errno, std::generic_category(), path);
  return std::string(source->text());
}

}  // namespace

GeneratedFiles generate_all(const Document& document, std::span<const Family* const> families, Switches switches,
                            const OutputPaths& paths) {
  const auto text_of = [&](FileKind kind) { return generated(document, families, kind, switches); };
  GeneratedFiles made;
  made.files = {{paths.config, text_of(CONFIG_FILE)}, {paths.code, text_of(CODE_FILE)}};
  if (!paths.stubs) return made;
  made.stubs = keep_stubs(document, families, switches, earlier_text(*paths.stubs));
  made.files.push_back({*paths.stubs, made.stubs.text.value_or("")});
  return made;
}

std::optional<PathClash> find_clash(std::span<const std::string> sources, std::span<const std::string> outputs) {
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    if (leads_to_any(outputs[i], sources)) return PathClash{outputs[i], true};
    if (leads_to_any(outputs[i], outputs.first(i))) return PathClash{outputs[i], false};
  }
  return {};
}

bool leads_to_any(const std::string& path, std::span<const std::string> others) {
  return std::ranges::any_of(others, [&](const std::string& other) { return same_file(other, path); });
}

}  // namespace vqc
