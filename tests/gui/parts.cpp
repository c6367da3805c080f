#include "gui/parts.h"

#include <X11/IntrinsicP.h>
#include <Xm/List.h>
#include <Xm/SelectioB.h>

#include "support/windows.h"

using namespace vqc;

Widget list_in(const std::string& list_or_box) {
  Widget w = widget(list_or_box);
  return XmIsList(w) ? w : widget(list_or_box + "*ItemsList");
}

Widget field_in(const std::string& field_or_box) {
  Widget w = widget(field_or_box);
  return XmIsSelectionBox(w) ? widget(field_or_box + ".Text") : w;
}

void for_each_below(Widget w, const std::function<void(Widget)>& function) {
  function(w);
  if (!XtIsWidget(w)) return;
  for (Cardinal i = 0; i < w->core.num_popups; ++i) for_each_below(w->core.popup_list[i], function);
  if (!XtIsComposite(w)) return;
  const auto& composite = reinterpret_cast<CompositeWidget>(w)->composite;
  for (Cardinal i = 0; i < composite.num_children; ++i) for_each_below(composite.children[i], function);
}

bool is_window_viewable(Widget w) { return is_viewable(XtDisplay(w), XtWindow(w)); }
