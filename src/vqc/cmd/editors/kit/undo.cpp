// Remembers what text fields held before the last run of typing.

#include "vqc/cmd/editors/kit/undo.h"

#include <Xm/Text.h>

#include <algorithm>
#include <cctype>
#include <cwchar>
#include <string>
#include <unordered_map>
#include <utility>

#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

constexpr XmTextPosition kNowhere = -1;

/// A run of changes that are taken back together.
struct Run {
  std::string before;       // what the field held; what it is to hold again when the run is taken back
  XmTextPosition rest = 0;  // how many characters of that, behind the place of the changes, stay as they are
  XmTextPosition end = 0;   // where the run goes on; kNowhere when it does not
  bool is_taken_back = false;
};

/// By field.
std::unordered_map<Widget, Run>& runs() {
  static std::unordered_map<Widget, Run> all;
  return all;
}

bool taking_back = false;

bool is_one_character(const XmTextBlockRec& text) {
  std::mbstate_t state{};
  const auto length = static_cast<std::size_t>(text.length);
  return length != 0 && std::mbrlen(text.ptr, length, &state) == length;
}

bool is_control_byte(const XmTextVerifyCallbackStruct& change) {
  const XEvent* event = change.event;
  return event && event->type == KeyPress && event->xkey.state & ControlMask && change.text->length == 1 &&
         std::iscntrl(static_cast<unsigned char>(*change.text->ptr));
}

/// Where a run goes on after a change; kNowhere unless a key has typed or erased one character.
XmTextPosition end_of(const XmTextVerifyCallbackStruct& change) {
  if (!change.event) return kNowhere;
  if (is_one_character(*change.text)) return change.startPos + 1;
  return change.text->length == 0 && change.endPos == change.startPos + 1 ? change.startPos : kNowhere;
}

bool goes_on(const Run& run, const XmTextVerifyCallbackStruct& change) {
  const bool in_place = run.end == change.startPos || run.end == change.endPos;
  return run.end != kNowhere && in_place && change.endPos - change.startPos <= 1 && end_of(change) != kNowhere;
}

void note(Widget field, const XmTextVerifyCallbackStruct& change) {
  Run& run = runs()[field];
  const XmTextPosition rest = XmTextGetLastPosition(field) - change.endPos;
  if (!goes_on(run, change)) run = {characters_in(field), rest};
  run.rest = std::min(run.rest, rest);
  run.end = end_of(change);
}

void text_changes(Widget field, XtPointer, XtPointer call) {
  auto& change = *static_cast<XmTextVerifyCallbackStruct*>(call);
  if (is_control_byte(change)) {
    change.doit = False;
  } else if (XmGetFocusWidget(field) != field) {
    forget_typing(field);  // the toolkit fills it, with what the user has chosen elsewhere
  } else if (!taking_back) {
    guarded([&] { note(field, change); });
  }
}

/// Takes a run back or puts it in again, if it is the other way.
bool exchange_text(Widget field, bool is_taken_back) {
  const auto found = runs().find(field);
  if (found == runs().end() || found->second.is_taken_back != is_taken_back) return false;
  Run& run = found->second;
  std::string text = std::exchange(run.before, characters_in(field));
  run.end = kNowhere;
  run.is_taken_back = !is_taken_back;
  taking_back = true;
  set_characters(field, std::move(text));
  taking_back = false;
  XmTextSetInsertionPosition(field, XmTextGetLastPosition(field) - run.rest);
  return true;
}

void focus_lost(Widget field, XtPointer, XtPointer) {
  const auto run = runs().find(field);
  if (run != runs().end()) run->second.end = kNowhere;
}

}  // namespace

void watch_typing(Widget field) {
  XtVaSetValues(field, XmNverifyBell, False, nullptr);  // a key that types nothing makes no noise
  XtAddCallback(field, XmNmodifyVerifyCallback, text_changes, nullptr);
  XtAddCallback(field, XmNlosingFocusCallback, focus_lost, nullptr);
}

void forget_typing(Widget field) { runs().erase(field); }

bool take_back(Widget field) { return exchange_text(field, false); }

bool type_again(Widget field) { return exchange_text(field, true); }

}  // namespace vqc::editors
