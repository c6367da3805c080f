#ifndef GUI_SESSION_H
#define GUI_SESSION_H

#include <gtest/gtest.h>

// Before X's headers, which define None and Bool, come gtest's; before the model, whose names the keywords share, come
// the keywords.
#include "vqc/cmd/savefile/keywords.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <Xm/Xm.h>

#include "support/files.h"
#include "support/model.h"
#include "support/windows.h"
#include "vqc/cmd/editors/document_files.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/given_options.h"
#include "vqc/cmd/editors/kit/main_shell.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/widgets.h"
#include "vqc/cmd/editors/program/session.h"

using namespace vqc;

using namespace vqc::editors;

/// A test of a session with the program, inside the test's process: one session per process, since the toolkit keeps
/// state for life. Fails when the toolkit prints a warning.
class Session : public testing::Test {
 protected:
  Session();
  ~Session() override;

  /// Starts the program with these words after its name, in the temporary folder.
  void start(std::vector<std::string> words = {});
  /// Starts it on a document of this text, which is named document.vqc.
  void open_document(std::string_view text);

  TemporaryFolder folder;
};

/// The status with which the session has ended, if it has.
extern std::optional<int> exit_status;
/// What the toolkit has warned of.
extern std::vector<std::string> warnings;

/// Serves the program until nothing more happens.
void settle();
/// Serves it until the condition holds. False when it has not come true in time.
bool wait_for(const std::function<bool()>& condition, double seconds = 8);
/// How many X events of a type the program has been given.
long events_seen(int type);

/// The widget of that name, wherever it is in the program; "box.Text" is a child of "box", "box*ItemsList" is somewhere
/// below it. Null when there is none.
Widget find_widget(const std::string& name);
/// The same, and an error when there is none.
Widget widget(const std::string& name);

#endif
