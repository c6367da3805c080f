#include "desktop/window_properties.h"

#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xatom.h>
#include <unistd.h>

#include <cstring>
#include <cwchar>
#include <new>

#include "libkel/utf8.h"

namespace vqc {

namespace {

void set_property(Widget shell, const char* name, Atom type, int format, const void* data, std::size_t count) {
  Display* display = XtDisplay(shell);
  XChangeProperty(display, XtWindow(shell), XInternAtom(display, name, False), type, format, PropModeReplace,
                  static_cast<const unsigned char*>(data), static_cast<int>(count));
}

void tell_process(Widget shell) {
  const long process = getpid();  // Xlib takes 32 bits as long
  set_property(shell, "_NET_WM_PID", XA_CARDINAL, 32, &process, 1);
}

const char* kind_of(Widget shell) {
  if (XtIsOverrideShell(shell)) return "_NET_WM_WINDOW_TYPE_DROPDOWN_MENU";  // the program has no others
  return XtIsTransientShell(shell) ? "_NET_WM_WINDOW_TYPE_DIALOG" : "_NET_WM_WINDOW_TYPE_NORMAL";
}

void tell_kind(Widget shell) {
  const Atom kind = XInternAtom(XtDisplay(shell), kind_of(shell), False);
  set_property(shell, "_NET_WM_WINDOW_TYPE", XA_ATOM, 32, &kind, 1);
}

/// What is none of the locale is taken for UTF-8, and what is not that for Latin-1.
std::string utf8_of_locale(const std::string& text) {
  std::wstring characters(text.size(), L'\0');
  std::mbstate_t state{};
  const char* from = text.c_str();
  const std::size_t count = std::mbsrtowcs(characters.data(), &from, characters.size(), &state);
  if (count == static_cast<std::size_t>(-1)) return as_utf8(text);
  std::string result;
  for (wchar_t character : characters.substr(0, count)) result += utf8(static_cast<char32_t>(character));
  return result;
}

void tell_title(Widget shell) {
  char* title = nullptr;
  XtVaGetValues(shell, XtNtitle, &title, nullptr);
  if (title) describe_title(shell, utf8_of_locale(title));
}

void describe(Widget shell) {
  tell_process(shell);
  tell_kind(shell);
  if (!XtIsWMShell(shell)) return;
  // The main window's own name is that of the command.
  const char* name = XtIsApplicationShell(shell) ? "main_window" : XtName(shell);
  XtVaSetValues(shell, XtNwindowRole, name, nullptr);
  tell_title(shell);
}

void tell_change(const XtChangeHookDataRec& change) {
  if (!XtIsShell(change.widget) || !XtIsRealized(change.widget)) return;
  if (std::strcmp(change.type, XtHrealizeWidget) == 0) {
    describe(change.widget);
  } else if (std::strcmp(change.type, XtHsetValues) == 0 && XtIsWMShell(change.widget)) {
    tell_title(change.widget);
  }
}

void has_changed(Widget, XtPointer, XtPointer call) {
  try {
    tell_change(*static_cast<XtChangeHookData>(call));
  } catch (const std::bad_alloc&) {  // the window goes on without, and nothing is thrown into the toolkit
  }
}

}  // namespace

void describe_windows(Display* display) {
  XtAddCallback(XtHooksOfDisplay(display), XtNchangeHook, has_changed, nullptr);
}

void describe_title(Widget shell, const std::string& utf8_title) {
  const Atom utf8_string = XInternAtom(XtDisplay(shell), "UTF8_STRING", False);
  for (const char* property : {"_NET_WM_NAME", "_NET_WM_ICON_NAME"}) {
    set_property(shell, property, utf8_string, 8, utf8_title.data(), utf8_title.size());
  }
}

}  // namespace vqc
