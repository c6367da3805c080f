// Makes dialogs from their tables, and the boxes and forms that Motif's own creators do not give.

#include "vqc/cmd/editors/kit/dialog.h"

#include <Xm/DialogS.h>
#include <Xm/FileSB.h>
#include <Xm/Form.h>
#include <Xm/MessageB.h>
#include <Xm/Protocols.h>
#include <Xm/RowColumn.h>
#include <Xm/SelectioB.h>

#include <algorithm>
#include <cassert>
#include <cstring>
#include <vector>

#include "vqc/cmd/editors/kit/on_screen.h"
#include "vqc/cmd/editors/kit/polish.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

/// What the toolkit is given to call, in place of a callback of ours.
struct GuardedCallback {
  XtCallbackProc procedure;
  const void* data;

  static void call(Widget w, XtPointer callback, XtPointer call_data) {
    const auto* self = static_cast<GuardedCallback*>(callback);
    const auto action = [=] { self->procedure(w, const_cast<void*>(self->data), call_data); };
    is_typing(w, call_data) ? guarded(action) : act_for_user(action);
  }
  static bool is_typing(Widget w, XtPointer call_data) {
    return is_text(w) && static_cast<XmAnyCallbackStruct*>(call_data)->reason == XmCR_VALUE_CHANGED;
  }
  static void destroy(Widget, XtPointer callback, XtPointer) { delete static_cast<GuardedCallback*>(callback); }
};

/// It goes with the widget.
GuardedCallback* guarded_callback(Widget w, XtCallbackProc procedure, const void* data) {
  auto* callback = new GuardedCallback{procedure, data};
  XtAddCallback(w, XmNdestroyCallback, GuardedCallback::destroy, callback);
  return callback;
}

Arg argument(const char* name, XtArgVal value) { return Arg{const_cast<char*>(name), value}; }

/// The widgets of a dialog while it is built.
class Builder {
 public:
  Builder(Widget parent, std::span<const WidgetRow> rows) : parent_(parent), rows_(rows), made_(rows.size()) {}

  bool make_all() {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      const WidgetRow& row = rows_[i];
      made_[i] = row.create(named(row.parent), const_cast<char*>(row.name), nullptr, 0);
      if (made_[i]) {
        add_callbacks(made_[i], row);
      } else if (row.create != unmanage_child) {
        return false;
      }
    }
    return true;
  }

  void set_links(std::span<const WidgetLink> links) {
    for (const auto& [widget, resource, value, procedure] : links) {
      Widget linked = value ? named(value) : nullptr;
      if (procedure) {
        add_callback(named(widget), resource, procedure, linked);
      } else {
        XtVaSetValues(named(widget), resource, linked, nullptr);
      }
    }
  }

  /// Menus are no children of what they are in.
  void polish_all() const {
    for (Widget widget : made_) {
      if (widget && (widget == made_[0] || is_menu(widget))) polish(widget);
    }
  }

  /// Inner widgets first, so that each is laid out once, with all that it holds.
  void manage_all() {
    for (std::size_t i = rows_.size(); i-- > 0;) {
      if (made_[i] && !pops_up(made_[i])) XtManageChild(made_[i]);
    }
  }

  /// Leaves nothing behind of a dialog that could not be finished.
  void destroy() {
    if (made_[0]) XtDestroyWidget(made_[0]);
  }

  void fill(Widget* record) const {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      if (rows_[i].slot != kNoSlot) record[rows_[i].slot] = made_[i];
    }
  }

 private:
  /// The first widget of that name, which a row of the table must have.
  Widget named(const char* name) const {
    if (!name) return parent_;
    auto same_name = [name](const WidgetRow& row) { return std::strcmp(row.name, name) == 0; };
    const auto row = std::ranges::find_if(rows_, same_name);
    assert(row != rows_.end());
    return made_[static_cast<std::size_t>(row - rows_.begin())];
  }

  static void add_callbacks(Widget widget, const WidgetRow& row) {
    for (const auto& [list, procedure, data] : row.callbacks) {
      if (!procedure) continue;
      if (list == kClosed) {
        answer_close(widget, procedure);
      } else {
        add_callback(widget, list, procedure, data);
      }
    }
  }

  /// Shells, what a dialog shell holds, and menus appear when they are asked for.
  static bool pops_up(Widget widget) {
    return XtIsShell(widget) || XmIsDialogShell(XtParent(widget)) || is_menu(widget);
  }

  Widget parent_;
  std::span<const WidgetRow> rows_;
  std::vector<Widget> made_;
};

/// A double click presses the default button, on the name that its first click has put into the field. The box's own
/// callback copies what can be seen of that name. (Return, which calls this too, presses the button by itself.)
void press_default_button(Widget, XtPointer box, XtPointer call) {
  XEvent* event = static_cast<XmListCallbackStruct*>(call)->event;
  Widget button = nullptr;
  XtVaGetValues(static_cast<Widget>(box), XmNdefaultButton, &button, nullptr);
  if (event->type == KeyPress || !XtIsManaged(button) || !XtIsSensitive(button)) return;
  XmPushButtonCallbackStruct press{XmCR_ACTIVATE, event, 1};
  XtCallCallbacks(button, XmNactivateCallback, &press);
}

}  // namespace

Callbacks on_help(const char* topic) { return {{{XmNhelpCallback, vqc_do_help, topic}}}; }

Callbacks on_answer(XtCallbackProc ok, XtCallbackProc cancel, const char* topic) {
  return {{{XmNokCallback, ok}, {XmNcancelCallback, cancel}, {XmNhelpCallback, vqc_do_help, topic}}};
}

DialogPart part(std::span<const WidgetRow> rows, std::span<const WidgetLink> links) {
  return {{rows.begin(), rows.end()}, {links.begin(), links.end()}};
}

Widget find_child(Widget parent, char* name, ArgList, Cardinal) { return XtNameToWidget(parent, name); }

Widget find_button(Widget parent, char* name, ArgList, Cardinal) {
  Widget button = XtNameToWidget(parent, name);
  if (button) XtRemoveAllCallbacks(button, XmNactivateCallback);
  return button;
}

Widget unmanage_child(Widget parent, char* name, ArgList, Cardinal) {
  if (Widget child = XtNameToWidget(parent, name)) XtUnmanageChild(child);
  return nullptr;
}

Widget create_form(Widget parent, char* name, ArgList, Cardinal) {
  Arg stays_open[] = {argument(XmNautoUnmanage, False)};
  return XmCreateForm(parent, name, stays_open, XtNumber(stays_open));
}

Widget create_modal_form(Widget parent, char* name, ArgList, Cardinal) {
  Arg modal[] = {argument(XmNautoUnmanage, False), argument(XmNdialogStyle, XmDIALOG_FULL_APPLICATION_MODAL)};
  return XmCreateForm(parent, name, modal, XtNumber(modal));
}

Widget create_editor_box(Widget parent, char* name, ArgList, Cardinal) {
  Arg stays_open[] = {argument(XmNautoUnmanage, False), argument(XmNmustMatch, False)};
  Widget box = XmCreateSelectionBox(parent, name, stays_open, XtNumber(stays_open));
  XtManageChild(XmSelectionBoxGetChild(box, XmDIALOG_APPLY_BUTTON));
  Widget list = XmSelectionBoxGetChild(box, XmDIALOG_LIST);
  XtRemoveAllCallbacks(list, XmNdefaultActionCallback);
  XtAddCallback(list, XmNdefaultActionCallback, press_default_button, box);
  return box;
}

Widget create_file_box(Widget parent, char* name, ArgList, Cardinal) {
  Arg stays_open[] = {argument(XmNautoUnmanage, False), argument(XmNmustMatch, False)};
  return XmCreateFileSelectionBox(parent, name, stays_open, XtNumber(stays_open));
}

Widget create_modal_file_box(Widget parent, char* name, ArgList, Cardinal) {
  Arg modal[] = {argument(XmNautoUnmanage, False), argument(XmNmustMatch, False),
                 argument(XmNdialogStyle, XmDIALOG_FULL_APPLICATION_MODAL)};
  return XmCreateFileSelectionBox(parent, name, modal, XtNumber(modal));
}

Widget create_question_box(Widget parent, char* name, ArgList, Cardinal) {
  Arg modal[] = {argument(XmNdialogStyle, XmDIALOG_FULL_APPLICATION_MODAL), argument(XmNdialogType, XmDIALOG_QUESTION)};
  return XmCreateMessageBox(parent, name, modal, XtNumber(modal));
}

Widget create_plain_box(Widget parent, char* name, ArgList, Cardinal) {
  Arg plain[] = {argument(XmNautoUnmanage, False), argument(XmNdialogType, XmDIALOG_TEMPLATE)};
  return XmCreateMessageBox(parent, name, plain, XtNumber(plain));
}

Widget create_radio_menu(Widget parent, char* name, ArgList, Cardinal) {
  Arg radio[] = {argument(XmNradioBehavior, True)};
  return XmCreatePulldownMenu(parent, name, radio, XtNumber(radio));
}

void add_callback(Widget w, const char* list, XtCallbackProc procedure, const void* data) {
  XtAddCallback(w, list, GuardedCallback::call, guarded_callback(w, procedure, data));
}

void answer_close(Widget shell, XtCallbackProc procedure) {
  XtVaSetValues(shell, XmNdeleteResponse, XmDO_NOTHING, nullptr);
  XmAddWMProtocolCallback(shell, XInternAtom(XtDisplay(shell), const_cast<char*>("WM_DELETE_WINDOW"), False),
                          GuardedCallback::call, guarded_callback(shell, procedure, nullptr));
}

Widget* build_dialog(Widget parent, std::span<const WidgetRow> rows, int slots, std::span<const WidgetLink> links) {
  Builder builder(parent, rows);
  if (!builder.make_all()) {
    builder.destroy();
    return nullptr;
  }
  builder.polish_all();
  builder.manage_all();
  builder.set_links(links);  // an option menu takes its button's size from items that are managed
  auto* record = new Widget[static_cast<std::size_t>(slots)]{};
  builder.fill(record);
  return record;
}

Widget* build_dialog(Widget parent, std::initializer_list<DialogPart> parts, int slots) {
  DialogPart whole;
  for (const auto& [rows, links] : parts) {
    whole.rows.insert(whole.rows.end(), rows.begin(), rows.end());
    whole.links.insert(whole.links.end(), links.begin(), links.end());
  }
  return build_dialog(parent, whole.rows, slots, whole.links);
}

bool ensure_dialog(Widget*& record, Widget* (*create)(Widget parent), Widget parent) {
  if (!record) record = create(parent);
  return record != nullptr;
}

void delete_dialog(Widget* record) {
  if (!record) return;
  if (record[0]) XtDestroyWidget(record[0]);
  delete[] record;
}

void show_dialog(Widget contents, Place place) {
  if (!XtIsManaged(contents)) place_dialog(contents, place);
  XtManageChild(contents);
  Widget shell = shell_around(contents);
  if (XtIsRealized(shell)) XMapRaised(XtDisplay(shell), XtWindow(shell));
}

void give_keyboard(Widget w) {
  XmProcessTraversal(w, XmTRAVERSE_CURRENT);
  Widget shell = shell_around(w);
  if (!is_shown(shell)) return;
  XSetInputFocus(XtDisplay(shell), XtWindow(shell), RevertToParent, XtLastTimestampProcessed(XtDisplay(shell)));
}

void hide_dialog(Widget contents) {
  if (contents) XtUnmanageChild(contents);
}

}  // namespace vqc::editors
