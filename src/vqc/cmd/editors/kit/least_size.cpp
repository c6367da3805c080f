// Measures how far the parts of a window can shrink.

#include "vqc/cmd/editors/kit/least_size.h"

#include <Xm/List.h>
#include <Xm/MessageB.h>
#include <Xm/ScrolledW.h>
#include <Xm/SelectioB.h>
#include <Xm/ToggleB.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

constexpr int kLeastRows = 3;

int height_of(Widget w) {
  Dimension height = 0;
  XtVaGetValues(w, XmNheight, &height, nullptr);
  return height;
}

/// The managed widgets in `w`, itself included, that satisfy `wanted`; none is sought in one that does.
void find_in(Widget w, const std::function<bool(Widget)>& wanted, std::vector<Widget>& found) {
  if (wanted(w)) return found.push_back(w);
  for (Widget child : children_of(w)) {
    if (XtIsManaged(child)) find_in(child, wanted, found);
  }
}

std::vector<Widget> found_in(Widget w, const std::function<bool(Widget)>& wanted) {
  std::vector<Widget> found;
  find_in(w, wanted, found);
  return found;
}

// By how much each can be less high.

int spare_of_list(Widget list) {
  int rows = 0;
  XtVaGetValues(list, XmNvisibleItemCount, &rows, nullptr);
  return rows > kLeastRows ? height_of(list) * (rows - kLeastRows) / rows : 0;
}

int spare_of_message(Widget box) {
  XtWidgetGeometry preferred{};
  XtQueryGeometry(box, nullptr, &preferred);
  return std::max(0, height_of(box) - preferred.height);
}

int spare_of_rows(Widget scrolled_window) {
  Widget clip = nullptr;
  XtVaGetValues(scrolled_window, XmNclipWindow, &clip, nullptr);
  if (!clip) return 0;
  const std::vector<Widget> rows = found_in(clip, [](Widget w) { return XmIsToggleButton(w); });
  return rows.empty() ? 0 : std::max(0, height_of(clip) - kLeastRows * height_of(rows.front()));
}

/// Lists stand beside each other in a box.
int spare_of_box(Widget box) {
  if (XmIsMessageBox(box)) return spare_of_message(box);
  if (XmIsScrolledWindow(box)) return spare_of_rows(box);
  int spare = height_of(box);
  for (Widget list : found_in(box, [](Widget w) { return XmIsList(w); })) spare = std::min(spare, spare_of_list(list));
  return spare;
}

bool can_shrink(Widget w) { return XmIsSelectionBox(w) || XmIsMessageBox(w) || XmIsScrolledWindow(w); }

/// Boxes lie on top of each other. A form with a list beside fields cannot shrink, for their sake.
int spare_height(Widget contents) {
  const std::vector<Widget> boxes = found_in(contents, can_shrink);
  int spare = boxes.empty() ? 0 : height_of(contents);
  for (Widget box : boxes) spare = std::min(spare, spare_of_box(box));
  return spare;
}

/// The size that the contents ask for: a message has another one each time.
ScreenArea asked_for(Widget contents) {
  if (XmIsMessageBox(contents)) {
    XtWidgetGeometry preferred{};
    XtQueryGeometry(contents, nullptr, &preferred);
    return {0, 0, preferred.width, preferred.height};
  }
  Dimension width = 0;
  Dimension height = 0;
  XtVaGetValues(contents, XmNwidth, &width, XmNheight, &height, nullptr);
  return {0, 0, width, height};
}

void realize(Widget contents) {
  Widget shell = XtParent(contents);
  if (!XtIsRealized(shell)) {
    XtSetMappedWhenManaged(shell, False);
    XtRealizeWidget(shell);
  }
  XtRealizeWidget(contents);
}

}  // namespace

ScreenArea lay_out_contents(Widget contents) {
  if (XtIsRealized(contents) && !XmIsMessageBox(contents)) return asked_for(contents);
  realize(contents);
  const ScreenArea size = asked_for(contents);
  Screen* screen = XtScreen(contents);
  XtVaSetValues(XtParent(contents), XmNminWidth, std::min(size.width, XWidthOfScreen(screen)), XmNminHeight,
                std::min(size.height - spare_height(contents), XHeightOfScreen(screen)), nullptr);
  return size;
}

}  // namespace vqc::editors
