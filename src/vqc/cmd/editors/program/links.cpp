// Callbacks that interface code can name.

#include "vqc/cmd/editors/program/links.h"

namespace {

template <class Action>
void with_linked(XtPointer address, Action action) {
  const auto* widget = static_cast<const Widget*>(address);
  if (widget && *widget) action(*widget);
}

}  // namespace

void VQmanage_link(Widget, XtPointer address, XtPointer) { with_linked(address, XtManageChild); }

void VQunmanage_link(Widget, XtPointer address, XtPointer) { with_linked(address, XtUnmanageChild); }

void VQpopup_link(Widget, XtPointer address, XtPointer) {
  with_linked(address, [](Widget w) { XtPopup(w, XtGrabNone); });
}

void VQpopdown_link(Widget, XtPointer address, XtPointer) { with_linked(address, XtPopdown); }

void VQmap_link(Widget, XtPointer address, XtPointer) {
  with_linked(address, [](Widget w) { XMapWindow(XtDisplay(w), XtWindow(w)); });
}

void VQunmap_link(Widget, XtPointer address, XtPointer) {
  with_linked(address, [](Widget w) { XUnmapWindow(XtDisplay(w), XtWindow(w)); });
}

void VQenable_link(Widget, XtPointer address, XtPointer) {
  with_linked(address, [](Widget w) { XtSetSensitive(w, True); });
}

void VQdisable_link(Widget, XtPointer address, XtPointer) {
  with_linked(address, [](Widget w) { XtSetSensitive(w, False); });
}
