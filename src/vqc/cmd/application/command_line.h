#ifndef VQC_CMD_APPLICATION_COMMAND_LINE_H
#define VQC_CMD_APPLICATION_COMMAND_LINE_H

/// Takes the options and the save file from the words that the toolkit has left. A wrong option prints the usage and
/// ends the program, -x prints the explanation and ends it.
void parse_command_line(int argc, char** argv);

#endif
