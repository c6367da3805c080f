// Asks the viewer for pages of help.

#include "vqc/cmd/editors/program/help.h"

#include "help/client/help.h"
#include "libkel/message.h"
#include "vqc/cmd/editors/program/resources.h"

namespace vqc::editors {

namespace {

Widget anchor = nullptr;

}  // namespace

void show_help(Widget w, const char* topic) {
  if (!anchor) anchor = w;
  const std::string path = vqc_HelpPath(XtDisplayOfObject(w), topic);
  if (path.empty() || VQHelp(anchor, path.c_str()) == -1) error_show("no_help_topic");
}

void vqc_QuitHelp() {
  if (anchor) QuitHelpViewer(anchor);
}

}  // namespace vqc::editors
