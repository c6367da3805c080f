// Fills and reads text fields and toggles, and remembers what a field could not show.

#include "vqc/cmd/editors/kit/fields.h"

#include <X11/Xatom.h>
#include <Xm/Gadget.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>
#include <Xm/ToggleBG.h>

#include <string>
#include <unordered_map>
#include <utility>

#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/unapplied.h"
#include "vqc/cmd/editors/kit/undo.h"
#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

/// A text, with what a field makes of it.
struct Given {
  std::string text;
  std::string shown;
  bool typed_over = false;
};

/// By field. A document may hold what the locale has no characters for, and a field of one line has no line breaks;
/// nothing of that must be lost because it has been looked at.
std::unordered_map<Widget, Given>& given_texts() {
  static std::unordered_map<Widget, Given> texts;
  return texts;
}

/// What is typed in the place of the whole text is meant as it stands, unless that is taken back.
void watch_typing_over(Widget w, XtPointer, XtPointer call) {
  const auto& change = *static_cast<XmTextVerifyCallbackStruct*>(call);
  const bool whole = change.startPos == 0 && change.endPos == XmTextGetLastPosition(w);
  if (whole && change.doit) given_texts()[w].typed_over = change.event != nullptr;
}

void remember(Widget w, Given given) {
  const auto [place, is_first] = given_texts().insert_or_assign(w, std::move(given));
  if (is_first) XtAddCallback(w, XmNmodifyVerifyCallback, watch_typing_over, nullptr);
}

void select_text(Widget field, XtPointer, XtPointer) {
  XtRemoveCallback(field, XmNfocusCallback, select_text, nullptr);
  const XmTextPosition end = XmTextFieldGetLastPosition(field);
  XmTextFieldSetSelection(field, 0, end, XtLastTimestampProcessed(XtDisplay(field)));
}

/// Whether nobody else loses a selection when the field gets it.
bool may_select(Widget field) {
  const Window owner = XGetSelectionOwner(XtDisplay(field), XA_PRIMARY);
  return owner == None || owner == XtWindow(field) || XmGetFocusWidget(field) == field;
}

}  // namespace

int settext(Widget w, Name text) {
  if (!w) return 0;
  type_text(w, text);
  forget_typing(w);
  return 1;
}

void type_text(Widget w, Name text) {
  const std::string whole(text.view());
  const ShowingField showing(w);
  set_characters(w, displayable(whole));
  remember(w, {whole, characters_in(w)});
}

void offer_name(Widget field, Name name) {
  settext(field, name);
  offer_text(field);
}

void offer_text(Widget field) {
  select_text(field, nullptr, nullptr);
  XmProcessTraversal(field, XmTRAVERSE_CURRENT);
}

void mark_text(Widget field) {
  if (may_select(field)) return select_text(field, nullptr, nullptr);
  XmTextFieldSetHighlight(field, 0, XmTextFieldGetLastPosition(field), XmHIGHLIGHT_SELECTED);
  XtRemoveCallback(field, XmNfocusCallback, select_text, nullptr);
  XtAddCallback(field, XmNfocusCallback, select_text, nullptr);
}

std::string undistorted(Widget w, const std::string& shown) {
  const auto found = given_texts().find(w);
  if (found == given_texts().end()) return shown;
  const Given& given = found->second;
  return given.shown == shown && !given.typed_over ? given.text : shown;
}

std::string gettextf(Widget w, Text* field) {
  std::string text = w ? undistorted(w, characters_in(w)) : std::string();
  const Text value = non_empty(Name(text));
  if (field && !(*field == value)) *field = edited_document.keep(value);
  return text;
}

int settoggle(Widget w, bool on) {
  if (!w) return 0;
  const ShowingField showing(w);
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

}  // namespace vqc::editors
