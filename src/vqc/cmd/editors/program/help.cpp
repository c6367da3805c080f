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
  const Text path = vqc_HelpPath(XtDisplayOfObject(w), topic);
  if (!path || VQHelp(anchor, path) == -1) error_show("no_help_topic");
}

void vqc_QuitHelp() {
  if (anchor) QuitHelpViewer(anchor);
}

}  // namespace vqc::editors
