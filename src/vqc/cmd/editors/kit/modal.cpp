// Watches which dialogs have to be answered first.

#include "vqc/cmd/editors/kit/modal.h"

#include <Xm/MwmUtil.h>

#include <vector>

#include "vqc/cmd/editors/kit/memory.h"

namespace vqc::editors {

namespace {

/// Those that are up, the latest last.
std::vector<Widget>& modal_shells() {
  static std::vector<Widget> shells;
  return shells;
}

void popped_up(Widget shell, XtPointer, XtPointer) {
  int mode = MWM_INPUT_MODELESS;
  XtVaGetValues(shell, XmNmwmInputMode, &mode, nullptr);
  if (mode > MWM_INPUT_MODELESS) guarded([&] { modal_shells().push_back(shell); });
}

void popped_down(Widget shell, XtPointer, XtPointer) { std::erase(modal_shells(), shell); }

}  // namespace

Widget modal_shell() { return modal_shells().empty() ? nullptr : modal_shells().back(); }

void watch_modality(Widget dialog_shell) {
  XtAddCallback(dialog_shell, XtNpopupCallback, popped_up, nullptr);
  XtAddCallback(dialog_shell, XtNpopdownCallback, popped_down, nullptr);
}

}  // namespace vqc::editors
