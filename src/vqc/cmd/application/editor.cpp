#include "vqc/cmd/application/editor.h"

#include <unistd.h>

#include <string>

#include "libkel/installation.h"
#include "libkel/message.h"
#include "vqc/cmd/application/start_up.h"

namespace vqc {

void become_editor(char** argv) {
  const std::string editor = installed("libexec/vqconfig-editor");
  execv(editor.c_str(), argv);
  give_up(argv[0], "cannot start the editor, " + editor + ": " + system_errmsg());
}

}  // namespace vqc
