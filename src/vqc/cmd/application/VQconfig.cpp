// The program: start-up, and the choice between a batch run and a session with the user.

#include <X11/Intrinsic.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "vqc/cmd/application/batch.h"
#include "vqc/cmd/application/command_line.h"

namespace {

bool interactive = false;
Display* display = nullptr;

/// Gives closed standard streams a place, so that no file that is opened later is taken for one of them.
void open_standard_streams() {
  int descriptor = 0;
  do {
    descriptor = open("/dev/null", O_RDWR);
  } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
  if (descriptor > STDERR_FILENO) close(descriptor);
}

/// Connects to the display if there is one. Returns the message that a session would have to end with, or null.
const char* open_display(int* argc, char** argv) {
  XtSetLanguageProc(nullptr, nullptr, nullptr);
  XtToolkitInitialize();
  XtAppContext context = XtCreateApplicationContext();
  if (!context) return "cannot initialise application context";
  display = XtOpenDisplay(context, nullptr, argv[0], "VQconfig", nullptr, 0, argc, argv);
  return display ? nullptr : "cannot open display";
}

[[noreturn]] void give_up(const char* program, const char* reason) {
  std::fprintf(stderr, "%s: %s. Exiting...\n", program, reason);
  std::exit(-1);
}

}  // namespace

int main(int argc, char** argv) {
  open_standard_streams();
  const char* obstacle = open_display(&argc, argv);
  parse_command_line(argc, argv);
  interactive = !batch_config && !batch_code && !batch_stubs;
  if (!interactive) std::exit(vqc_batch_mode());
  give_up(argv[0], obstacle ? obstacle : "cannot create interface");
}
