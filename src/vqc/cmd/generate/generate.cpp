// The three generated files: their names, and writing them.

#include "vqc/cmd/generate/generate.h"

#include <memory>

#include "vqc/cmd/generate/code_file.h"
#include "vqc/cmd/generate/config_file.h"
#include "vqc/cmd/generate/stubs_file.h"
#include "vqc/cmd/savefile/util.h"

namespace vqc {

namespace {

struct OutputFile {
  int kind;
  const char* name;
  std::string_view suffix;  // of a name that is made from the document's
  Text OutputNames::*remembered;
  void (*write)(Run& run);
};

// clang-format off
constexpr OutputFile output_files[] = {
    {CONFIG_FILE, "configuration ", "_config.c", &OutputNames::config, write_config_file},
    {CODE_FILE,   "code ",          "_code.c",   &OutputNames::code,   write_code_file},
    {STUBS_FILE,  "stubs ",         "_stubs.c",  &OutputNames::stubs,  write_stubs_file},
};
// clang-format on
constexpr OutputFile other_file{0, "", "_stubs.c", &OutputNames::stubs, write_stubs_file};

const OutputFile& output_file(int kind) {
  for (const OutputFile& file : output_files) {
    if (file.kind == kind) return file;
  }
  return other_file;
}

}  // namespace

Families all_families(const Document& document) {
  Families families;
  for (const Family& family : document.families) families.push_back(&family);
  return families;
}

std::string batch_file_name(std::string_view document, int kind) {
  constexpr std::string_view kSuffix = ".vqc";
  if (document.ends_with(kSuffix)) document.remove_suffix(kSuffix.size());
  return std::string(document).append(output_file(kind).suffix);
}

const char* file_kind_name(int kind) { return output_file(kind).name; }

Text& generated_name(Document& document, int kind) { return document.output_names.*output_file(kind).remembered; }

void generate(const Document& document, std::span<const Family* const> families, int kind, Switches switches,
              Sink& out) {
  Run run{document, families, switches, out};
  output_file(kind).write(run);
}

bool generate_file(Document& document, const char* path, std::span<const Family* const> families, int kind,
                   Switches switches) {
  const std::unique_ptr<FileSink> out = openfile(path);
  if (!out) return false;
  generated_name(document, kind) = document.keep(path);
  generate(document, families, kind, switches, *out);
  closefile(*out);
  return true;
}

}  // namespace vqc
