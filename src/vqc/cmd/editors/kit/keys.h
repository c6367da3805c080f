#ifndef VQC_CMD_EDITORS_KIT_KEYS_H
#define VQC_CMD_EDITORS_KIT_KEYS_H

// The letters with Ctrl and the function keys, which mean the same in every window.

#include <Xm/Xm.h>

#include <span>

namespace vqc::editors {

/// A command that a key gives in whatever window it is pressed: a letter together with Ctrl, or a function key alone.
struct CommandKey {
  KeySym key;              // of letters, a capital is one with Shift; where there is none, Shift makes no difference
  XtCallbackProc command;  // is called with the shell
};

/// Lets function keys and the letters with Ctrl mean the same in every window that is made from now on: the `commands`,
/// which a dialog that has to be answered first keeps waiting, W to close the window, and A, C, X and V to select all,
/// copy, cut and paste in a text field. Z takes back what has been typed in it, Shift+Z and Y type it again; they are
/// commands where there is nothing of that. What else is typed with Ctrl is left to menus, and never becomes text.
void use_keys(Display* display, std::span<const CommandKey> commands);

/// Lets a widget that is no text, and lives as long as the program, answer A, C, X and V with Ctrl.
void answer_letters(Widget w, void (*answer)(char letter));

}  // namespace vqc::editors

#endif
