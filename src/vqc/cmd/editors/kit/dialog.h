#ifndef VQC_CMD_EDITORS_KIT_DIALOG_H
#define VQC_CMD_EDITORS_KIT_DIALOG_H

// Dialogs are tables of widgets, and one builder makes all of them. The tables give the tree, the names and the
// callbacks; labels, colours, fonts and layout are looked up by name in the resource file.

#include <Xm/Xm.h>

#include <array>
#include <initializer_list>
#include <span>
#include <vector>

#include "vqc/cmd/editors/kit/main_shell.h"
#include "vqc/cmd/editors/kit/placement.h"

namespace vqc::editors {

/// Makes a widget. All of Motif's own creators look like this.
using Creator = Widget (*)(Widget parent, char* name, ArgList arguments, Cardinal count);

/// What is called when something happens to a widget, with what it is told as its client data.
struct CallbackRow {
  const char* list = nullptr;  // the callback resource, or kClosed
  XtCallbackProc procedure = nullptr;
  const void* data = nullptr;
};
using Callbacks = std::array<CallbackRow, 4>;

/// Stands for the window manager's request to close a shell, as answer_close() has it.
inline constexpr char kClosed[] = "closed";

/// The callbacks of a button, of a toggle or field, of a menu whose items have none, and of a list.
inline Callbacks on_press(XtCallbackProc procedure, const void* data = nullptr) {
  return {{{XmNactivateCallback, procedure, data}}};
}
inline Callbacks on_change(XtCallbackProc procedure) { return {{{XmNvalueChangedCallback, procedure}}}; }
inline Callbacks on_entry(XtCallbackProc procedure) { return {{{XmNentryCallback, procedure}}}; }
inline Callbacks on_select(XtCallbackProc procedure) { return {{{XmNbrowseSelectionCallback, procedure}}}; }
/// Those of a shell that the window manager closes.
inline Callbacks on_close(XtCallbackProc procedure) { return {{{kClosed, procedure}}}; }
/// Those of a form or box in which the help key is pressed.
Callbacks on_help(const char* topic);
/// Those of a box with OK, Cancel and Help. Null for a button that does nothing of ours.
Callbacks on_answer(XtCallbackProc ok, XtCallbackProc cancel, const char* topic);

inline constexpr int kNoSlot = -1;

/// One widget of a dialog.
struct WidgetRow {
  const char* name;
  Creator create;
  const char* parent;  // the name of a row above; null for the dialog's own parent
  Callbacks callbacks = {};
  int slot = kNoSlot;  // its place in the dialog's record, if it has one
};

/// A resource of one widget whose value is another.
struct WidgetLink {
  const char* widget;
  const char* resource;
  const char* value;                   // null for none
  XtCallbackProc procedure = nullptr;  // for a callback resource: it is called with `value` as its client data
};

/// A part of a dialog: its widgets, and what links them.
struct DialogPart {
  std::vector<WidgetRow> rows;
  std::vector<WidgetLink> links;
};
DialogPart part(std::span<const WidgetRow> rows, std::span<const WidgetLink> links = {});

/// Finds a child that its parent has made for itself, and sees that it is managed.
Widget find_child(Widget parent, char* name, ArgList, Cardinal);
/// Finds a button that its parent has made for itself, and lets it call nothing but what its row says.
Widget find_button(Widget parent, char* name, ArgList, Cardinal);
/// Finds such a child and unmanages it. Null, so that nothing else is done with it.
Widget unmanage_child(Widget parent, char* name, ArgList, Cardinal);
/// A form that stays where it is whatever is pressed in it.
Widget create_form(Widget parent, char* name, ArgList, Cardinal);
/// The same, and the user has to finish with it first.
Widget create_modal_form(Widget parent, char* name, ArgList, Cardinal);
/// A selection box with all of its buttons that stays open whatever is pressed.
Widget create_editor_box(Widget parent, char* name, ArgList, Cardinal);
/// A file selection box that stays open until its callbacks close it.
Widget create_file_box(Widget parent, char* name, ArgList, Cardinal);
/// The same, and the user has to finish with it first.
Widget create_modal_file_box(Widget parent, char* name, ArgList, Cardinal);
/// A message box that the user has to answer first.
Widget create_question_box(Widget parent, char* name, ArgList, Cardinal);
/// A message box with nothing in it but what is put there.
Widget create_plain_box(Widget parent, char* name, ArgList, Cardinal);
/// A pulldown menu of toggles of which one is set.
Widget create_radio_menu(Widget parent, char* name, ArgList, Cardinal);

/// Adds a callback that survives a shortage of memory. `data` must outlive the widget.
void add_callback(Widget w, const char* list, XtCallbackProc procedure, const void* data);

/// Lets `procedure` answer the window manager's request to close a shell, which does nothing else then.
void answer_close(Widget shell, XtCallbackProc procedure);

/// Makes the widgets of a dialog in the order of their rows, and manages all but what pops up. Returns the dialog's
/// record: `slots` widgets, which delete_dialog() frees; null when one could not be made.
Widget* build_dialog(Widget parent, std::span<const WidgetRow> rows, int slots, std::span<const WidgetLink> links = {});
/// The same of several parts, one after the other.
Widget* build_dialog(Widget parent, std::initializer_list<DialogPart> parts, int slots);

/// Makes a dialog when it is first needed. False when it cannot be made.
bool ensure_dialog(Widget*& record, Widget* (*create)(Widget parent), Widget parent = main_shell());

/// Destroys the shell in the record's first slot and frees the record. Null is allowed.
void delete_dialog(Widget* record);

/// Pops up the dialog whose shell has the child `contents`, in front of others.
void show_dialog(Widget contents, Place place = Place::beside);
/// Gives a widget the keyboard, and its window too where that is up already; one that comes up gets it by itself.
void give_keyboard(Widget w);
/// Pops it down. Null is allowed.
void hide_dialog(Widget contents);

}  // namespace vqc::editors

#endif
