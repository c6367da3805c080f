// Generates without a user.

#include "vqc/cmd/application/batch.h"

#include <unistd.h>

#include <cstdio>
#include <memory>
#include <string>

#include "vqc/cmd/generate/generate.h"
#include "vqc/cmd/savefile/load.h"

namespace vqc {

namespace {

struct Request {
  const bool& wanted;
  const char* const& name;
  FileKind kind;
};

/// In the order in which they are generated.
const Request requests[] = {
    {batch_config, batch_config_file, CONFIG_FILE},
    {batch_code, batch_code_file, CODE_FILE},
    {batch_stubs, batch_stubs_file, STUBS_FILE},
};

int fail(const char* what) {
  std::fprintf(stderr, "%s%s\n", what, batch_save_file);
  return -1;
}

/// Loads the save file. Errors in it, which are shown nowhere, leave what was read before them.
bool load_save_file(Document& document) {
  const auto source = Source::read(batch_save_file);
  Diagnostics findings;
  return source && load(source, document, findings).has_header;
}

bool generate_requested(Document& document, const Request& request) {
  const std::string name = request.name ? request.name : batch_file_name(batch_save_file, request.kind);
  if (generate_file(document, name.c_str(), all_families(document), request.kind, {})) return true;
  std::fprintf(stderr, "Cannot open %sfile %s\n", file_kind_name(request.kind), name.c_str());
  return false;
}

}  // namespace

int vqc_batch_mode() {
  if (!batch_save_file) return -1;
  if (access(batch_save_file, F_OK) != 0) return fail("Cannot open file ");
  Document document;
  document.compatibility = batch_compatibility;
  if (!load_save_file(document)) return fail("Could not parse file ");
  for (const Request& request : requests) {
    if (request.wanted && !generate_requested(document, request)) return 1;
  }
  return 0;
}

}  // namespace vqc
