#include "gui/dialogs.h"
#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// The window manager's Close, on every dialog.

namespace {

class Closing : public Session, public testing::WithParamInterface<Dialog> {};
class ClosingTheMainWindow : public Session {};

TEST_P(Closing, ADialogCanBeClosedAndOpenedAgain) {
  start({"-xrm", "VQconfig*generateOptions: True", folder.with("document.vqc", document_for_dialogs)});
  for (int time = 1; time <= 2; ++time) {
    GetParam().open();
    ASSERT_TRUE(is_shown(GetParam().shell)) << time;
    close(GetParam().shell);
    EXPECT_FALSE(is_shown(GetParam().shell)) << time;
  }
  EXPECT_TRUE(is_viewable(main_shell()));
  EXPECT_FALSE(exit_status);
  EXPECT_EQ(std::string::npos, saved().find("'r'"));
}

TEST_F(ClosingTheMainWindow, AsksEachTime) {
  open_document(document_for_dialogs);
  add_family("G");
  for (int time = 1; time <= 2; ++time) {
    close_main_window();
    ASSERT_TRUE(is_shown("savechanges_dialog")) << time;
    press("savechanges_messagebox.Cancel");
    EXPECT_FALSE(is_shown("savechanges_dialog")) << time;
  }
  EXPECT_FALSE(exit_status);
}

INSTANTIATE_TEST_SUITE_P(Of, Closing, testing::ValuesIn(every_dialog()), shell_name);

}  // namespace
