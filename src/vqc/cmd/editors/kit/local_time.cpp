#include "vqc/cmd/editors/kit/local_time.h"

#include <ctime>

namespace vqc::editors {

std::string local_time(std::chrono::system_clock::time_point time) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
  std::tm parts{};
  char text[64];
  return std::string(text, std::strftime(text, sizeof text, "%c", localtime_r(&seconds, &parts)));
}

}  // namespace vqc::editors
