// Makes the window of the help viewer.

#include "help/viewer/make_window.h"

#include <Xm/Form.h>
#include <Xm/Label.h>
#include <Xm/Protocols.h>
#include <Xm/PushB.h>
#include <Xm/TextF.h>
#include <Xm/Xm.h>
#include <XmHTML/XmHTML.h>

#include <string>

#include "desktop/font_units.h"
#include "desktop/wheel.h"
#include "desktop/window_properties.h"
#include "help/viewer/viewer.h"
#include "help/viewer/window.h"

using namespace vqc;

namespace help {

namespace {

/// One widget: all of Motif's creators look alike.
struct WidgetRow {
  const char* name;
  Widget (*create)(Widget parent, char* name, ArgList arguments, Cardinal count);
  const char* parent;  // the name of a row above; null for the shell
  XtCallbackProc activated = nullptr;
  Widget HelpWindow::*place = nullptr;
};

const WidgetRow rows[] = {
    {"help_form", XmCreateForm, nullptr},
    {"help_buttons", XmCreateForm, "help_form"},
    {"help_back", XmCreatePushButton, "help_buttons", go_back, &HelpWindow::back},
    {"help_forward", XmCreatePushButton, "help_buttons", go_forward, &HelpWindow::forward},
    {"help_contents", XmCreatePushButton, "help_buttons", go_to_contents},
    {"help_smaller", XmCreatePushButton, "help_buttons", make_smaller},
    {"help_normal", XmCreatePushButton, "help_buttons", make_normal},
    {"help_larger", XmCreatePushButton, "help_buttons", make_larger},
    {"help_close", XmCreatePushButton, "help_buttons", close_window},
    {"help_bottom", XmCreateForm, "help_form"},
    {"help_find_label", XmCreateLabel, "help_bottom"},
    {"help_find", XmCreateTextField, "help_bottom", find_next, &HelpWindow::find},
    {"help_find_next", XmCreatePushButton, "help_bottom", find_next},
    {"help_status", XmCreateLabel, "help_bottom", nullptr, &HelpWindow::status},
};

/// The HTML widget works in no window but one that is there already.
const WidgetRow page_row = {"help_page", XmCreateHTML, "help_form", follow_link, &HelpWindow::page};

Widget find_widget(const char* name) { return XtNameToWidget(window.shell, (std::string("*") + name).c_str()); }

/// A button that has been clicked on gives the keys back to the page.
void return_focus(Widget, XtPointer, XtPointer call) {
  const XEvent* event = static_cast<XmAnyCallbackStruct*>(call)->event;
  if (event && event->type == ButtonRelease) focus_on_page();
}

void make(const WidgetRow& row) {
  Widget parent = row.parent ? find_widget(row.parent) : window.shell;
  Widget w = row.create(parent, const_cast<char*>(row.name), nullptr, 0);
  if (row.activated) XtAddCallback(w, XmNactivateCallback, row.activated, nullptr);
  if (XmIsPushButton(w)) XtAddCallback(w, XmNdisarmCallback, return_focus, nullptr);
  if (row.place) window.*row.place = w;
  XtManageChild(w);
}

void focus_on_find(Widget, XEvent*, String*, Cardinal*) {
  XmProcessTraversal(window.find, XmTRAVERSE_CURRENT);
  XmTextFieldSetSelection(window.find, 0, XmTextFieldGetLastPosition(window.find),
                          XtLastTimestampProcessed(XtDisplay(window.find)));
}

void register_actions() {
  XtActionsRec actions[] = {{const_cast<char*>("focus-on-find"), focus_on_find},
                            {const_cast<char*>("end-find"), end_find}};
  XtAppAddActions(XtWidgetToApplicationContext(window.shell), actions, XtNumber(actions));
}

void repaint_scrolled(Widget, XtPointer, XtPointer) { repaint_page(); }

void repaint_after_scrolling() {
  XtAddCallback(find_scroll_bar(), XmNvalueChangedCallback, repaint_scrolled, nullptr);
  XtAddCallback(find_scroll_bar(), XmNdragCallback, repaint_scrolled, nullptr);
}

/// Gives `w` the keys of the resource `keys` of `owner`. They come before those of the buttons, and the HTML widget
/// takes no others from a resource file.
void add_keys(Widget owner, Widget w) {
  XtTranslations keys = nullptr;
  XtResource resource = {const_cast<char*>("keys"),
                         const_cast<char*>("Keys"),
                         const_cast<char*>(XtRTranslationTable),
                         sizeof(XtPointer),
                         0,
                         const_cast<char*>(XtRImmediate),
                         nullptr};
  XtGetApplicationResources(owner, &keys, &resource, 1, nullptr, 0);
  if (keys) XtOverrideTranslations(w, keys);
}

/// Lets the keys of the buttons work wherever the keyboard is.
void install_keys(Widget w) {
  if (!XtIsShell(w)) XtInstallAllAccelerators(w, window.shell);
  if (!XtIsComposite(w)) return;
  WidgetList children = nullptr;
  Cardinal count = 0;
  XtVaGetValues(w, XmNchildren, &children, XmNnumChildren, &count, nullptr);
  for (Cardinal i = 0; i < count; ++i) install_keys(children[i]);
}

}  // namespace

void make_window(Display* display) {
  describe_windows(display);
  scroll_by_wheel(display);
  window.shell = XtVaAppCreateShell(nullptr, "Vqhelp", applicationShellWidgetClass, display, XmNmappedWhenManaged,
                                    False, XmNdeleteResponse, XmDO_NOTHING, XmNtitle, "", nullptr);  // a page has one
  set_font_unit(window.shell);
  register_actions();
  for (const WidgetRow& row : rows) make(row);
  XtRealizeWidget(window.shell);
  make(page_row);
  XtAddCallback(window.page, XmNanchorTrackCallback, show_link, nullptr);
  XtAddCallback(window.find, XmNvalueChangedCallback, find_as_typed, nullptr);
  const Atom close = XInternAtom(display, "WM_DELETE_WINDOW", False);
  XmAddWMProtocolCallback(window.shell, close, close_window, nullptr);
  repaint_after_scrolling();
  install_keys(window.shell);
  add_keys(window.page, find_work_window());
  add_keys(window.find, window.find);
}

}  // namespace help
