#ifndef VQC_CMD_HISTORY_STATE_NAMES_H
#define VQC_CMD_HISTORY_STATE_NAMES_H

#include <memory>

#include "libkel/text.h"

namespace vqc {

// The name by which a part of a state is found, whatever it is.

inline Text name_in(Text name) { return name; }
template <class Record>
Text name_in(const std::shared_ptr<const Record>& record) {
  return record->name;
}
template <class Fields>
requires requires(const Fields& fields) { fields.name; }
Text name_in(const Fields& fields) { return fields.name; }

}  // namespace vqc

#endif
