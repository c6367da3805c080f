#ifndef VQC_CMD_EDITORS_STEP_NAMES_H
#define VQC_CMD_EDITORS_STEP_NAMES_H

#include <string>

#include "vqc/cmd/history/timeline.h"

namespace vqc::editors {

/// What the user calls the step between two moments, such as "Delete family Athena", in his language.
std::string step_name(const Moment& before, const Moment& after);
/// The same when it has been done, such as "Deleted family Athena".
std::string done_name(const Moment& before, const Moment& after);

}  // namespace vqc::editors

#endif
