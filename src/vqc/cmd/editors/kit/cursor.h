#ifndef VQC_CMD_EDITORS_KIT_CURSOR_H
#define VQC_CMD_EDITORS_KIT_CURSOR_H

// The busy cursor.

#include <Xm/Xm.h>

namespace vqc::editors {

/// Show the busy cursor, or the normal one again, in the window of the shell that holds `w`. 0, with nothing done, for
/// null, for a gadget, and while there is no shell, window or cursor.
int set_watch_cursor(Widget w);
int set_normal_cursor(Widget w);

/// The busy cursor for as long as a callback works.
class BusyCursor {
 public:
  explicit BusyCursor(Widget w) : widget_(w) { set_watch_cursor(w); }
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;
  ~BusyCursor() { set_normal_cursor(widget_); }

 private:
  Widget widget_;
};

}  // namespace vqc::editors

#endif
