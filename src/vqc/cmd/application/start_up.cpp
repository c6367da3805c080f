#include "vqc/cmd/application/start_up.h"

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <new>

namespace vqc {

namespace {

/// Gives closed standard streams a place, so that no file that is opened later is taken for one of them.
void open_standard_streams() {
  int descriptor = 0;
  do {
    descriptor = open("/dev/null", O_RDWR);
  } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
  if (descriptor > STDERR_FILENO) close(descriptor);
}

/// Has large tables given back to the system when they have grown into larger ones. By default the allocator would keep
/// pieces as large as the last that it has given back.
void give_large_memory_back() {
  constexpr int kLarge = 128 * 1024;
  mallopt(M_MMAP_THRESHOLD, kLarge);
}

/// Ends a batch run that is short of memory: going on would lose a part of the document without a word.
[[noreturn]] void give_up_for_memory() {
  std::fputs("vqconfig: out of memory. Exiting...\n", stderr);
  std::_Exit(-1);
}

}  // namespace

void prepare_process() {
  open_standard_streams();
  give_large_memory_back();
  std::set_new_handler(give_up_for_memory);
}

void give_up(const char* program, const std::string& reason) {
  std::fprintf(stderr, "%s: %s. Exiting...\n", program, reason.c_str());
  std::exit(-1);
}

}  // namespace vqc
