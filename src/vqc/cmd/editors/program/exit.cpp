// Ends a session.

#include "vqc/cmd/editors/program/exit.h"

#include <cstdlib>

#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/editors/kit/placement.h"
#include "vqc/cmd/editors/program/help.h"
#include "vqc/cmd/editors/safety_net.h"

namespace vqc::editors {

void ExitVQConfig(int status) {
  vqc_QuitHelp();
  guarded(keep_places);
  guarded(end_safety_net);
  std::exit(status);
}

}  // namespace vqc::editors
