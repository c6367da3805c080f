// The editor: start-up as vqconfig has it, with the toolkit's part.

#include <sys/prctl.h>

#include <cerrno>
#include <cstdlib>

#include "desktop/search_path.h"
#include "vqc/cmd/application/batch.h"
#include "vqc/cmd/application/command_line.h"
#include "vqc/cmd/application/start_up.h"
#include "vqc/cmd/editors/program/session.h"

using namespace vqc;
using namespace vqc::editors;

namespace {

/// Has lists of processes show the name that the program was started with, as messages and resources do. The user has
/// started vqconfig, and knows nothing of the file that this program lies in.
void show_given_name() { prctl(PR_SET_NAME, program_invocation_short_name); }

}  // namespace

int main(int argc, char** argv) {
  prepare_process();
  show_given_name();
  use_installation();
  const char* obstacle = open_display(&argc, argv);
  parse_command_line(argc, argv);
  if (!interactive) std::exit(vqc_batch_mode());
  if (obstacle) give_up(argv[0], obstacle);
  if (!start_session(argc, argv)) give_up(argv[0], "cannot create interface");
  serve_user();
}
