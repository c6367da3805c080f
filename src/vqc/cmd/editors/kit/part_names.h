#ifndef VQC_CMD_EDITORS_KIT_PART_NAMES_H
#define VQC_CMD_EDITORS_KIT_PART_NAMES_H

#include <string>

#include "libkel/text.h"
#include "vqc/cmd/model/part.h"

namespace vqc::editors {

/// What a part of a document is called in the user's language, such as "family Athena".
std::string part_name(Part part, Text name);

}  // namespace vqc::editors

#endif
