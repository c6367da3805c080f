#include "gui/parts.h"

#include <Xm/List.h>
#include <Xm/SelectioB.h>

#include "support/windows.h"

Widget list_in(const std::string& list_or_box) {
  Widget w = widget(list_or_box);
  return XmIsList(w) ? w : widget(list_or_box + "*ItemsList");
}

Widget field_in(const std::string& field_or_box) {
  Widget w = widget(field_or_box);
  return XmIsSelectionBox(w) ? widget(field_or_box + ".Text") : w;
}

bool is_window_viewable(Widget w) { return is_viewable(XtDisplay(w), XtWindow(w)); }
