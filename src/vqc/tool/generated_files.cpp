// The files that vqc generate makes from a document: where they go, and what they hold.

#include "vqc/tool/generated_files.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string_view>

#include "libkel/depfile.h"
#include "libkel/nearest.h"
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

void expect_different(const Paths& sources, const Paths& outputs) {
  const auto clash = find_clash(sources, outputs);
  if (!clash) return;
  throw std::runtime_error(clash->path +
                           (clash->is_source ? ": this is the document" : ": this file would be written twice"));
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
                    .stubs = path_of(request, request.stubs, STUBS_FILE)};
  if (request.without_stubs) paths.stubs.reset();
  Paths all = {paths.config, paths.code};
  for (const auto& path : {paths.stubs, request.depfile}) {
    if (path) all.push_back(*path);
  }
  expect_different(sources_of(request), all);
  return paths;
}

GeneratedFiles generate_files(const GenerateRequest& request, const OutputPaths& paths, const Document& document) {
  const Families families = families_of(request, document);
  GeneratedFiles made = generate_all(document, families, request.switches, paths);
  if (request.depfile) made.files.push_back({*request.depfile, depfile_of(request, paths, families)});
  return made;
}

}  // namespace vqc
