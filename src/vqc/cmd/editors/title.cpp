// Sets the titles of windows.

#include "vqc/cmd/editors/title.h"

#include <string>

#include "libkel/leafnm.h"
#include "libkel/message.h"
#include "vqc/cmd/editors/kit/main_shell.h"

namespace vqc::editors {

void vqc_set_title(const char* path) {
  if (!main_shell()) return;
  std::string title = "vqconfig";
  if (path) title.append(": ").append(leafnm(path));
  XtVaSetValues(main_shell(), XmNtitle, title.c_str(), nullptr);
}

void vq_set_title(Widget shell, const char* resource_name, Text arg) {
  const char* format = vq_lookup_string(resource_name);
  if (!format || !*format) return;
  const std::string shown(arg ? arg.view() : Text(vq_lookup_string("none")).view());
  const std::string title = filled(format, {shown.c_str()});
  XtVaSetValues(shell, XmNtitle, title.c_str(), nullptr);
}

}  // namespace vqc::editors
