#ifndef VQC_CMD_APPLICATION_COMMAND_LINE_H
#define VQC_CMD_APPLICATION_COMMAND_LINE_H

namespace vqc {

/// Whether this is a session with a user, not a batch run. Known once the command line has been parsed.
inline bool interactive = false;

/// Takes the options and the save file from the words that are not the toolkit's. A wrong option prints the usage and
/// ends the program, -x prints the explanation and ends it.
void parse_command_line(int argc, char** argv);

}  // namespace vqc

#endif
