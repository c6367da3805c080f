#ifndef VQC_CMD_APPLICATION_BATCH_H
#define VQC_CMD_APPLICATION_BATCH_H

#include "vqc/cmd/model/options.h"

namespace vqc {

// What the command line asks for. Null names were not given.
inline const char* batch_save_file = nullptr;
inline const char* batch_config_file = nullptr;
inline const char* batch_code_file = nullptr;
inline const char* batch_stubs_file = nullptr;
inline bool batch_save = false;
inline bool batch_config = false;
inline bool batch_code = false;
inline bool batch_stubs = false;
inline Compatibility batch_compatibility;

/// Loads the save file and generates the files asked for. Returns the status to exit with: 0, or 1 when a file could
/// not be generated, or -1 when the document could not be read.
int vqc_batch_mode();

}  // namespace vqc

#endif
