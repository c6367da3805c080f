// The files that vqc generate makes from a document: where they go, and what they hold.

#include "vqc/tool/generated_files.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <utility>

#include "libkel/depfile.h"
#include "libkel/nearest.h"
#include "libkel/sink.h"
#include "libkel/source.h"
#include "vqc/cmd/generate/generate.h"
#include "vqc/cmd/generate/includes.h"

namespace vqc {

namespace {

namespace fs = std::filesystem;

using Paths = std::vector<std::string>;

std::string path_of(const GenerateRequest& request, const std::optional<std::string>& given, int kind) {
  if (given) return *given;
  const fs::path name = batch_file_name(request.document, kind);
  return request.folder.empty() ? name : fs::path(request.folder) / name.filename();
}

/// The document's file, if it is one.
Paths sources_of(const GenerateRequest& request) { return request.document == "-" ? Paths{} : Paths{request.document}; }

bool leads_to_any(const std::string& path, const Paths& others) {
  return std::ranges::any_of(others, [&](const std::string& other) { return same_file(other, path); });
}

void expect_different(const Paths& sources, const Paths& outputs) {
  Paths before;
  for (const std::string& output : outputs) {
    if (leads_to_any(output, sources)) throw std::runtime_error(output + ": this is the document");
    if (leads_to_any(output, before)) throw std::runtime_error(output + ": this file would be written twice");
    before.push_back(output);
  }
}

std::string no_such_family(const std::string& name, const Families& families) {
  std::vector<std::string_view> names;
  for (const Family* family : families) names.push_back(family->name.view());
  const std::string_view meant = nearest(name, names);
  return "there is no family '" + name + "'" + (meant.empty() ? "" : "; did you mean '" + std::string(meant) + "'?");
}

/// The families that are wanted, in the order of the document.
Families families_of(const GenerateRequest& request, const Document& document) {
  Families families = all_families(document);
  for (const std::string& name : request.families) {
    if (!document.families.find(Text(std::string_view(name)))) {
      throw std::runtime_error(no_such_family(name, families));
    }
  }
  const auto is_wanted = [&](const Family* family) {
    return request.families.empty() ||
           std::ranges::find(request.families, family->name.view()) != request.families.end();
  };
  std::erase_if(families, std::not_fn(is_wanted));
  return families;
}

std::string generated(const Document& document, const Families& families, FileKind kind, Switches switches) {
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

std::string depfile_of(const GenerateRequest& request, const OutputPaths& paths, const Families& families) {
  const Paths outputs = {paths.config, paths.code};
  Paths headers = found_headers(families);
  std::erase_if(headers, [](const std::string& header) { return fs::is_directory(header); });
  std::erase_if(headers, [&](const std::string& header) { return leads_to_any(header, outputs); });
  return depfile(outputs, sources_of(request), headers);
}

}  // namespace

OutputPaths output_paths(const GenerateRequest& request) {
  OutputPaths paths{.config = path_of(request, request.config, CONFIG_FILE),
                    .code = path_of(request, request.code, CODE_FILE),
                    .stubs = path_of(request, request.stubs, STUBS_FILE),
                    .depfile = request.depfile};
  if (request.without_stubs) paths.stubs.reset();
  Paths all = {paths.config, paths.code};
  for (const auto& path : {paths.stubs, paths.depfile}) {
    if (path) all.push_back(*path);
  }
  expect_different(sources_of(request), all);
  return paths;
}

GeneratedFiles generate_files(const GenerateRequest& request, const OutputPaths& paths, const Document& document) {
  const Families families = families_of(request, document);
  const auto text_of = [&](FileKind kind) { return generated(document, families, kind, request.switches); };
  GeneratedFiles made;
  made.files = {{paths.config, text_of(CONFIG_FILE)}, {paths.code, text_of(CODE_FILE)}};
  if (paths.stubs) {
    made.stubs = keep_stubs(document, families, request.switches, earlier_text(*paths.stubs));
    made.files.push_back({*paths.stubs, made.stubs.text.value_or("")});
  }
  if (paths.depfile) made.files.push_back({*paths.depfile, depfile_of(request, paths, families)});
  return made;
}

}  // namespace vqc
