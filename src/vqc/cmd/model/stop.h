#ifndef VQC_CMD_MODEL_STOP_H
#define VQC_CMD_MODEL_STOP_H

#include "libkel/text.h"

/// The widget classes to leave out: comma-separated class names, or null.
inline Text excluded_classes;

inline void set_stop_list(const Text& text) { excluded_classes = text; }

#endif
