#ifndef VQC_CMD_SAVEFILE_SAVE_H
#define VQC_CMD_SAVEFILE_SAVE_H

/// Writes the model to the file `path`, replacing it, and clears `dirty`. A file that cannot be opened changes nothing.
/// Failures are reported by what fails; failures to write stop nothing.
void write_save_file(const char* path);

#endif
