// Keeps the shell of the main window.

#include "vqc/cmd/editors/kit/main_shell.h"

namespace vqc::editors {

namespace {

Widget the_shell = nullptr;

}  // namespace

Widget main_shell() { return the_shell; }

void set_main_shell(Widget shell) { the_shell = shell; }

}  // namespace vqc::editors
