// Fills the drop-down lists of fields with the names that match what stands in them.

#include "vqc/cmd/editors/kit/suggestions.h"

#include <X11/keysym.h>
#include <Xm/TextF.h>

#include <utility>

#include "libkel/message.h"
#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/dropdown.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/editors/kit/widgets.h"
#include "vqc/cmd/lookup/best_matches.h"

namespace vqc::editors {

namespace {

constexpr std::size_t kMostShown = 100;

/// What is said below the names that are shown: that there are more, or none at all.
std::string remark(std::size_t shown, std::size_t matching) {
  if (matching == 0) return text_or_name("no_match");
  return matching > shown ? filled(text_or_name("more_matches"), {static_cast<int>(matching - shown)}) : std::string();
}

void show_list(Widget field, const Suggestions& suggestions, std::vector<std::string> names, const std::string& last) {
  std::vector<std::string> items = names;
  if (!last.empty()) items.push_back(last);
  auto take = [field, take_name = suggestions.take, found = std::move(names)](std::size_t place) {
    if (place < found.size()) take_name(field, found[place]);
  };
  auto escaped = [field, call = suggestions.escaped] {
    if (call) call(field);
  };
  show_dropdown(field, items, std::move(take), std::move(escaped));
}

/// What stands in a field before its last word.
std::string before_last_word(const std::string& text) { return text.substr(0, text.rfind(' ') + 1); }

/// Shows the names that match. A list that opens by itself does not where nothing has been typed.
void show_matching(Widget field, const Suggestions& suggestions) {
  std::string typed = characters_in(field);
  if (suggestions.of_words) typed.erase(0, before_last_word(typed).size());
  if (suggestions.while_typing && typed.empty()) return hide_dropdown();
  const std::vector<std::string> names = suggestions.names();
  const Matches matches = best_matches(typed, names, kMostShown);
  std::vector<std::string> best;
  for (const std::size_t place : matches.places) best.push_back(names[place]);
  show_list(field, suggestions, best, remark(best.size(), matches.count));
}

void typed(Widget field, XtPointer suggestions, XtPointer) {
  const auto& suggested = *static_cast<const Suggestions*>(suggestions);
  if (suggested.while_typing ? XmGetFocusWidget(field) == field : has_dropdown(field)) show_matching(field, suggested);
}

void key_pressed(Widget field, XtPointer suggestions, XEvent* event, Boolean* go_on) {
  const KeySym key = plain_key(event);
  if (key != XK_Down && key != XK_KP_Down) return;
  guarded([&] { show_matching(field, *static_cast<const Suggestions*>(suggestions)); });
  *go_on = False;
}

void put_into_field(Widget field, const std::string& name) {
  type_text(field, name);
  XmTextFieldSetInsertionPosition(field, XmTextFieldGetLastPosition(field));
}

void put_for_last_word(Widget field, const std::string& name) {
  put_into_field(field, before_last_word(characters_in(field)) + name);
}

}  // namespace

void suggest(Widget field, const Suggestions& suggestions) {
  const auto* kept = new Suggestions(suggestions);
  add_callback(field, XmNvalueChangedCallback, typed, kept);
  XtInsertEventHandler(field, KeyPressMask, False, key_pressed, const_cast<Suggestions*>(kept), XtListHead);
}

void complete_from(Widget field, std::function<std::vector<std::string>()> names) {
  suggest(field, {.names = std::move(names), .take = put_into_field});
}

void complete_words_from(Widget field, std::function<std::vector<std::string>()> names) {
  suggest(field, {.names = std::move(names), .take = put_for_last_word, .of_words = true});
}

}  // namespace vqc::editors
