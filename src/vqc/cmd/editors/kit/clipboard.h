#ifndef VQC_CMD_EDITORS_KIT_CLIPBOARD_H
#define VQC_CMD_EDITORS_KIT_CLIPBOARD_H

// Texts that are copied and pasted as a whole, as other programs do it.

#include <Xm/Xm.h>

#include <string>

namespace vqc::editors {

/// Puts a text on the clipboard, from which whatever is pasted comes until something else is copied. The program has to
/// go on for that. False where the display does not allow it. `w` must live as long as the program.
bool copy_text(Widget w, std::string text);

/// Asks for what is on the clipboard. When it has come, `take` gets it, "" for none, in an action of the user.
void paste_text(Widget w, void (*take)(const std::string& text));

}  // namespace vqc::editors

#endif
