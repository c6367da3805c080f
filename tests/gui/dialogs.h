#ifndef GUI_DIALOGS_H
#define GUI_DIALOGS_H

#include <iosfwd>
#include <string>
#include <vector>

#include "gui/session.h"

using namespace vqc;

// Every dialog, and how a user comes to it.

enum class Rank { modeless, modal };

struct Dialog {
  const char* shell;
  void (*open)();
  Rank rank = Rank::modeless;
};
void PrintTo(const Dialog& dialog, std::ostream* stream);

/// The document in which each can be opened: family F has the widget W and the enumeration E.
extern const char document_for_dialogs[];

std::vector<Dialog> every_dialog();
std::vector<Dialog> every_dialog(Rank rank);
/// Those with these shells.
std::vector<Dialog> dialogs_of(const std::vector<std::string>& shells);

/// The last part of the name of a test with a dialog.
std::string shell_name(const testing::TestParamInfo<Dialog>& row);

/// Opens the widget editor on W.
void open_widget_editor();

#endif
