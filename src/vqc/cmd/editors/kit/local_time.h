#ifndef VQC_CMD_EDITORS_KIT_LOCAL_TIME_H
#define VQC_CMD_EDITORS_KIT_LOCAL_TIME_H

#include <chrono>
#include <string>

namespace vqc::editors {

/// A time by the user's clock, as his language writes it.
std::string local_time(std::chrono::system_clock::time_point time);

}  // namespace vqc::editors

#endif
