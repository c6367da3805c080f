#ifndef VQC_CMD_EDITORS_KIT_STATUS_LINE_H
#define VQC_CMD_EDITORS_KIT_STATUS_LINE_H

// The line at the bottom of a window: on the left what the last action did, on the right what is so.

#include <Xm/Xm.h>

#include <initializer_list>
#include <string>

#include "libkel/message.h"
#include "vqc/cmd/editors/kit/dialog.h"

namespace vqc::editors {

/// The widgets of a line in a form: "status_line" with the labels "status_said" and "status_so". Layout attaches it.
DialogPart status_line(const char* form);

/// Says what an action has done, or why it has done nothing, in the words of a message. It stands in all windows until
/// something else is said.
void say(const char* message, std::initializer_list<MessageArgument> arguments = {});
void say_text(std::string text);
/// Says that only if nothing else is said about the action, and the document stays as it was.
void say_unless_changed(const char* message, std::initializer_list<MessageArgument> arguments = {});
/// Says, whatever else is said about the action, what the user has to know.
void say_above_all(std::string text);
/// Says in the window of a widget what could be done next there: at once, or after an action that nothing else is said
/// about.
void hint(Widget w, std::string text);
void hint_after_action(Widget w, std::string text);

/// An action has ended, which has `done` something, or nothing. What has not been said about it is said now.
void end_action(std::string done);

/// Shows what is so. Each window adds how many things its list has.
void show_so(std::string text);
/// A list has got others without an action.
void recount();

}  // namespace vqc::editors

#endif
