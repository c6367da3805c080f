#include "vqc/cmd/model/builtin.h"

#include <new>

#include "vqc/cmd/model/page.h"
#include "vqc/cmd/model/popup.h"

namespace {

BuiltinName* builtin_names = nullptr;  // newest first

struct PredefinedPopup {
  Text name;
  Text dialog_init;
};

/// Where the entry of that name and kind hangs, or the end of the list.
BuiltinName** link_to(const Text& name, int kind) {
  BuiltinName** link = &builtin_names;
  while (*link && !((*link)->kind == kind && (*link)->name == name)) link = &(*link)->next;
  return link;
}

}  // namespace

BuiltinName* register_builtin_name(const Text& name, int kind) {
  if (!name) return nullptr;
  if (BuiltinName* found = *link_to(name, kind)) return found;
  auto* entry = new (std::nothrow) BuiltinName{builtin_names, name, kind};
  if (entry) builtin_names = entry;
  return entry;
}

int unregister_builtin_name(const Text& name, int kind) {
  BuiltinName** link = link_to(name, kind);
  BuiltinName* entry = *link;
  if (!name || !entry) return 0;
  *link = entry->next;
  delete entry;
  return 1;
}

int check_builtin_name(const Text& name, int kind) { return name && *link_to(name, kind) ? 1 : 0; }

void predefine_pages(Family* family) {
  static const Text pages[] = {"display", "margins", "settings", "callbacks", "misc"};
  for (const Text& page : pages) {
    if (pagelist_add(page, family) == 0) register_builtin_name(page, BUILTIN_PAGE);
  }
}

void predefine_popups(Family* family) {
  static const PredefinedPopup popups[] = {
      {"vq_font_dialog_create", "vq_font_dialog_initialise"},
      {"vq_colour_dialog_create", "vq_colour_dialog_initialise"},
      {"vq_pixmap_dialog_create", "vq_pixmap_dialog_initialise"},
      {"vq_string_dialog_create", "vq_string_dialog_initialise"},
      {"vq_fsb_dialog_create", "vq_fsb_dialog_initialise"},
  };
  for (const PredefinedPopup& predefined : popups) {
    popuplist_add(predefined.name, family);
    PopupDef* popup = popup_pool.list.find(predefined.name);
    if (!popup) continue;
    register_builtin_name(popup->name, BUILTIN_POPUP);
    unregister_builtin_name(popup->dialog_init, BUILTIN_POPUP_INIT);
    popup->dialog_init = predefined.dialog_init;
    register_builtin_name(popup->dialog_init, BUILTIN_POPUP_INIT);
  }
}
