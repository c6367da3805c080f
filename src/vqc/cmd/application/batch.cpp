#include "vqc/cmd/application/batch.h"

#include <unistd.h>

#include <cstdio>
#include <string>

#include "vqc/cmd/generate/generate.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/parse.h"

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

bool generate_requested(const Request& request) {
  const std::string name = request.name ? request.name : batch_file_name(batch_save_file, request.kind);
  return batch_generate(name.c_str(), request.kind);
}

}  // namespace

int vqc_batch_mode() {
  if (!batch_save_file) return -1;
  if (access(batch_save_file, F_OK) != 0) return fail("Cannot open file ");
  save_file = batch_save_file;
  if (!parseit(&save_file, 1)) return fail("Could not parse file ");
  for (const Request& request : requests) {
    if (request.wanted && !generate_requested(request)) return 1;
  }
  return 0;
}
