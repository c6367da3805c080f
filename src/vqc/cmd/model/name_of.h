#ifndef VQC_CMD_MODEL_NAME_OF_H
#define VQC_CMD_MODEL_NAME_OF_H

#include "libkel/text.h"

/// The name by which an element is found: its own, or that of the record it refers to.
template <class Element>
const Text& name_of(const Element& element) {
  if constexpr (requires { element.record; }) {
    return element.record->name;
  } else {
    return element.name;
  }
}

#endif
