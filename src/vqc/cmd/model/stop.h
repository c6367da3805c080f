#ifndef VQC_CMD_MODEL_STOP_H
#define VQC_CMD_MODEL_STOP_H

#include "libkel/text.h"

/// The widget classes to leave out: comma-separated class names, or null.
inline Text excluded_classes;

/// Called when they have been set; null for nobody.
inline void (*on_stop_list)() = nullptr;

inline void stop_list_set(const Text& classes) {
  excluded_classes = classes;
  if (on_stop_list) on_stop_list();
}
inline void stop_list_free() { stop_list_set(nullptr); }

#endif
