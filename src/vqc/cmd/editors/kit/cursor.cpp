// Shows the busy cursor in the window of a widget.

#include "vqc/cmd/editors/kit/cursor.h"

#include <X11/cursorfont.h>
#include <Xm/Gadget.h>

#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

constexpr unsigned kLastShape = 154;

/// One cursor of the cursor font, made when it is first shown and kept.
struct ShapedCursor {
  unsigned shape;
  Cursor cursor = None;
};

int show_cursor(Widget w, ShapedCursor& shaped) {
  if (!w || XmIsGadget(w)) return 0;
  w = shell_around(w);
  if (!w || !XtDisplay(w) || !XtWindow(w)) return 0;
  if (shaped.cursor == None && shaped.shape <= kLastShape)
    shaped.cursor = XCreateFontCursor(XtDisplay(w), shaped.shape);
  if (shaped.cursor == None) return 0;
  XDefineCursor(XtDisplay(w), XtWindow(w), shaped.cursor);
  XFlush(XtDisplay(w));
  return 1;
}

}  // namespace

int set_watch_cursor(Widget w) {
  static ShapedCursor watch{XC_watch};
  return show_cursor(w, watch);
}

int set_normal_cursor(Widget w) {
  static ShapedCursor pointer{XC_left_ptr};
  return show_cursor(w, pointer);
}

}  // namespace vqc::editors
