#include "vqc/cmd/application/exit.h"

#include <cstdlib>

#include "vqc/cmd/application/help.h"
#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/editors/kit/placement.h"

void ExitVQConfig(int status) {
  vqc_QuitHelp();
  guarded(keep_places);
  std::exit(status);
}
