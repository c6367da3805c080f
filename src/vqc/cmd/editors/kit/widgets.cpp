// Asks the toolkit about widgets and keys.

#include "vqc/cmd/editors/kit/widgets.h"

#include <X11/Xutil.h>
#include <Xm/MenuShell.h>
#include <Xm/RowColumn.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>

#include "vqc/cmd/editors/kit/compound.h"

namespace vqc::editors {

Widget shell_around(Widget w) {
  while (w && !XtIsShell(w)) w = XtParent(w);
  return w;
}

Widget window_around(Widget w) {
  Widget shell = shell_around(w);
  while (shell && XmIsMenuShell(shell)) shell = shell_around(XtParent(shell));
  return shell;
}

std::span<const Widget> children_of(Widget w) {
  WidgetList children = nullptr;
  Cardinal count = 0;
  if (XtIsComposite(w)) XtVaGetValues(w, XmNchildren, &children, XmNnumChildren, &count, nullptr);
  return {children, count};
}

bool is_menu(Widget w) { return XmIsRowColumn(w) && XmIsMenuShell(XtParent(w)); }

bool is_text(Widget w) { return w && (XmIsTextField(w) || XmIsText(w)); }

std::string characters_in(Widget text) {
  const ToolkitCharacters characters(XmTextGetString(text));
  return characters ? characters.get() : "";
}

void set_characters(Widget text, std::string characters) { XmTextSetString(text, characters.data()); }

KeySym plain_key(XEvent* event) {
  constexpr unsigned kModifiers = ShiftMask | ControlMask | Mod1Mask;
  if (event->xkey.state & kModifiers) return NoSymbol;
  KeySym key = NoSymbol;
  XLookupString(&event->xkey, nullptr, 0, &key, nullptr);
  return key;
}

}  // namespace vqc::editors
