// The program: start-up, and the choice between a batch run and a session with the user.

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "libkel/installation.h"
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

[[noreturn]] void give_up(const char* program, const char* reason) {
  std::fprintf(stderr, "%s: %s. Exiting...\n", program, reason);
  std::exit(-1);
}

}  // namespace

int main(int argc, char** argv) {
  open_standard_streams();
  use_installation();
  const char* obstacle = open_display(&argc, argv);
  parse_command_line(argc, argv);
  interactive = !batch_config && !batch_code && !batch_stubs;
  if (!interactive) std::exit(vqc_batch_mode());
  if (obstacle) give_up(argv[0], obstacle);
  if (!start_session(argc, argv)) give_up(argv[0], "cannot create interface");
  serve_user();
}
