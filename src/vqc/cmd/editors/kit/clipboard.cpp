// The selection CLIPBOARD, by way of the toolkit, which sends and receives large texts in pieces.

#include "vqc/cmd/editors/kit/clipboard.h"

#include <X11/Xatom.h>

#include <algorithm>
#include <utility>

#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/session_hooks.h"

namespace vqc::editors {

namespace {

std::string copied;

Atom atom(Widget w, const char* name) { return XInternAtom(XtDisplay(w), name, False); }

/// What the toolkit hands on, and frees then.
template <class Element>
void hand_over(const Element* elements, std::size_t count, XtPointer* value, unsigned long* length) {
  auto* copy =
      reinterpret_cast<Element*>(XtMalloc(static_cast<Cardinal>(std::max<std::size_t>(count, 1) * sizeof(Element))));
  std::copy_n(elements, count, copy);
  *value = copy;
  *length = count;
}

// The toolkit says what parameters its procedures have.
// NOLINTBEGIN(readability-non-const-parameter)

Boolean convert(Widget w, Atom*, Atom* target, Atom* type, XtPointer* value, unsigned long* length, int* format) {
  constexpr int kBitsOfAtoms = 32;
  constexpr int kBitsOfCharacters = 8;
  const Atom targets[] = {atom(w, "TARGETS"), atom(w, "UTF8_STRING"), atom(w, "TEXT"), XA_STRING};
  if (*target == targets[0]) {
    hand_over(targets, XtNumber(targets), value, length);
    *type = XA_ATOM;
    *format = kBitsOfAtoms;
    return True;
  }
  if (std::ranges::find(targets, *target) == std::end(targets)) return False;
  hand_over(copied.data(), copied.size(), value, length);
  *type = *target == XA_STRING ? XA_STRING : targets[1];
  *format = kBitsOfCharacters;
  return True;
}

void lose(Widget, Atom*) { copied.clear(); }

using TakeText = void (*)(const std::string& text);
TakeText waiting = nullptr;

/// Programs of old know no other text than STRING.
void receive(Widget, XtPointer, Atom*, Atom* type, XtPointer value, unsigned long* length, int* format) {
  constexpr int kBitsOfCharacters = 8;
  const ToolkitCharacters characters(static_cast<char*>(value));
  const bool is_text = characters && *format == kBitsOfCharacters && *type != XT_CONVERT_FAIL;
  act_for_user(
      [&] { std::exchange(waiting, nullptr)(is_text ? std::string(characters.get(), *length) : std::string()); });
}

void receive_first(Widget w, XtPointer data, Atom* selection, Atom* type, XtPointer value, unsigned long* length,
                   int* format) {
  if (value) return receive(w, data, selection, type, value, length, format);
  XtGetSelectionValue(w, *selection, XA_STRING, receive, nullptr, XtLastTimestampProcessed(XtDisplay(w)));
}

// NOLINTEND(readability-non-const-parameter)

}  // namespace

bool copy_text(Widget w, std::string text) {
  const Time now = XtLastTimestampProcessed(XtDisplay(w));
  if (!XtOwnSelection(w, atom(w, "CLIPBOARD"), now, convert, lose, nullptr)) return false;
  copied = std::move(text);  // now, when what was copied before has been lost
  return true;
}

void paste_text(Widget w, void (*take)(const std::string& text)) {
  if (std::exchange(waiting, take)) return;
  XtGetSelectionValue(w, atom(w, "CLIPBOARD"), atom(w, "UTF8_STRING"), receive_first, nullptr,
                      XtLastTimestampProcessed(XtDisplay(w)));
}

}  // namespace vqc::editors
