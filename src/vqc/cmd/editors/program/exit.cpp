// Ends a session.

#include "vqc/cmd/editors/program/exit.h"

#include <cstdlib>

#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/editors/kit/placement.h"
#include "vqc/cmd/editors/program/help.h"

namespace vqc::editors {

void ExitVQConfig(int status) {
  vqc_QuitHelp();
  guarded(keep_places);
  std::exit(status);
}

}  // namespace vqc::editors
