#ifndef VQC_CMD_GENERATE_PARSE_STUBS_H
#define VQC_CMD_GENERATE_PARSE_STUBS_H

#include <memory>

#include "libkel/text.h"
#include "vqc/cmd/generate/walk.h"

// The marks by which a stubs file can be read back, and the cache of the stubs that were found in one. Each text stands
// until the next call of its function. With a null name a comment becomes the pattern that such comments follow, with
// "%s" for the name.

const char* vqc_stub_prelude_start();
const char* vqc_stub_prelude_end();
const char* vqc_stub_vq_prelude_end();
const char* vqc_stub_orvo_prelude_end();
const char* vqc_stub_comment(const char* name);
const char* vqc_stub_vq_comment(const char* name);
const char* vqc_stub_orvo_comment(const char* name);

/// The cache owns copies of its names.
void vqc_clear_stub_cache();
void vqc_add_stub_cache(const Text& name);
/// Whether a stub of that name is there already.
bool vqc_check_stub_space(const Text& name);

/// A writer of part of the prelude.
using PreludeWriter = void (*)(Run& run);

/// Begins a stubs file: the two writers write its prelude (null writes nothing), then everything after the prelude of
/// an `old` stubs file is carried over and its stubs are remembered in the cache, which is empty before. Null for no
/// old file.
void vqc_init_stubs_file(Run& run, std::unique_ptr<Stream> old, PreludeWriter prelude, PreludeWriter prelude_end);

#endif
