#include "vqc/cmd/editors/stop.h"

#include <string>
#include <string_view>

#include "vqc/cmd/editors/dialogs/family_dialog.h"
#include "vqc/cmd/editors/dialogs/stop_list_shell.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/model/stop.h"

namespace {

/// A widget class and its toggle, as a place among the toggles.
struct StopClass {
  int toggle;
  std::string_view name;

  Widget widget() const { return stop_list_shell[STOP_LIST_TOGGLES + toggle]; }
};

/// In the order in which applied classes are listed: the columns of containers, those of primitives, the newer classes.
constexpr StopClass stop_classes[] = {
    {0, "XmDialogShell"},   {3, "XmMainWindow"},     {6, "XmMenuBar"},       {9, "XmPulldownMenu"},
    {12, "XmRadioBox"},     {15, "XmRowColumn"},     {1, "XmFrame"},         {4, "XmDrawingArea"},
    {7, "XmBulletinBoard"}, {10, "XmForm"},          {13, "XmPanedWindow"},  {16, "XmScrolledWindow"},
    {2, "XmMessageBox"},    {5, "XmDialogTemplate"}, {8, "XmCommand"},       {11, "XmSelectionPrompt"},
    {14, "XmSelectionBox"}, {17, "XmFileSelection"}, {23, "XmLabel"},        {26, "XmPushButton"},
    {29, "XmToggleButton"}, {32, "XmDrawnButton"},   {35, "XmArrowButton"},  {24, "XmCascadeButton"},
    {27, "XmOptionMenu"},   {30, "XmSeparator"},     {33, "XmScale"},        {36, "XmScrollBar"},
    {25, "XmTextField"},    {28, "XmText"},          {31, "XmScrolledText"}, {34, "XmList"},
    {37, "XmScrolledList"}, {18, "XmPrintShell"},    {19, "XmGrabShell"},    {20, "XmContainer"},
    {21, "XmNotebook"},     {22, "XmSpinBox"},       {38, "XmComboBox"},     {39, "XmSimpleSpinBox"},
    {40, "XmIconGadget"},
};
static_assert(std::size(stop_classes) == STOP_LIST_SLOTS - STOP_LIST_TOGGLES);

/// Whether a document's comma-separated list has the class.
bool excluded(std::string_view classes, std::string_view name) {
  while (!classes.empty()) {
    const std::size_t comma = classes.find(',');
    if (classes.substr(0, comma) == name) return true;
    classes.remove_prefix(comma == std::string_view::npos ? classes.size() : comma + 1);
  }
  return false;
}

}  // namespace

void stoplist_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (!made(stop_list_shell, create_stop_list_shell, family_dialog[FAMILY_SHELL])) return;
  show_stop_list();
  show_dialog(stop_list_shell[STOP_LIST_FORM]);
}

void stop_list_do_apply(Widget, XtPointer, XtPointer) {
  std::string classes;
  for (const StopClass& each : stop_classes) {
    if (!gettoggle(each.widget())) continue;
    if (!classes.empty()) classes += ',';
    classes += each.name;
  }
  stop_list_set(classes.empty() ? nullptr : classes.c_str());
}

void stop_list_do_popdown(Widget, XtPointer, XtPointer) { hide_dialog(stop_list_shell[STOP_LIST_FORM]); }

void show_stop_list() {
  if (!stop_list_shell) return;
  for (const StopClass& each : stop_classes) settoggle(each.widget(), excluded(excluded_classes.view(), each.name));
}
