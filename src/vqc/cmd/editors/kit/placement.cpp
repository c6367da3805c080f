// Places windows as they open, and remembers where the user has left them.

#include "vqc/cmd/editors/kit/placement.h"

#include <Xm/MessageB.h>

#include <memory>
#include <optional>
#include <vector>

#include "vqc/cmd/editors/kit/beside.h"
#include "vqc/cmd/editors/kit/least_size.h"
#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/editors/kit/on_screen.h"
#include "vqc/cmd/editors/kit/window_memory.h"

namespace vqc::editors {

namespace {

constexpr char kMainWindow[] = "main_window";

/// A window of the program. Window managers take a place for that of the frame and tell of that of the contents, each
/// in its own way. So what the user has done is the way from where a window came up to where it is, and is added to
/// the place that was asked for: a window that nobody moves does not drift.
struct Placed {
  Widget shell;
  Widget owner = nullptr;  // in which the user acted when it opened
  bool kept = true;
  std::optional<ScreenArea> asked = std::nullopt;
  ScreenArea came_up = {};
  ScreenArea now = {};
};

struct Placement {
  std::vector<std::unique_ptr<Placed>> windows;
  WindowMemory memory;
  bool recalled = false;
  bool changed = false;
};

Placement& placement() {
  static Placement all;
  return all;
}

// What the user does to windows.

WindowMemory& memory_for(Widget shell) {
  Placement& all = placement();
  if (!all.recalled) all.memory = recalled_windows(screen_of(shell));
  all.recalled = true;
  return all.memory;
}

const char* name_of(Widget shell) { return XtIsApplicationShell(shell) ? kMainWindow : XtName(shell); }

/// Remembers what the user has done since the window came up.
void remember(Placed& window) {
  const bool moved = window.now.x != window.came_up.x || window.now.y != window.came_up.y;
  const bool resized = window.now.width != window.came_up.width || window.now.height != window.came_up.height;
  if (!window.kept || !window.asked || (!moved && !resized)) return;
  ScreenArea& remembered = memory_for(window.shell)[name_of(window.shell)];
  const ScreenArea size = resized ? window.now : remembered;
  remembered = {window.asked->x + window.now.x - window.came_up.x, window.asked->y + window.now.y - window.came_up.y,
                size.width, size.height};
  window.asked = remembered;
  window.came_up = window.now;
  placement().changed = true;
}

/// A window that no place was asked for is where its frame is.
void has_come_up(Placed& window) {
  window.came_up = window.now = window_area(window.shell);
  if (!window.asked) window.asked = frame_of(window.shell);
}

void watch(Widget shell, XtPointer data, XEvent* event, Boolean*) {
  Placed& window = *static_cast<Placed*>(data);
  if (event->type == MapNotify) has_come_up(window);
  if (event->type == ConfigureNotify && is_shown(shell)) window.now = window_area(shell);
  if (event->type == UnmapNotify) guarded([&] { remember(window); });
}

Placed& placed(Widget shell) {
  auto& windows = placement().windows;
  for (const auto& window : windows) {
    if (window->shell == shell) return *window;
  }
  windows.push_back(std::make_unique<Placed>(Placed{.shell = shell}));
  XtAddEventHandler(shell, StructureNotifyMask, False, watch, windows.back().get());
  return *windows.back();
}

// Where a window opens.

/// The window in which the user has acted, perhaps in a menu of it.
Widget acting_shell(Display* display) {
  const XEvent* event = XtLastEventProcessed(display);
  Widget w = event ? XtWindowToWidget(display, event->xany.window) : nullptr;
  while (w && !XtIsWMShell(w)) w = XtParent(w);
  return w;
}

/// That window; if it has gone since, the one in which he acted before.
Widget owner_of(Widget shell) {
  Widget owner = acting_shell(XtDisplay(shell));
  if (!owner || owner == shell) owner = placed(shell).owner;
  while (owner && !is_shown(owner)) owner = placed(owner).owner;
  return owner ? owner : XtParent(shell);
}

/// No window is, by way of others, its own owner.
void set_owner(Widget shell, Widget owner) {
  for (Widget w = owner; w; w = placed(w).owner) {
    if (placed(w).owner == shell) placed(w).owner = nullptr;
  }
  placed(shell).owner = owner;
}

std::vector<ScreenArea> others_shown(Widget shell, Widget owner) {
  std::vector<ScreenArea> areas;
  for (const auto& window : placement().windows) {
    const bool other = window->shell != shell && window->shell != owner;
    if (other && is_shown(window->shell)) areas.push_back(frame_of(window->shell));
  }
  return areas;
}

/// Where a window of that size inside opens by its owner. Its frame will be as thick as the owner's.
ScreenArea chosen(Widget shell, ScreenArea size, Place place) {
  Widget owner = owner_of(shell);
  set_owner(shell, owner);
  const ScreenArea screen = free_screen(shell);
  if (!is_shown(owner)) return area_over(size, screen, screen);
  const Neighbour beside = neighbour(owner);
  const ScreenArea inside = window_area(owner);
  const ScreenArea frame = {0, 0, size.width + beside.frame.width - inside.width,
                            size.height + beside.frame.height - inside.height};
  const ScreenArea where = place == Place::over ? area_over(frame, beside.frame, screen)
                                                : area_beside(frame, beside, others_shown(shell, owner), screen);
  return {where.x, where.y, size.width, size.height};
}

/// What is remembered of a window; null when nothing is.
const ScreenArea* remembered(Widget shell) {
  const auto found = memory_for(shell).find(name_of(shell));
  return found == memory_for(shell).end() ? nullptr : &found->second;
}

/// The size that a window opens with: no less than its least one, and what the screen has room for.
ScreenArea opening_size(Widget contents, const ScreenArea* remembered_area) {
  ScreenArea size = lay_out_contents(contents);
  if (remembered_area && remembered_area->width > 0) size = *remembered_area;
  int least_width = 0;
  int least_height = 0;
  XtVaGetValues(XtParent(contents), XmNminWidth, &least_width, XmNminHeight, &least_height, nullptr);
  const ScreenArea screen = free_screen(contents);
  return {0, 0, std::min(std::max(size.width, least_width), screen.width),
          std::min(std::max(size.height, least_height), screen.height)};
}

/// Asks for a place in the one way in which window managers believe that a user wants it.
void ask_for_place(Widget main_shell, const ScreenArea& area) {
  static std::string geometry;  // the shell keeps its address
  geometry = geometry_of({area.x, area.y, 0, 0});
  XtVaSetValues(main_shell, XmNgeometry, geometry.c_str(), nullptr);
}

bool has_geometry(Widget shell) {
  const char* geometry = nullptr;
  XtVaGetValues(shell, XmNgeometry, &geometry, nullptr);
  return geometry != nullptr;
}

}  // namespace

void place_dialog(Widget contents, Place place) {
  Widget shell = XtParent(contents);
  Placed& window = placed(shell);
  window.kept = !XmIsMessageBox(contents);
  const ScreenArea* left = window.kept ? remembered(shell) : nullptr;
  const ScreenArea size = opening_size(contents, left);
  const ScreenArea area = chosen(shell, size, place);
  window.asked = left ? *left : area;
  XtVaSetValues(contents, XmNdefaultPosition, False, XmNwidth, size.width, XmNheight, size.height, nullptr);
  XtVaSetValues(shell, XmNx, window.asked->x, XmNy, window.asked->y, nullptr);
  XMoveWindow(XtDisplay(shell), XtWindow(shell), window.asked->x, window.asked->y);
}

void show_main_window(Widget shell, Widget contents) {
  Placed& window = placed(shell);
  const ScreenArea* left = has_geometry(shell) ? nullptr : remembered(shell);
  if (left) {
    window.asked = *left;
    ask_for_place(shell, *left);
  }
  const ScreenArea size = opening_size(contents, left);
  if (left) XtVaSetValues(shell, XmNwidth, size.width, XmNheight, size.height, nullptr);
  XtMapWidget(shell);
}

void keep_places() {
  Placement& all = placement();
  if (all.windows.empty()) return;
  for (const auto& window : all.windows) {
    if (is_shown(window->shell)) remember(*window);
  }
  if (all.changed) keep_windows(screen_of(all.windows.front()->shell), all.memory);
}

}  // namespace vqc::editors
