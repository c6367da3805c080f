#ifndef GUI_WIDGET_TABLES_H
#define GUI_WIDGET_TABLES_H

#include <span>

#include "gui/session.h"

using namespace vqc;

/// What the program promises of one of its widgets to resource files and to drivers from outside.
struct PromisedWidget {
  const char* name;
  const char* class_name;
  const char* parent = nullptr;  // where that is promised too; the main shell is called "vqconfig"
  std::vector<const char*> callbacks = {};
};

/// Every widget that has a name of its own.
std::span<const PromisedWidget> promised_widgets();

/// A button that opens a page of help.
struct HelpButton {
  const char* name;
  const char* topic;
  const char* page;  // its title
};

/// Every such button, no two after another with the same page.
std::span<const HelpButton> help_buttons();

/// A session on a small document, in which each dialog can be seen.
class EveryDialog : public Session {
 protected:
  /// Starts the program and brings up each of its dialogs.
  void open_every_dialog();
};

/// The parent of a widget, without the shell that a menu, or the window that a list, is put into.
Widget parent_of(Widget w);

#endif
