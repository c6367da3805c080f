#include "vqc/cmd/application/start_up.h"

#include <fcntl.h>
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

/// Ends a batch run that is short of memory: going on would lose a part of the document without a word.
[[noreturn]] void give_up_for_memory() {
  std::fputs("vqconfig: out of memory. Exiting...\n", stderr);
  std::_Exit(-1);
}

}  // namespace

void prepare_process() {
  open_standard_streams();
  std::set_new_handler(give_up_for_memory);
}

void give_up(const char* program, const std::string& reason) {
  std::fprintf(stderr, "%s: %s. Exiting...\n", program, reason.c_str());
  std::exit(-1);
}

}  // namespace vqc
