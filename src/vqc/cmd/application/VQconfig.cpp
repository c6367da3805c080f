// The program: start-up, and the choice between a batch run and a session with the user.

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <new>

#include "desktop/search_path.h"
#include "vqc/cmd/application/batch.h"
#include "vqc/cmd/application/command_line.h"
#include "vqc/cmd/application/session.h"

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

[[noreturn]] void give_up(const char* program, const char* reason) {
  std::fprintf(stderr, "%s: %s. Exiting...\n", program, reason);
  std::exit(-1);
}

}  // namespace

int main(int argc, char** argv) {
  open_standard_streams();
  give_large_memory_back();
  std::set_new_handler(give_up_for_memory);
  use_installation();
  const char* obstacle = open_display(&argc, argv);
  parse_command_line(argc, argv);
  interactive = !batch_config && !batch_code && !batch_stubs;
  if (!interactive) std::exit(vqc_batch_mode());
  if (obstacle) give_up(argv[0], obstacle);
  if (!start_session(argc, argv)) give_up(argv[0], "cannot create interface");
  serve_user();
}
