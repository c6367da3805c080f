#ifndef VQC_CMD_APPLICATION_EDITOR_H
#define VQC_CMD_APPLICATION_EDITOR_H

namespace vqc {

/// Replaces this program by the editor of the same installation, which gets the whole command line, the program's name
/// included. Ends with a message when there is no editor.
[[noreturn]] void become_editor(char** argv);

}  // namespace vqc

#endif
