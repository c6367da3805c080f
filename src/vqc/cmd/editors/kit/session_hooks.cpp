// Hands the press of a Help button on.

#include "vqc/cmd/editors/kit/session_hooks.h"

#include "vqc/cmd/editors/kit/cursor.h"

namespace vqc::editors {

void vqc_do_help(Widget w, XtPointer topic, XtPointer) {
  const BusyCursor busy(w);
  if (session_hooks.help) session_hooks.help(w, static_cast<const char*>(topic));
}

}  // namespace vqc::editors
