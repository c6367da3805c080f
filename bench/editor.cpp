// Measures what a user of the editor waits for. Needs a display.
//
//   editor start [DOCUMENT]           ends when the main window has been mapped and painted
//   editor act DOCUMENT FAMILY        prints the CPU milliseconds of single actions, one "action milliseconds" a line,
//                                     and between them how much memory it has taken at most so far, in
//                                     megabytes; the document has a family of that name
//
// The program's own callbacks are called, as the buttons call them, and all events that follow are served. What the
// user waits for is counted: not what other threads do, or this one when it is idle.

#include <X11/Intrinsic.h>
#include <Xm/List.h>
#include <Xm/SelectioB.h>
#include <Xm/TextF.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>

#include "desktop/search_path.h"
#include "vqc/cmd/application/command_line.h"
#include "vqc/cmd/editors/kit/main_shell.h"
#include "vqc/cmd/editors/program/session.h"

using namespace vqc;
using namespace vqc::editors;

namespace {

XtAppContext context() { return XtWidgetToApplicationContext(main_shell()); }

/// Serves events until the server has answered all and none is left.
void settle() {
  for (int quiet = 0; quiet < 2; ++quiet) {
    XSync(display, False);
    while (XtAppPending(context())) {
      XtAppProcessEvent(context(), XtIMAll);
      quiet = 0;
    }
  }
}

/// Lets the program finish what it leaves for when it is idle.
void rest() {
  constexpr int kQuiet = 20;  // less than what a text cursor blinks in
  constexpr std::chrono::milliseconds kMoment(10);
  for (int quiet = 0; quiet < kQuiet; ++quiet) {
    if (XtAppPending(context())) quiet = 0;
    settle();
    std::this_thread::sleep_for(kMoment);
  }
}

void wait_until_mapped() {
  for (bool mapped = false; !mapped;) {
    XEvent event;
    XtAppNextEvent(context(), &event);
    mapped = event.type == MapNotify && event.xmap.window == XtWindow(main_shell());
    XtDispatchEvent(&event);
  }
  settle();
}

double milliseconds() {
  timespec now;
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

template <class Action>
void measure(const char* name, Action action) {
  const double before = milliseconds();
  action();
  settle();
  std::printf("%s %.3f\n", name, milliseconds() - before);
  rest();
}

Widget named(const std::string& name) { return XtNameToWidget(main_shell(), const_cast<char*>(("*" + name).c_str())); }

Widget list_of(const char* box) { return XtNameToWidget(named(box), const_cast<char*>("*ItemsList")); }

void press(Widget button) { XtCallCallbacks(button, XmNactivateCallback, nullptr); }

void press_in(const char* box, const char* button) {
  XmPushButtonCallbackStruct call{XmCR_ACTIVATE, nullptr, 1};
  XtCallCallbacks(XtNameToWidget(named(box), const_cast<char*>(button)), XmNactivateCallback, &call);
}

void name_in(const char* box, const char* name) {
  XmTextFieldSetString(XtNameToWidget(named(box), const_cast<char*>("Text")), const_cast<char*>(name));
}

void type_at_end(Widget field, const char* text) {
  XmTextFieldInsert(field, XmTextFieldGetLastPosition(field), const_cast<char*>(text));
}

void act_in_lists(const char* family) {
  name_in("family_selection", family);
  measure("open_family_dialog", [] { press_in("family_selection", "OK"); });
  Widget families = list_of("family_selection");
  measure("choose_another_family", [families] { XmListSelectPos(families, 1, True); });
  XmString item = XmStringCreateLocalized(const_cast<char*>(family));
  measure("choose_large_family", [&] { XmListSelectItem(families, item, True); });
  XmStringFree(item);
  name_in("widgetlist_selection", "benchWidgetClass");
  measure("add_widget", [] { press_in("widgetlist_selection", "Apply"); });
  Widget widgets = list_of("widgetlist_selection");
  XmListSelectPos(widgets, 0, False);
  measure("move_widget", [] { press(named("widgetlist_uparrow")); });
  measure("choose_widget", [widgets] { XmListSelectPos(widgets, 1, True); });
  measure("open_widget_editor", [] { press_in("widgetlist_selection", "OK"); });
  Widget resource = named("we_resource_t");
  measure("type_resource_name", [resource] {
    for (const char* letter : {"X", "t", "N", "b", "e", "n", "c", "h"}) {
      XmTextFieldInsert(resource, XmTextFieldGetInsertionPosition(resource), const_cast<char*>(letter));
      settle();
    }
  });
  measure("add_resource", [] { press(named("we_resource_upd_b")); });
  measure("delete_widget", [] { press_in("widgetlist_selection", "Cancel"); });
  measure("undo", [] { press(named("family_undob")); });
  measure("redo", [] { press(named("family_redob")); });
}

void search() {
  measure("open_go_to", [] { press(named("family_gotob")); });
  for (const char* letter : {"r", "e", "s"}) {
    measure(letter[0] == 'r' ? "go_to_first_letter" : "go_to_next_letter",
            [letter] { type_at_end(named("goto_name"), letter); });
  }
  measure("close_go_to", [] { press(named("goto_closeb")); });
  measure("open_problems", [] { press(named("family_problemsb")); });
  measure("open_uses", [] { press(named("family_usesb")); });
  type_at_end(named("uses_name"), "settings");
  measure("show_uses", [] { press(named("uses_showb")); });
}

void act_in_table() {
  measure("open_table", [] { press(named("family_resourcesb")); });
  measure("filter_table", [] { type_at_end(named("resources_filter"), "1"); });
  measure("filter_table_further", [] { type_at_end(named("resources_filter"), "2"); });
  XmTextFieldSetString(named("resources_filter"), const_cast<char*>(""));
  rest();
  XtVaSetValues(named("resources_sort_opt"), XmNmenuHistory, named("resources_sort_menu_name"), nullptr);
  measure("sort_table", [] { XtCallCallbacks(named("resources_descending"), XmNvalueChangedCallback, nullptr); });
  measure("select_all_rows", [] { press(named("resources_allb")); });
  type_at_end(named("resources_value"), "bench");
  measure("set_all_rows", [] { press(named("resources_setb")); });
  measure("undo_all_rows", [] { press(named("family_undob")); });
}

/// The most that the program has held so far.
void print_memory(const char* when) {
  constexpr std::string_view kPeak = "VmHWM:";
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(kPeak)) std::printf("memory_%s %.0f\n", when, std::stod(line.substr(kPeak.size())) / 1024);
  }
}

void act(const char* family) {
  print_memory("start");
  act_in_lists(family);
  print_memory("lists");
  search();
  print_memory("search");
  act_in_table();
  print_memory("table");
}

int stop(const char* message) {
  std::fprintf(stderr, "%s\n", message);
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return stop("usage: editor start [DOCUMENT] | editor act DOCUMENT FAMILY");
  const std::string mode = argv[1];
  argv[1] = argv[0];
  const char* family = mode == "act" && argc == 4 ? argv[3] : nullptr;
  int words = argc - 1 - (family ? 1 : 0);
  use_installation();
  if (const char* obstacle = open_display(&words, argv + 1)) return stop(obstacle);
  parse_command_line(words, argv + 1);
  interactive = true;
  if (!start_session(words, argv + 1)) return stop("no main window");
  wait_until_mapped();
  if (family) act(family);
}
