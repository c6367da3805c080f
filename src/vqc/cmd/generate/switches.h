#ifndef VQC_CMD_GENERATE_SWITCHES_H
#define VQC_CMD_GENERATE_SWITCHES_H

namespace vqc {

/// What is written beside what is needed. A batch run has both off.
struct Switches {
  bool comment = false;  // titles and banners
  bool verbose = false;  // repeats of shared records too, commented out
};

}  // namespace vqc

#endif
