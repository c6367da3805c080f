#ifndef VQC_CMD_MODEL_BUILTIN_H
#define VQC_CMD_MODEL_BUILTIN_H

#include <list>
#include <string>

#include "libkel/text.h"

namespace vqc {

/// The kinds of names that the run-time itself supplies.
enum BuiltinKind : int {
  BUILTIN_PAGE = 1,
  BUILTIN_POPUP = 2,
  BUILTIN_POPUP_INIT = 3,
  BUILTIN_POPUP_UPDATE = 4,  // none is ever registered
};

struct BuiltinName {
  std::string name;
  int kind;
};

/// The names that the run-time supplies, newest first.
class BuiltinNames {
 public:
  /// The entry of that name and kind, made if there is none. Null for a null name. The registry owns its entries.
  const BuiltinName* add(Text name, int kind);
  /// Whether there was an entry to remove.
  bool remove(Text name, int kind);
  bool has(Text name, int kind) const;

 private:
  std::list<BuiltinName>::const_iterator find(Text name, int kind) const;

  std::list<BuiltinName> names_;
};

inline constexpr Text predefined_pages[] = {"display", "margins", "settings", "callbacks", "misc"};

struct PredefinedPopup {
  Text name;
  Text dialog_init;
};
inline constexpr PredefinedPopup predefined_popups[] = {
    {"vq_font_dialog_create", "vq_font_dialog_initialise"},
    {"vq_colour_dialog_create", "vq_colour_dialog_initialise"},
    {"vq_pixmap_dialog_create", "vq_pixmap_dialog_initialise"},
    {"vq_string_dialog_create", "vq_string_dialog_initialise"},
    {"vq_fsb_dialog_create", "vq_fsb_dialog_initialise"},
};

}  // namespace vqc

#endif
