// Takes the letters with Ctrl, and function keys, before the toolkit gives a key to a widget.

#include "vqc/cmd/editors/kit/keys.h"

#include <X11/Xutil.h>
#include <X11/keysym.h>
#include <Xm/DialogS.h>

#include <algorithm>
#include <cctype>
#include <unordered_map>

#include "vqc/cmd/editors/kit/modal.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/undo.h"
#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

std::span<const CommandKey> command_keys;
XtEventDispatchProc usual_dispatch = nullptr;
int menus_up = 0;
std::unordered_map<Widget, void (*)(char letter)> answers;

char lower(char letter) { return static_cast<char>(std::tolower(letter)); }

/// The letter that is pressed with Ctrl, a capital if Shift is held too; NUL for any other key. It is taken from the
/// control byte, which does not depend on the locks, and which keys have on keyboards of other scripts too.
char letter_with_control(XKeyEvent& key) {
  constexpr char kLast = 'z' - 'a' + 1;
  if (!(key.state & ControlMask) || key.state & Mod1Mask) return '\0';
  char byte = '\0';
  KeySym symbol = NoSymbol;
  if (XLookupString(&key, &byte, 1, &symbol, nullptr) != 1) return '\0';
  const bool is_letter = byte > 0 && byte <= kLast && symbol < XK_BackSpace;  // Tab and Return are no letters
  return is_letter ? static_cast<char>(byte - 1 + (key.state & ShiftMask ? 'A' : 'a')) : '\0';
}

/// Does to a field, or another widget, what a letter with Ctrl does. False when that is nothing.
bool edit(Widget field, char letter, XEvent* event) {
  struct Action {
    char letter;
    const char* name;
  };
  static constexpr Action actions[] = {
      {'a', "select-all"}, {'c', "copy-clipboard"}, {'x', "cut-clipboard"}, {'v', "paste-clipboard"}};
  if (letter == 'z') return is_text(field) && take_back(field);
  if (letter == 'Z' || letter == 'y') return is_text(field) && type_again(field);
  const auto action = std::ranges::find(actions, lower(letter), &Action::letter);
  if (action == std::end(actions)) return false;
  if (is_text(field)) XtCallActionProc(field, action->name, event, nullptr, 0);
  if (const auto found = answers.find(field); found != answers.end()) found->second(lower(letter));
  return true;
}

/// Closes a window as the window manager does.
void close_window(Widget shell) {
  Display* display = XtDisplay(shell);
  XEvent request{};
  request.xclient.type = ClientMessage;
  request.xclient.display = display;
  request.xclient.window = XtWindow(shell);
  request.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
  request.xclient.format = 32;
  request.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
  request.xclient.data.l[1] = static_cast<long>(XtLastTimestampProcessed(display));
  XtDispatchEvent(&request);
}

const CommandKey* command_of(KeySym key) {
  const auto found = std::ranges::find(command_keys, key, &CommandKey::key);
  return found == command_keys.end() ? nullptr : &*found;
}

const CommandKey* command_of(char letter) {
  const CommandKey* key = command_of(static_cast<KeySym>(letter));
  return key ? key : command_of(static_cast<KeySym>(lower(letter)));
}

/// Does what a letter with Ctrl does in a window. False when that is nothing.
bool act(Widget shell, char letter, XEvent* event) {
  Widget first = modal_shell();
  if (first && first != shell) return true;
  if (edit(XmGetFocusWidget(shell), letter, event)) return true;
  const CommandKey* key = command_of(letter);
  if (lower(letter) == 'w') {
    close_window(shell);
  } else if (key && !first) {
    key->command(shell, nullptr, nullptr);
  }
  return key || lower(letter) == 'w';
}

/// The command of a function key that is pressed alone; null for none.
const CommandKey* command_of_function_key(XKeyEvent& key) {
  const KeySym symbol = XLookupKeysym(&key, 0);
  const bool is_alone = !(key.state & (ShiftMask | ControlMask | Mod1Mask));
  return is_alone && IsFunctionKey(symbol) ? command_of(symbol) : nullptr;
}

/// Gives a command, unless a dialog has to be answered first. True, for nobody else shall have the key.
bool give(const CommandKey& key, Widget shell) {
  if (!modal_shell()) key.command(shell, nullptr, nullptr);
  return true;
}

/// The window that a key is pressed in; null while a menu has the keyboard.
Widget window_of(const XKeyEvent& key) {
  return menus_up == 0 ? shell_around(XtWindowToWidget(key.display, key.window)) : nullptr;
}

Boolean dispatch_key(XEvent* event) {
  XKeyEvent& key = event->xkey;
  const char letter = letter_with_control(key);
  const CommandKey* command = letter ? nullptr : command_of_function_key(key);
  Widget shell = letter || command ? window_of(key) : nullptr;
  bool done = false;
  if (shell) act_for_user([&] { done = command ? give(*command, shell) : act(shell, letter, event); });
  if (done) return True;
  return usual_dispatch(event);
}

void menu_is_up(Widget, XtPointer, XtPointer) { ++menus_up; }

void menu_is_down(Widget, XtPointer, XtPointer) { --menus_up; }

void watch_menu(Widget menu) {
  XtAddCallback(menu, XmNmapCallback, menu_is_up, nullptr);
  XtAddCallback(menu, XmNunmapCallback, menu_is_down, nullptr);
}

void watch(Widget, XtPointer, XtPointer call) {
  Widget w = static_cast<XtCreateHookData>(call)->widget;
  if (is_menu(w)) watch_menu(w);
  if (is_text(w)) watch_typing(w);
  if (XmIsDialogShell(w)) watch_modality(w);
}

}  // namespace

void use_keys(Display* display, std::span<const CommandKey> commands) {
  command_keys = commands;
  usual_dispatch = XtSetEventDispatcher(display, KeyPress, dispatch_key);
  XtAddCallback(XtHooksOfDisplay(display), XtNcreateHook, watch, nullptr);
}

void answer_letters(Widget w, void (*answer)(char letter)) { answers.insert_or_assign(w, answer); }

}  // namespace vqc::editors
