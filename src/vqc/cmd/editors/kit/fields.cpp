#include "vqc/cmd/editors/kit/fields.h"

#include <Xm/Gadget.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>
#include <Xm/ToggleBG.h>

#include <cwchar>
#include <string>
#include <string_view>
#include <unordered_map>

#include "vqc/cmd/editors/kit/undo.h"

namespace {

/// A text that cannot be shown as it is, with what the field makes of it.
struct Distorted {
  Text text;
  Text shown;
};

/// By field. A document may hold what the locale has no characters for, and a field of one line has no line breaks;
/// nothing of that must be lost because it has been looked at.
std::unordered_map<Widget, Distorted>& distorted_texts() {
  static std::unordered_map<Widget, Distorted> texts;
  return texts;
}

/// The text with a question mark for each byte that is no character of the locale.
std::string displayable(std::string_view text) {
  std::string result;
  std::mbstate_t state{};
  while (!text.empty()) {
    const std::size_t length = std::mbrlen(text.data(), text.size(), &state);
    const bool character = length != 0 && length <= text.size();
    if (!character) state = {};
    result += character ? text.substr(0, length) : "?";
    text.remove_prefix(character ? length : 1);
  }
  return result;
}

Text shown_text(Widget w) {
  char* characters = XtIsSubclass(w, xmTextFieldWidgetClass) ? XmTextFieldGetString(w) : XmTextGetString(w);
  Text text = characters;
  XtFree(characters);
  return text;
}

}  // namespace

int settext(Widget w, const char* text) {
  if (!w) return 0;
  const Text whole = text ? text : "";
  std::string characters = displayable(whole.view());
  if (XtIsSubclass(w, xmTextFieldWidgetClass)) {
    XmTextFieldSetString(w, characters.data());
  } else {
    XmTextSetString(w, characters.data());
  }
  forget_typing(w);
  const Text shown = shown_text(w);
  if (shown == whole) {
    distorted_texts().erase(w);
  } else {
    distorted_texts()[w] = {whole, shown};
  }
  return 1;
}

void offer_name(Widget field, const char* name) {
  settext(field, name);
  offer_text(field);
}

void offer_text(Widget field) {
  const XmTextPosition end = XmTextFieldGetLastPosition(field);
  XmTextFieldSetSelection(field, 0, end, XtLastTimestampProcessed(XtDisplay(field)));
  XmProcessTraversal(field, XmTRAVERSE_CURRENT);
}

Text undistorted(Widget w, const Text& shown) {
  const auto distorted = distorted_texts().find(w);
  return distorted != distorted_texts().end() && distorted->second.shown == shown ? distorted->second.text : shown;
}

Text gettextf(Widget w, Text* field) {
  Text text;
  if (w) {
    text = undistorted(w, shown_text(w));
  }
  if (field) *field = non_empty(text);
  return text;
}

int settoggle(Widget w, bool on) {
  if (!w) return 0;
  if (XtIsSubclass(w, xmGadgetClass)) {
    XmToggleButtonGadgetSetState(w, on ? True : False, False);
  } else {
    XmToggleButtonSetState(w, on ? True : False, False);
  }
  return 1;
}

bool gettoggle(Widget w, bool* flag) {
  const bool on = w && (XtIsSubclass(w, xmGadgetClass) ? XmToggleButtonGadgetGetState(w) : XmToggleButtonGetState(w));
  if (flag) *flag = on;
  return on;
}
