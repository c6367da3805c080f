#include "vqc/cmd/application/exit.h"

#include <cstdlib>

#include "vqc/cmd/application/help.h"

void ExitVQConfig(int status) {
  vqc_QuitHelp();
  std::exit(status);
}
