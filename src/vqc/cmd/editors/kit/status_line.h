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
/// The same with the text itself; empty clears the lines.
void say_text(std::string text);

/// Whether anything has been said since the last call.
bool has_spoken();

/// Shows what is so. Each window adds how many things its list has.
void show_so(std::string text);

}  // namespace vqc::editors

#endif
