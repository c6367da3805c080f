// The program that users start. It serves batch runs, the explanation and the usage, and becomes the editor for all
// else. It knows nothing of X, so that a machine that only generates needs none of X's libraries.

#include <cstdlib>

#include "vqc/cmd/application/batch.h"
#include "vqc/cmd/application/command_line.h"
#include "vqc/cmd/application/editor.h"
#include "vqc/cmd/application/start_up.h"
#include "vqc/cmd/application/toolkit_words.h"

using namespace vqc;

int main(int argc, char** argv) {
  prepare_process();
  if (!has_toolkit_words(argc, argv)) {
    parse_command_line(argc, argv);
    if (!interactive) std::exit(vqc_batch_mode());
  }
  become_editor(argv);
}
