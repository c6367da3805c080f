#ifndef VQC_CMD_GENERATE_CODE_FILE_H
#define VQC_CMD_GENERATE_CODE_FILE_H

#include "vqc/cmd/generate/walk.h"

namespace vqc {

/// Writes the widget set description code: the class records of the widgets and the declarations they need.
void write_code_file(Run& run);

// Its sections after the includes.

void write_widget_includes(Run& run);
void write_procedure_declarations(Run& run);
void write_class_records(Run& run);

}  // namespace vqc

#endif
