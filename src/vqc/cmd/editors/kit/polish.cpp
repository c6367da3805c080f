// Smooths what the toolkit leaves rough in a dialog.

#include "vqc/cmd/editors/kit/polish.h"

#include <Xm/ArrowB.h>
#include <Xm/FileSB.h>
#include <Xm/PushB.h>
#include <Xm/PushBG.h>
#include <Xm/RowColumn.h>
#include <Xm/TextF.h>

#include <algorithm>

#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

void show_cursor(Widget field, XtPointer, XtPointer) { XtVaSetValues(field, XmNcursorPositionVisible, True, nullptr); }

void hide_cursor(Widget field, XtPointer, XtPointer) { XtVaSetValues(field, XmNcursorPositionVisible, False, nullptr); }

/// The toolkit shows a faint cursor where it has no meaning.
void show_cursor_with_focus(Widget field) {
  hide_cursor(field, nullptr, nullptr);
  XtAddCallback(field, XmNfocusCallback, show_cursor, nullptr);
  XtAddCallback(field, XmNlosingFocusCallback, hide_cursor, nullptr);
}

Dimension minimum_width(Widget button) {
  XtResource resource = {const_cast<char*>("minimumWidth"),
                         const_cast<char*>(XmCWidth),
                         const_cast<char*>(XmRHorizontalDimension),
                         sizeof(Dimension),
                         0,
                         const_cast<char*>(XmRImmediate),
                         nullptr};
  Dimension width = 0;
  XtGetApplicationResources(button, &width, &resource, 1, nullptr, 0);
  return width;
}

/// A button of a dialog; what stands in a menu is as wide as the menu.
bool is_button(Widget w) { return (XmIsPushButton(w) || XmIsPushButtonGadget(w)) && !XmIsRowColumn(XtParent(w)); }

/// A button keeps the size that it has at first: the toolkit would make the default button of a row, and so the row,
/// higher or not with the width of its label.
void settle_size(Widget button) {
  Dimension width = 0;
  XtVaGetValues(button, XmNwidth, &width, nullptr);
  XtVaSetValues(button, XmNrecomputeSize, False, XmNwidth, std::max(width, minimum_width(button)), nullptr);
}

/// The toolkit draws the tip of an arrow only where the size of its button is odd.
void show_tip(Widget arrow) {
  Dimension width = 0;
  Dimension height = 0;
  XtVaGetValues(arrow, XmNwidth, &width, XmNheight, &height, nullptr);
  XtVaSetValues(arrow, XmNwidth, width | 1, XmNheight, height | 1, nullptr);
}

/// The toolkit draws a menu item's shortcut twice, which blackens its edges: a rendition of its own takes that back.
void lighten_shortcut(Widget item) {
  XmString shortcut = nullptr;
  XtVaGetValues(item, XmNacceleratorText, &shortcut, nullptr);
  const std::string text = text_of(shortcut);
  XmStringFree(shortcut);
  if (text.empty()) return;
  XmString lighter = XmStringCreate(const_cast<char*>(text.c_str()), const_cast<char*>("shortcut"));
  XtVaSetValues(item, XmNacceleratorText, lighter, nullptr);
  XmStringFree(lighter);
}

/// Makes a widget the last one of its window to which Tab goes; null is none.
void put_last_in_tab_order(Widget w) {
  if (!w) return;
  XmRemoveTabGroup(w);
  XmAddTabGroup(w);
}

/// Tab goes down the columns of a file box; left to the toolkit, it jumps between them. A box that shows whole paths
/// has no field for the folder.
void order_tabs(Widget file_box) {
  if (Widget row = XtNameToWidget(file_box, "search_row")) put_last_in_tab_order(children_of(row).front());
  for (const char* part : {"DirText", "FilterText", "DirListSW", "*DirList", "ItemsListSW", "*ItemsList"}) {
    put_last_in_tab_order(XtNameToWidget(file_box, part));
  }
  put_last_in_tab_order(XmFileSelectionBoxGetChild(file_box, XmDIALOG_WORK_AREA));
  put_last_in_tab_order(XtNameToWidget(file_box, "Text"));
  put_last_in_tab_order(file_box);  // for its buttons
}

}  // namespace

void polish(Widget dialog) {
  if (XmIsTextField(dialog)) show_cursor_with_focus(dialog);
  if (is_button(dialog)) settle_size(dialog);
  if (XmIsFileSelectionBox(dialog)) order_tabs(dialog);
  if (XmIsArrowButton(dialog)) show_tip(dialog);
  if (XmIsPushButton(dialog) && is_menu(XtParent(dialog))) lighten_shortcut(dialog);
  for (Widget child : children_of(dialog)) polish(child);
}

}  // namespace vqc::editors
