#include "help/asking.h"

#include <X11/Shell.h>
#include <X11/Xutil.h>
#include <signal.h>
#include <sys/wait.h>

#include <cstdlib>

#include "help/client/help.h"

namespace {

/// Whether a process is there and has not ended.
bool is_running(const std::string& process) {
  std::ifstream file("/proc/" + process + "/stat");
  std::string text;
  if (!std::getline(file, text)) return false;
  return text.substr(text.rfind(')')).substr(0, 3) != ") Z";
}

std::string page(const std::string& title) {
  return "<html><head><title>" + title + "</title></head><body><h1>" + title + "</h1></body></html>";
}

/// The real viewer, started and spoken to by the real client.
class Viewer : public Asking {
 protected:
  Viewer() { install_real(); }
  explicit Viewer(const std::string& name) : Asking(name) { install_real(); }
  ~Viewer() override {
    QuitHelpViewer(shell);
    EXPECT_TRUE(wait_for_end());
    for (const std::string& process : lines_of("processes")) {
      if (is_running(process)) kill(std::stoi(process), SIGKILL);
    }
    EXPECT_EQ(std::vector<std::string>(), lines_of("errors"));
  }

  Window viewer() const { return announced_on(XtWindow(shell)); }

  /// Whether the viewer shows, or soon shows, a page of that title.
  bool shows(const std::string& title) const {
    return wait_for([&] { return viewer() != None && title_of(viewer()) == title && is_viewable(viewer()); });
  }

  /// Makes a page of that title and asks for it.
  int ask_for(const std::string& title) { return VQHelp(shell, folder.with(title + ".html", page(title)).c_str()); }

  std::size_t running() const {
    std::size_t count = 0;
    for (const std::string& process : lines_of("processes")) count += is_running(process) ? 1 : 0;
    return count;
  }
  bool wait_for_end() const {
    return wait_for([&] { return running() == 0; });
  }
};

TEST_F(Viewer, ShowsTheFirstTopic) {
  EXPECT_EQ(0, ask_for("One"));
  EXPECT_TRUE(shows("One"));
  EXPECT_EQ(1U, running());
}

TEST_F(Viewer, ShowsOnlyTheLastOfTheTopicsThatWaited) {
  std::vector<std::string> titles;
  EXPECT_EQ(0, ask_for("One"));
  EXPECT_EQ(0, ask_for("Two"));
  EXPECT_TRUE(wait_for([&] {
    const std::string title = viewer() == None ? "" : title_of(viewer());
    if (!title.empty() && (titles.empty() || titles.back() != title)) titles.push_back(title);
    return title == "Two";
  }));
  settle();
  EXPECT_EQ(std::vector<std::string>{"Two"}, titles);
  EXPECT_EQ(1U, launches().size());
}

TEST_F(Viewer, ShowsMoreTopicsInTheSameWindow) {
  ask_for("One");
  ASSERT_TRUE(shows("One"));
  const Window window = viewer();
  EXPECT_EQ(1, ask_for("Two"));
  EXPECT_TRUE(shows("Two"));
  EXPECT_EQ(1, ask_for("One"));
  EXPECT_TRUE(shows("One"));
  EXPECT_EQ(window, viewer());
  EXPECT_EQ(1U, launches().size());
}

TEST_F(Viewer, ComesToTheFront) {
  ask_for("One");
  ASSERT_TRUE(shows("One"));
  ASSERT_TRUE(wait_for([&] {
    XRaiseWindow(display, XtWindow(shell));  // again and again: the manager may still be busy with the new window
    return is_above(XtWindow(shell), viewer());
  }));
  EXPECT_EQ(1, ask_for("One"));
  EXPECT_TRUE(wait_for([&] { return is_above(viewer(), XtWindow(shell)); }));
}

TEST_F(Viewer, ComesOutOfItsIcon) {
  ask_for("One");
  ASSERT_TRUE(shows("One"));
  XIconifyWindow(display, viewer(), DefaultScreen(display));
  ASSERT_TRUE(wait_for([&] { return !is_viewable(viewer()); }));
  EXPECT_EQ(1, ask_for("One"));
  EXPECT_TRUE(shows("One"));
}

TEST_F(Viewer, IsStartedAgainWhenItHasBeenKilled) {
  ask_for("One");
  ASSERT_TRUE(shows("One"));
  const Window killed = viewer();
  kill(std::stoi(lines_of("processes").front()), SIGKILL);
  ASSERT_TRUE(wait_for_end());
  ASSERT_TRUE(wait_for([&] { return !is_viewable(killed); }));  // the server notices a little later
  EXPECT_EQ(0, ask_for("Two"));
  EXPECT_TRUE(shows("Two"));
  EXPECT_EQ(2U, launches().size());
}

TEST_F(Viewer, QuitsAndTakesItsAnnouncementBack) {
  ask_for("One");
  ASSERT_TRUE(shows("One"));
  EXPECT_EQ(1, QuitHelpViewer(shell));
  EXPECT_TRUE(wait_for_end());
  EXPECT_EQ(Window{None}, viewer());
}

TEST_F(Viewer, QuitsAlthoughItHasOnlyJustBeenLaunched) {
  ask_for("One");
  EXPECT_EQ(0, QuitHelpViewer(shell));
  ASSERT_TRUE(wait_for([&] { return !lines_of("processes").empty(); }));
  EXPECT_TRUE(wait_for_end());
}

TEST_F(Viewer, LeavesWhenItsClientHasGone) {
  ask_for("One");
  ASSERT_TRUE(shows("One"));
  Widget old = shell;
  shell = XtVaAppCreateShell(nullptr, "Asking", applicationShellWidgetClass, display, nullptr);
  XtDestroyWidget(old);
  EXPECT_TRUE(wait_for_end());
}

TEST_F(Viewer, LeavesWhenTheWindowManagerClosesIt) {
  ask_for("One");
  ASSERT_TRUE(shows("One"));
  close_by_manager(viewer());
  EXPECT_TRUE(wait_for_end());
  EXPECT_EQ(0, ask_for("Two"));
  EXPECT_TRUE(shows("Two"));
}

TEST_F(Viewer, LeavesOnEscape) {
  ask_for("One");
  ASSERT_TRUE(shows("One"));
  ASSERT_TRUE(wait_for([&] { return has_keyboard(viewer()); }));
  key("Escape");
  EXPECT_TRUE(wait_for_end());
}

TEST_F(Viewer, SaysThatAPageIsMissingAndGoesOn) {
  EXPECT_EQ(0, VQHelp(shell, (folder / "none.html").c_str()));
  EXPECT_TRUE(shows("No help page"));
  EXPECT_EQ(1, VQHelp(shell, folder.path().c_str()));
  settle();
  EXPECT_TRUE(shows("No help page"));
  EXPECT_EQ(1, ask_for("Two"));
  EXPECT_TRUE(shows("Two"));
}

TEST_F(Viewer, SaysThatAFileIsNotHtmlAndGoesOn) {
  EXPECT_EQ(0, VQHelp(shell, folder
                                 .with("a.html", std::string("\x7F"
                                                             "ELF\0\1\2<html>",
                                                             13))
                                 .c_str()));
  EXPECT_TRUE(shows("No help page"));
  EXPECT_EQ(1, ask_for("Two"));
  EXPECT_TRUE(shows("Two"));
}

TEST_F(Viewer, IgnoresARequestOfAnotherKind) {
  ask_for("One");
  ASSERT_TRUE(shows("One"));
  const long number = 1;
  XChangeProperty(display, viewer(), XInternAtom(display, "VQHELP_DEST", False),
                  XInternAtom(display, "CARDINAL", False), 32, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(&number), 1);
  settle();
  EXPECT_EQ(1, ask_for("Two"));
  EXPECT_TRUE(shows("Two"));
}

TEST_F(Viewer, HasATitleInUtf8) {
  const std::string file = folder.with("a.html",
                                       "<html><title>Gr&ouml;\xC3\x9F"
                                       "e</title>x");
  VQHelp(shell, file.c_str());
  EXPECT_TRUE(shows("Gr\u00F6\u00DFe"));
}

TEST_F(Viewer, TakesTheNameOfTheFileForAMissingTitle) {
  VQHelp(shell, folder.with("untitled.html", "<html>x").c_str());
  EXPECT_TRUE(shows("untitled.html"));
}

/// What a shell, or a function that prints, would do something with.
const char* const odd_name = "a b'c\"d$(touch ran)`touch ran`%s%n;touch ran&#\\";

class OddlyNamedViewer : public Viewer {
 protected:
  OddlyNamedViewer() : Viewer(odd_name) {}
};

TEST_F(OddlyNamedViewer, ShowsAPageOfAnyName) {
  VQHelp(shell, folder.with(std::string(odd_name) + ".html", page("Odd")).c_str());
  EXPECT_TRUE(shows("Odd"));
  VQHelp(shell, (folder / (std::string(odd_name) + "-none.html")).c_str());
  EXPECT_TRUE(shows("No help page"));
  EXPECT_FALSE(std::filesystem::exists(folder / "ran"));
}

TEST_F(OddlyNamedViewer, RunsNothingThatAPageNames) {
  VQHelp(shell, folder
                    .with("a.html",
                          "<html><title>Odd</title><body background='$(touch ran).xpm.Z'>"
                          "<img src='`touch ran`.xpm.Z'><img src='a.xpm.Z;touch ran'>"
                          "<script>touch ran</script><a href='exec:touch ran'>x</a>")
                    .c_str());
  EXPECT_TRUE(shows("Odd"));
  settle();
  EXPECT_FALSE(std::filesystem::exists(folder / "ran"));
}

/// The program from a command line.
class CommandLine : public Asking {
 protected:
  /// Its exit status.
  int run(const std::string& words, const std::string& environment = "") const {
    const std::string command = environment + " 2> errors '" VQHELP_PROGRAM "' " + words;
    return WEXITSTATUS(std::system(command.c_str()));
  }
  std::string errors() const { return read_file(folder / "errors"); }
};

TEST_F(CommandLine, MustBeUnderstood) {
  for (const char* words : {"-x", "-wid", "-wid 0", "-wid 12x", "-wid -1", "a.html b.html"}) {
    EXPECT_EQ(1, run(words)) << words;
    EXPECT_EQ("usage: " VQHELP_PROGRAM " [-wid window | file]\n", errors()) << words;
  }
}

TEST_F(CommandLine, NeedsADisplay) {
  EXPECT_EQ(1, run("a.html", "DISPLAY="));
  EXPECT_EQ(VQHELP_PROGRAM ": cannot open display\n", errors());
}

TEST_F(CommandLine, MayNameAPage) {
  std::filesystem::create_directories(root + "/lib/locale/C/help");
  write_file(root + "/lib/locale/C/help/entry.html", page("The contents"));
  write_file(folder / "a b.html", page("A page"));
  for (const auto& [words, title] : {std::pair("", "The contents"), std::pair("'a b.html'", "A page")}) {
    EXPECT_EQ(0, run(words + std::string(" &")));
    EXPECT_TRUE(wait_for([&] { return window_titled(title) != None; }));
    close_by_manager(window_titled(title));
    EXPECT_TRUE(wait_for([&] { return window_titled(title) == None; }));
  }
}

TEST_F(CommandLine, MayNameAClientThatHasGone) {
  EXPECT_EQ(0, run("-wid 536870911"));
  EXPECT_EQ("", errors());
}

}  // namespace
