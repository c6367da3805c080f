#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/parts.h"
#include "gui/session.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/program/links.h"
#include "vqc/cmd/editors/title.h"

using namespace vqc;

// Small services of the whole program: the callbacks that interface code can name, the busy cursor and the titles.

using namespace vqc::editors;

namespace {

class Services : public Session {
 protected:
  Services() { start(); }
};

TEST_F(Services, LinksManageAndUnmanage) {
  Widget box = widget("family_arrowbox");
  VQunmanage_link(nullptr, &box, nullptr);
  EXPECT_FALSE(XtIsManaged(box));
  VQmanage_link(nullptr, &box, nullptr);
  EXPECT_TRUE(XtIsManaged(box));
}

TEST_F(Services, LinksEnableAndDisable) {
  Widget box = widget("family_selection");
  VQdisable_link(nullptr, &box, nullptr);
  EXPECT_FALSE(is_sensitive("family_selection"));
  VQenable_link(nullptr, &box, nullptr);
  EXPECT_TRUE(is_sensitive("family_selection"));
}

TEST_F(Services, LinksMapAndUnmap) {
  Widget box = widget("family_arrowbox");
  VQunmap_link(nullptr, &box, nullptr);
  settle();
  EXPECT_FALSE(is_viewable(box));
  VQmap_link(nullptr, &box, nullptr);
  settle();
  EXPECT_TRUE(is_viewable(box));
}

TEST_F(Services, LinksPopUpAndDown) {
  press("family_helpaboutb");
  press("about_ok");
  Widget shell = widget("about_dialog");
  XtManageChild(widget("about_form"));
  VQpopdown_link(nullptr, &shell, nullptr);
  settle();
  EXPECT_FALSE(is_window_viewable(shell));
  VQpopup_link(nullptr, &shell, nullptr);
  EXPECT_TRUE(wait_for([&] { return is_window_viewable(shell); }));
}

TEST_F(Services, LinksWithoutAWidgetDoNothing) {
  Widget none = nullptr;
  for (XtCallbackProc link : {VQmanage_link, VQunmanage_link, VQpopup_link, VQpopdown_link, VQmap_link, VQunmap_link,
                              VQenable_link, VQdisable_link}) {
    link(nullptr, nullptr, nullptr);
    link(nullptr, &none, nullptr);
  }
  EXPECT_EQ("vqconfig", title());
}

TEST_F(Services, TheCursorIsShownInAShellThatHasAWindow) {
  EXPECT_EQ(1, set_watch_cursor(widget("family_uparrow")));
  EXPECT_EQ(1, set_normal_cursor(widget("family_uparrow")));
  EXPECT_EQ(1, set_watch_cursor(main_shell()));
  EXPECT_EQ(1, set_normal_cursor(main_shell()));
}

TEST_F(Services, TheCursorIsNotShownForNothingNorForAGadget) {
  EXPECT_EQ(0, set_watch_cursor(nullptr));
  EXPECT_EQ(0, set_normal_cursor(nullptr));
  EXPECT_EQ(0, set_watch_cursor(widget("family_selection.OK")));
}

TEST_F(Services, TheTitleTellsTheLeafName) {
  vqc_set_title("/a/b/c.vqc");
  EXPECT_EQ("vqconfig: c.vqc", title());
  vqc_set_title("50%s.vqc");
  EXPECT_EQ("vqconfig: 50%s.vqc", title());
  vqc_set_title(nullptr);
  EXPECT_EQ("vqconfig", title());
}

TEST_F(Services, AShellIsTitledByAMessageWithItsArgument) {
  vq_set_title(main_shell(), "enum_title", "50%d");
  EXPECT_EQ(filled("enum_title", "50%d"), title());
  vq_set_title(main_shell(), "enum_title", nullptr);
  EXPECT_EQ(filled("enum_title", nullptr), title());
  vq_set_title(main_shell(), "no_such_title", "x");
  EXPECT_EQ(filled("enum_title", nullptr), title());
}

}  // namespace
