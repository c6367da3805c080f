#include <gtest/gtest.h>

#include <Xm/MenuShell.h>
#include <Xm/PushB.h>
#include <Xm/PushBG.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <set>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/outside.h"
#include "gui/parts.h"
#include "gui/session.h"
#include "gui/widget_tables.h"
#include "libkel/installation.h"
#include "libkel/message.h"
#include "support/windows.h"
#include "vqc/cmd/editors/program/help.h"

using namespace vqc;

// Help as a user has it: the installed viewer with the installed pages, next to the dialogs.

namespace {

constexpr double kStarting = 20;  // seconds that a viewer may take until its page is on the screen

/// As long as it is there, what is started writes its errors to a file.
class ErrorsToFile {
 public:
  explicit ErrorsToFile(const std::string& file) : usual_(fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3)) {
    const int opened = open(file.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    dup2(opened, STDERR_FILENO);
    ::close(opened);
  }
  ErrorsToFile(const ErrorsToFile&) = delete;
  ErrorsToFile& operator=(const ErrorsToFile&) = delete;
  ~ErrorsToFile() {
    dup2(usual_, STDERR_FILENO);
    ::close(usual_);
  }

 private:
  int usual_;
};

std::vector<pid_t> viewers_on(const std::string& display_name) {
  return processes(installed("bin/vqhelp"), display_name);
}

/// What the libraries of the viewer leak is no error of its own.
void overlook_leaks_of_libraries() {
  setenv("LSAN_OPTIONS", "suppressions=" TEST_DATA "/help/leaks_of_libraries.txt:print_suppressions=0", 1);
}

/// The window that a user has before him when he presses a button.
Widget window_of(const std::string& button) {
  Widget shell = shell_around(widget(button));
  return XmIsMenuShell(shell) ? shell_around(XtParent(shell)) : shell;
}

/// A session whose user asks for help.
class Help : public EveryDialog {
 protected:
  Help() { overlook_leaks_of_libraries(); }
  ~Help() override {
    vqc::editors::vqc_QuitHelp();
    EXPECT_TRUE(wait_for([] { return viewers().empty(); }, kStarting));
    EXPECT_EQ("", read_file(errors_));
  }

  static std::vector<pid_t> viewers() { return viewers_on(DisplayString(display)); }

  /// The viewer's window, which is announced on one of the program's; None when there is none yet.
  Window viewer() {
    if (client_ == None) {
      for_each_below(main_shell(), [this](Widget w) {
        if (XtIsRealized(w) && announced_on(display, XtWindowOfObject(w)) != None) client_ = XtWindowOfObject(w);
      });
    }
    return client_ == None ? None : announced_on(display, client_);
  }
  /// The title of the page that it shows.
  std::string page() { return viewer() == None ? "" : title_of(display, viewer()); }

  /// Presses a button and sees that its page comes to the front.
  void expect_page_of_button(const std::string& button, const std::string& title) {
    expect_page(title, window_of(button), [&] { press(button); });
  }
  /// The same of the help key.
  void expect_page_of_key(const std::string& part_of_window, const std::string& title) {
    Widget shell = shell_around(widget(part_of_window));
    ASSERT_TRUE(has_keyboard(shell)) << part_of_window;
    expect_page(title, shell, [] { key("F1"); });
  }

 private:
  /// Brings the user's window before the viewer, and sees that what he does there shows another page than before, and
  /// that before his window.
  void expect_page(const std::string& title, Widget shell, const std::function<void()>& what_he_does) {
    ASSERT_TRUE(is_viewable(shell) && wait_for([&] { return is_in_front(shell); })) << XtName(shell);
    ASSERT_NE(title, page());
    {
      const ErrorsToFile of_a_viewer(errors_);
      what_he_does();
    }
    EXPECT_TRUE(wait_for([&] { return page() == title && is_behind_viewer(shell); }, kStarting))
        << XtName(shell) << " shows the page " << page() << ", not " << title;
  }

  bool is_in_front(Widget shell) {
    if (viewer() == None) return true;
    XRaiseWindow(display, XtWindow(shell));  // again and again: the manager may still be busy with the viewer's
    return is_above(display, XtWindow(shell), viewer());
  }
  bool is_behind_viewer(Widget shell) {
    return is_viewable(display, viewer()) && is_above(display, viewer(), XtWindow(shell));
  }

  std::string errors_ = folder.with("errors", "");
  Window client_ = None;
};

class HelpButtons : public Help {
 protected:
  HelpButtons() { open_every_dialog(); }
};

TEST_F(HelpButtons, OpenTheirPagesInOneViewer) {
  std::set<Window> windows;
  for (const HelpButton& button : help_buttons()) {
    expect_page_of_button(button.name, button.page);
    ASSERT_FALSE(HasFailure()) << button.name;
    windows.insert(viewer());
  }
  EXPECT_EQ(1U, windows.size());
  EXPECT_EQ(1U, viewers().size());
}

TEST_F(HelpButtons, AreAllThatSayHelp) {
  std::set<Widget> known;
  for (const HelpButton& button : help_buttons()) known.insert(widget(button.name));
  for_each_below(main_shell(), [&](Widget w) {
    const bool is_button = XmIsPushButton(w) || XmIsPushButtonGadget(w);
    if (is_button && XtIsManaged(w) && label(w) == "Help") {
      EXPECT_TRUE(known.contains(w)) << XtName(XtParent(w)) << "." << XtName(w);
    }
  });
}

/// What has been asked for; nobody shows it.
std::vector<std::string> topics;

class HelpRequests : public Session {
 protected:
  HelpRequests() {
    open_document("VQconfig\nwidget 'W' {\n}\nenumeration 'E' {\n}\nfamily 'F' {\nwidget='W'\nenumeration='E'\n}\n");
    session_hooks.help = [](Widget, const char* topic) { topics.emplace_back(topic); };
  }

  /// Clicks on the Help button of a box, and goes to it and presses its keys.
  static void expect_one_request(const std::string& box, const std::string& topic) {
    const std::vector<std::string> once = {topic};
    turn_to(shell_around(widget(box)));
    topics.clear();
    click(box + ".Help");
    EXPECT_EQ(once, topics) << box;
    topics.clear();
    XmProcessTraversal(widget(box + ".Help"), XmTRAVERSE_CURRENT);
    key("space");
    EXPECT_EQ(once, topics) << box;
    topics.clear();
    key("F1");
    EXPECT_EQ(once, topics) << box;
  }
};

TEST_F(HelpRequests, OfTheMainWindowAreMadeOnce) { expect_one_request("family_selection", "vqc_family"); }

TEST_F(HelpRequests, OfTheListsOfAFamilyAreMadeOnce) {
  edit_family("F");
  expect_one_request("widgetlist_selection", "vqc_classw");
  toggle("entity_opt_aliases_t", true);
  expect_one_request("aliaslist_selection", "vqc_aliases");
  toggle("entity_opt_converters_t", true);
  expect_one_request("converter_selection", "vqc_converter");
  toggle("entity_opt_enums_t", true);
  expect_one_request("enumlist_selection", "vqc_enums");
  toggle("entity_opt_code_headers_t", true);
  expect_one_request("codeheaderlist_selection", "vqc_code_hdrs");
  toggle("entity_opt_config_headers_t", true);
  expect_one_request("confheaderlist_selection", "vqc_conf_hdrs");
  toggle("entity_opt_family_headers_t", true);
  expect_one_request("familyheaderlist_selection", "vqc_family_hdrs");
}

TEST_F(HelpRequests, OfAnEnumerationAreMadeOnce) {
  edit_family("F");
  edit_enumeration("E");
  expect_one_request("enumedit_selection", "vqc_enum_edit");
}

TEST_F(HelpRequests, OfThePickersAreMadeOnce) {
  edit_family("F");
  edit_widget("W");
  press("widgetedit_page_b");
  expect_one_request("pageedit_selection", "vqc_page_edit");
  press_cancel("pageedit_selection");
  press("widgetedit_popup_b");
  expect_one_request("popupedit_selection", "vqc_popup_edit");
}

TEST_F(HelpRequests, OfFilesAndQuestionsAreMadeOnce) {
  press("family_openb");
  expect_one_request("open_fsb", "vqc_open");
  press_cancel("open_fsb");
  press("family_genconfigb");
  expect_one_request("gen_fsb", "vqc_gen");
  press_cancel("gen_fsb");
  error_show("bad_save_file");
  expect_one_request("error_messageb", "vqc_error");
}

TEST_F(Help, ComesUpAtAClick) {
  start();
  click("family_selection.Help");
  EXPECT_TRUE(wait_for([this] { return page() == "Families" && is_viewable(display, viewer()); }, kStarting));
}

class UsersHelp : public Help, public testing::WithParamInterface<const char*> {};

TEST_P(UsersHelp, IsWhereHisResourcesSay) {
  folder.with("vqc_family.html", "<html><head><title>My Families</title></head><body>Mine</body></html>\n");
  const std::string resource = std::string(GetParam()) + "helpDir: " + (folder / "%N%S") + "\n";
  setenv("XENVIRONMENT", folder.with("mine", resource).c_str(), 1);
  start();
  expect_page_of_button("family_selection.Help", "My Families");
}

INSTANTIATE_TEST_SUITE_P(With, UsersHelp, testing::Values("*", "VQconfig*"), [](const auto& row) {
  return std::string(row.param) == "*" ? "ALooseBinding" : "TheClassOfTheProgram";
});

TEST_F(Help, IsGermanForAGermanUser) {
  std::filesystem::create_directory_symlink("/usr/lib/locale/C.utf8", folder / "de_DE.UTF-8");  // only the name counts
  setenv("LOCPATH", folder.path().c_str(), 1);
  setenv("LC_ALL", "de_DE.UTF-8", 1);
  open_every_dialog();
  EXPECT_EQ("Hilfe", label("widgetedit_helpb"));
  expect_page_of_button("family_selection.Help", "Familien");
  expect_page_of_button("open_fsb.Help", "Ein Dokument öffnen");
  expect_page_of_button("options_help", "Namen im erzeugten Code");
  expect_page_of_button("enumedit_selection.Help", "Aufzählungseditor");
}

class HelpKey : public Help {
 protected:
  HelpKey() { open_document("VQconfig\nwidget 'W' {\n}\nfamily 'F' {\nwidget='W'\n}\n"); }
};

TEST_F(HelpKey, OpensThePageOfTheListThatIsTypedInto) {
  click("family_selection.Text");
  expect_page_of_key("family_selection.Text", "Families");
  edit_family("F");
  click("widgetlist_selection.Text");
  expect_page_of_key("widgetlist_selection.Text", "Widgets");
}

TEST_F(HelpKey, OpensThePageOfADialogWithoutAList) {
  press("family_stop_b");
  expect_page_of_key("stop_list_shell", "Stop List");
}

TEST_F(HelpKey, OpensThePageOfTheOptions) {
  press("family_generate_options_b");
  click("family_table_text");
  expect_page_of_key("family_table_text", "Names in Generated Code");
}

TEST_F(HelpKey, OpensThePageOfTheWidgetEditor) {
  edit_family("F");
  edit_widget("W");
  click("widgetedit_include_filename");
  expect_page_of_key("widgetedit_include_filename", "Widget Editor");
}

TEST_F(HelpKey, OpensThePageOfTheFamilysInitialisation) {
  edit_family("F");
  toggle("entity_opt_family_init_t", true);
  click("familyinit_init_text");
  expect_page_of_key("familyinit_init_text", "Family Initialisation");
}

class HelpAtExit : public testing::Test {
 protected:
  HelpAtExit() { overlook_leaks_of_libraries(); }

  TemporaryFolder folder;
  OtherDisplay screen;
};

TEST_F(HelpAtExit, LeavesNoViewerBehind) {
  RunningProgram program({folder.with("athena.vqc", "VQconfig\nfamily 'Athena' {\n}\n")}, screen.name());
  ASSERT_NE(0U, screen.wait_for_window("vqconfig: athena.vqc"));
  screen.focus("vqconfig: athena.vqc");
  screen.key("F1");
  ASSERT_NE(0U, screen.wait_for_window("Families"));
  EXPECT_EQ(1U, viewers_on(screen.name()).size());
  screen.focus("vqconfig: athena.vqc");
  screen.key("q", true);
  EXPECT_EQ(0, program.wait());
  EXPECT_TRUE(wait_until_true([this] { return viewers_on(screen.name()).empty(); }));
  EXPECT_EQ("", program.errors());
}

}  // namespace
