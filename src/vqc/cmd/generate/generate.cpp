#include "vqc/cmd/generate/generate.h"

#include <cstdio>
#include <memory>
#include <string_view>

#include "vqc/cmd/generate/code_file.h"
#include "vqc/cmd/generate/config_file.h"
#include "vqc/cmd/generate/stubs_file.h"
#include "vqc/cmd/model/options.h"

namespace {

struct OutputFile {
  int kind;
  const char* name;    // as messages put it, with a blank behind
  const char* suffix;  // of a name that is made from the document's
  void (*set_name)(const Text& name);
  void (*write)(Run& run);
};

constexpr OutputFile output_files[] = {
    {CONFIG_FILE, "configuration ", "_config.c", set_config_file, write_config_file},
    {CODE_FILE, "code ", "_code.c", set_code_file, write_code_file},
    {STUBS_FILE, "stubs ", "_stubs.c", set_stubs_file, write_stubs_file},
};
constexpr OutputFile other_file{0, "", "_stubs.c", set_stubs_file, write_stubs_file};

const OutputFile& output_file(int kind) {
  for (const OutputFile& file : output_files) {
    if (file.kind == kind) return file;
  }
  return other_file;
}

void choose_families(bool interactive) {
  int place = 0;
  for (Family& family : family_pool.list) {
    family.generate_selected = !interactive || !family_choice || family_choice->chosen(place);
    ++place;
  }
}

}  // namespace

std::string batch_file_name(const char* document, int kind) {
  constexpr std::string_view kSuffix = ".vqc";
  std::string name = document;
  if (name.ends_with(kSuffix)) name.resize(name.size() - kSuffix.size());
  return name + output_file(kind).suffix;
}

bool generate(const char* name, bool interactive, int kind) {
  const OutputFile& file = output_file(kind);
  choose_families(interactive);
  const std::unique_ptr<Stream> out = openfile(name, "w");
  if (!out) {
    if (!interactive) std::fprintf(stderr, "Cannot open %sfile %s\n", file.name, name ? name : "");
    return false;
  }
  file.set_name(name);
  Run run{*out, vqc_comment_code(), vqc_verbose_code()};
  file.write(run);
  closefile(*out);
  return true;
}

bool batch_generate(const char* name, int kind) { return generate(name, false, kind); }
