#include "help/asking.h"

#include <X11/Shell.h>
#include <X11/Xatom.h>
#include <Xm/BulletinB.h>
#include <Xm/PushBG.h>

#include "help/client/help.h"

namespace {

using Lines = std::vector<std::string>;

const char* const quit_command = "*** QUIT HELP SYSTEM";

/// A window of another program, which takes requests for one that serves them.
class FakeViewer {
 public:
  FakeViewer()
      : connection_(XOpenDisplay(nullptr)),
        window_(XCreateSimpleWindow(connection_, DefaultRootWindow(connection_), 0, 0, 9, 9, 0, 0, 0)) {
    XSync(connection_, False);
  }
  FakeViewer(const FakeViewer&) = delete;
  FakeViewer& operator=(const FakeViewer&) = delete;
  ~FakeViewer() { die(); }

  void announce_on(Widget client) { announce(connection_, window_, XtWindow(client)); }
  Window window() const { return window_; }
  /// The request, as it lies there: with its NUL.
  std::string request() const { return property(window_, "VQHELP_DEST"); }
  void die() {
    if (connection_) XCloseDisplay(connection_);
    connection_ = nullptr;
  }

 private:
  Display* connection_;
  Window window_;
};

std::string with_nul(const std::string& request) { return request + '\0'; }

class HelpClient : public Asking {
 protected:
  using Asking::Asking;

  /// Makes a first request, and lets a viewer take it.
  void start(FakeViewer& viewer) {
    install_fake();
    EXPECT_EQ(0, VQHelp(shell, "/first.html"));
    viewer.announce_on(shell);
    EXPECT_TRUE(wait_for([&] { return viewer.request() == with_nul("/first.html"); }));
    EXPECT_TRUE(wait_for_launches(1));
  }
};

TEST_F(HelpClient, LaunchesAViewerForTheFirstRequest) {
  install_fake();
  EXPECT_EQ(0, VQHelp(shell, "/a.html"));
  ASSERT_TRUE(wait_for_launches(1));
  EXPECT_EQ(Lines{"-wid " + std::to_string(XtWindow(shell))}, launches());
}

TEST_F(HelpClient, SendsTheRequestWhenTheViewerAnnouncesItself) {
  FakeViewer viewer;
  start(viewer);
  EXPECT_EQ(with_nul("/first.html"), viewer.request());
}

TEST_F(HelpClient, HearsAViewerThatAnnouncesItselfAtOnce) {
  install_fake();
  Widget board = XtVaCreateManagedWidget("board", xmBulletinBoardWidgetClass, shell, nullptr);
  settle();
  FakeViewer viewer;
  EXPECT_EQ(0, VQHelp(board, "/a.html"));
  viewer.announce_on(board);
  EXPECT_TRUE(wait_for([&] { return viewer.request() == with_nul("/a.html"); }));
  EXPECT_TRUE(wait_for_launches(1));
}

TEST_F(HelpClient, SendsOnlyTheLastOfTheRequestsThatWaited) {
  install_fake();
  FakeViewer viewer;
  EXPECT_EQ(0, VQHelp(shell, "/a.html"));
  EXPECT_EQ(0, VQHelp(shell, "/b.html"));
  EXPECT_EQ("", viewer.request());
  viewer.announce_on(shell);
  ASSERT_TRUE(wait_for([&] { return !viewer.request().empty(); }));
  settle();
  EXPECT_EQ(with_nul("/b.html"), viewer.request());
  ASSERT_TRUE(wait_for_launches(1));
  EXPECT_EQ(1U, launches().size());
}

TEST_F(HelpClient, SendsToARunningViewerAtOnce) {
  FakeViewer viewer;
  start(viewer);
  EXPECT_EQ(1, VQHelp(shell, "/second.html"));
  EXPECT_EQ(with_nul("/second.html"), viewer.request());
  EXPECT_EQ(1U, launches().size());
}

TEST_F(HelpClient, CallsBackEachTimeAViewerAnnouncesItself) {
  int calls = 0;
  VQHelpAddStartedCallback([](void* data) { ++*static_cast<int*>(data); }, &calls);
  FakeViewer viewer;
  start(viewer);
  EXPECT_EQ(1, calls);
  VQHelp(shell, "/b.html");
  EXPECT_EQ(1, calls);
  viewer.announce_on(shell);
  EXPECT_TRUE(wait_for([&] { return calls == 2; }));
  VQHelpRemoveStartedCallback();
  viewer.announce_on(shell);
  settle();
  EXPECT_EQ(2, calls);
}

TEST_F(HelpClient, LaunchesAnotherViewerWhenTheFirstHasDied) {
  {
    FakeViewer viewer;
    start(viewer);
  }
  EXPECT_EQ(0, VQHelp(shell, "/again.html"));
  ASSERT_TRUE(wait_for_launches(2));
  FakeViewer other;
  other.announce_on(shell);
  EXPECT_TRUE(wait_for([&] { return other.request() == with_nul("/again.html"); }));
  EXPECT_EQ(std::vector<int>(), x_errors) << "the dead window is nobody else's concern";
}

TEST_F(HelpClient, TakesAWindowThatNeverWasForADeadViewer) {
  install_fake();
  announce(display, 0x1FFFFFFF, XtWindow(shell));
  EXPECT_EQ(0, VQHelp(shell, "/a.html"));
  EXPECT_TRUE(wait_for_launches(1));
}

TEST_F(HelpClient, CannotTellAnotherWindowFromTheViewers) {
  install_fake();
  const Window other = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 9, 9, 0, 0, 0);
  announce(display, other, XtWindow(shell));
  EXPECT_EQ(1, VQHelp(shell, "/a.html"));
  settle();
  EXPECT_EQ(with_nul("/a.html"), property(other, "VQHELP_DEST"));
  EXPECT_EQ(Lines{}, launches());
  EXPECT_EQ(std::vector<int>(), x_errors);
}

TEST_F(HelpClient, TakesAnAnnouncementOfAnotherKindForNone) {
  install_fake();
  const unsigned char text[] = "0x1";
  XChangeProperty(display, XtWindow(shell), XInternAtom(display, "VQHELP_WIN", False), XA_STRING, 8, PropModeReplace,
                  text, 3);
  EXPECT_EQ(0, VQHelp(shell, "/a.html"));
  EXPECT_TRUE(wait_for_launches(1));
}

TEST_F(HelpClient, IgnoresThatAnAnnouncementIsTakenBack) {
  FakeViewer viewer;
  start(viewer);
  int calls = 0;
  VQHelpAddStartedCallback([](void* data) { ++*static_cast<int*>(data); }, &calls);
  XDeleteProperty(display, XtWindow(shell), XInternAtom(display, "VQHELP_WIN", False));
  settle();
  EXPECT_EQ(0, calls);
  EXPECT_EQ(1U, launches().size());
  EXPECT_EQ(0, VQHelp(shell, "/b.html"));
  EXPECT_TRUE(wait_for_launches(2));
}

TEST_F(HelpClient, WaitsForAViewerThatNeverAnnouncesItself) {
  install_fake();
  for (int i = 0; i < 5; ++i) EXPECT_EQ(0, VQHelp(shell, "/a.html"));
  ASSERT_TRUE(wait_for_launches(1));
  settle();
  EXPECT_EQ(1U, launches().size());
}

TEST_F(HelpClient, FailsWhenTheViewerCannotBeLaunched) {
  EXPECT_EQ(-1, VQHelp(shell, "/a.html"));
  EXPECT_EQ(-1, VQHelp(shell, "/a.html"));
  install_fake();
  EXPECT_EQ(0, VQHelp(shell, "/a.html"));
  EXPECT_TRUE(wait_for_launches(1));
}

TEST_F(HelpClient, LeavesOtherErrorsToWhoeverHandledThemBefore) {
  FakeViewer viewer;
  start(viewer);
  XFreePixmap(display, 0x1FFFFFFF);  // its answer arrives while the request is sent
  EXPECT_EQ(1, VQHelp(shell, "/b.html"));
  EXPECT_EQ(std::vector<int>{BadPixmap}, x_errors);
  EXPECT_EQ(with_nul("/b.html"), viewer.request());
  XMapWindow(display, 0x1FFFFFFF);
  XSync(display, False);
  EXPECT_EQ((std::vector<int>{BadPixmap, BadWindow}), x_errors) << "the handler from before is back";
}

TEST_F(HelpClient, TellsTheViewerToQuit) {
  FakeViewer viewer;
  start(viewer);
  EXPECT_EQ(1, QuitHelpViewer(shell));
  EXPECT_EQ(with_nul(quit_command), viewer.request());
}

TEST_F(HelpClient, StartsNothingInOrderToQuit) {
  install_fake();
  EXPECT_EQ(1, QuitHelpViewer(shell));
  settle();
  EXPECT_EQ(Lines{}, launches());
}

TEST_F(HelpClient, TellsAViewerThatIsStartingToQuit) {
  install_fake();
  EXPECT_EQ(0, VQHelp(shell, "/a.html"));
  EXPECT_EQ(0, QuitHelpViewer(shell));
  FakeViewer viewer;
  viewer.announce_on(shell);
  EXPECT_TRUE(wait_for([&] { return viewer.request() == with_nul(quit_command); }));
}

TEST_F(HelpClient, NeedsAWindowAndARequest) {
  install_fake();
  EXPECT_EQ(-1, VQHelp(nullptr, "/a.html"));
  EXPECT_EQ(-1, VQHelp(shell, nullptr));
  Widget other = XtVaAppCreateShell(nullptr, "Asking", applicationShellWidgetClass, display, nullptr);
  EXPECT_EQ(-1, VQHelp(other, "/a.html"));
  settle();
  EXPECT_EQ(Lines{}, launches());
}

TEST_F(HelpClient, AsksFromTheParentsWindowForAGadget) {
  install_fake();
  char name[] = "x";
  Widget board = XtVaCreateManagedWidget("board", xmBulletinBoardWidgetClass, shell, nullptr);
  Widget gadget = XmCreatePushButtonGadget(board, name, nullptr, 0);
  XtManageChild(gadget);
  settle();
  EXPECT_EQ(0, VQHelp(gadget, "/a.html"));
  ASSERT_TRUE(wait_for_launches(1));
  EXPECT_EQ(Lines{"-wid " + std::to_string(XtWindow(board))}, launches());
}

TEST_F(HelpClient, SendsARequestThatIsRememberedAgain) {
  FakeViewer viewer;
  start(viewer);
  const std::string request = "/same.html";
  EXPECT_EQ(1, VQHelp(shell, request.c_str()));
  EXPECT_EQ(1, VQHelp(shell, request.c_str()));
  EXPECT_EQ(with_nul(request), viewer.request());
}

/// What a shell, or a function that prints, would do something with.
const char* const odd_name = "a b'c\"d$(touch ran)`touch ran`%s%n;touch ran&\\";

class OddlyNamed : public HelpClient {
 protected:
  OddlyNamed() : HelpClient(odd_name) {}
};

TEST_F(OddlyNamed, FolderAndTopicAreTakenAsTheyAre) {
  FakeViewer viewer;
  start(viewer);
  const std::string topic = std::string("/") + odd_name + "\n.html";
  EXPECT_EQ(1, VQHelp(shell, topic.c_str()));
  EXPECT_EQ(with_nul(topic), viewer.request());
  EXPECT_EQ(Lines{"-wid " + std::to_string(XtWindow(shell))}, launches());
  EXPECT_FALSE(std::filesystem::exists(folder / "ran"));
}

}  // namespace
