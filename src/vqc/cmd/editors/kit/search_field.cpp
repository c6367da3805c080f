// Searches lists of names, and answers the keys that mean something else in other fields.

#include "vqc/cmd/editors/kit/search_field.h"

#include <X11/keysym.h>

#include <utility>
#include <vector>

#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/suggestions.h"
#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

void clear(Widget field) { set_characters(field, ""); }

/// In other fields Return presses the default button, and Escape the one that closes the window.
void key_pressed(Widget field, XtPointer, XEvent* event, Boolean* go_on) {
  KeySym key = NoSymbol;
  XLookupString(&event->xkey, nullptr, 0, &key, nullptr);
  const bool is_return = key == XK_Return || key == XK_KP_Enter;
  const bool clears = key == XK_Escape && !characters_in(field).empty();
  if (clears) clear(field);
  if (is_return || clears) *go_on = False;
}

}  // namespace

void search_in(Widget field, std::function<std::vector<std::string>()> names,
               std::function<void(const std::string& name)> go_to) {
  XtInsertEventHandler(field, KeyPressMask, False, key_pressed, nullptr, XtListHead);
  suggest(field, {.names = std::move(names),
                  .take = [go_to = std::move(go_to)](Widget, const std::string& name) { go_to(name); },
                  .escaped = clear,
                  .while_typing = true});
}

void search_in(Widget field, const std::function<const ListEditor*()>& editor) {
  search_in(
      field, [editor] { return editor() ? list_names(editor()->list()) : std::vector<std::string>(); },
      [editor](const std::string& name) {
        choose_name(*editor(), name);
        offer_text(editor()->name_field());
      });
}

}  // namespace vqc::editors
