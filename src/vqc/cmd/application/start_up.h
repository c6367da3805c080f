#ifndef VQC_CMD_APPLICATION_START_UP_H
#define VQC_CMD_APPLICATION_START_UP_H

#include <string>

namespace vqc {

/// What every program that may do a batch run does first: gives closed standard streams a place, and says what happens
/// to large tables and when memory is short.
void prepare_process();

/// Ends a program that cannot do what it was started for: says why, under the name that it was started with.
[[noreturn]] void give_up(const char* program, const std::string& reason);

}  // namespace vqc

#endif
