#include <unistd.h>

#include <cstring>
#include <set>

#include "gui/hands.h"
#include "gui/looks.h"
#include "support/windows.h"

using namespace vqc;

namespace {

class WindowProperties : public Session {
 protected:
  static std::string of(Widget shell, const char* name) { return property(display, XtWindow(shell), name); }

  static unsigned long number(Widget shell, const char* name, Atom type) {
    const std::string bytes = property_bytes(display, XtWindow(shell), name, type, 32);
    unsigned long value = 0;
    if (bytes.size() == sizeof value) std::memcpy(&value, bytes.data(), sizeof value);
    return value;
  }

  static Atom kind(Widget shell) { return static_cast<Atom>(number(shell, "_NET_WM_WINDOW_TYPE", XA_ATOM)); }
  static Atom atom(const char* name) { return XInternAtom(display, name, False); }

  /// A dialog of each kind, and the main window.
  std::vector<Widget> opened_windows() {
    start();
    add_family("F");
    edit_family("F");
    press("family_saveasb");
    press("family_helpaboutb");
    press("family_stop_b");
    return {main_shell(), widget("entity_dialog"), widget("save_dialog"), widget("about_dialog"),
            widget("stop_list_shell")};
  }
};

TEST_F(WindowProperties, GiveTheTitleInUtf8) {
  for (Widget shell : opened_windows()) {
    EXPECT_EQ(of(shell, "WM_NAME"), of(shell, "_NET_WM_NAME"));
    EXPECT_EQ(of(shell, "_NET_WM_NAME"), of(shell, "_NET_WM_ICON_NAME"));
    EXPECT_NE("", of(shell, "_NET_WM_NAME")) << XtName(shell);
  }
}

TEST_F(WindowProperties, FollowTheTitle) {
  start();
  EXPECT_EQ("vqconfig", of(main_shell(), "_NET_WM_NAME"));
  save_as("Gr\u00F6\u00DFe \u7A93.vqc");
  open_file("Gr\u00F6\u00DFe \u7A93.vqc");
  EXPECT_EQ("vqconfig: Gr\u00F6\u00DFe \u7A93.vqc", of(main_shell(), "_NET_WM_NAME"));
  press("family_newb");
  EXPECT_EQ("vqconfig", of(main_shell(), "_NET_WM_NAME"));
  add_family("F");
  edit_family("F");
  const std::string title = of(widget("entity_dialog"), "_NET_WM_NAME");
  add_family("G");
  select("family_selection", "G");
  EXPECT_NE(title, of(widget("entity_dialog"), "_NET_WM_NAME"));
}

TEST_F(WindowProperties, AreUtf8ForFileNamesThatAreNot) {
  start({folder.with("caf\xE9.vqc", "VQconfig 'x' 'y' 'z'\n")});
  EXPECT_EQ("vqconfig: caf\u00E9.vqc", of(main_shell(), "_NET_WM_NAME"));
}

TEST_F(WindowProperties, AreUtf8InALocaleThatIsNot) {
  setenv("LC_ALL", "C", 1);
  start({folder.with("Gr\u00F6\u00DFe.vqc", "VQconfig 'x' 'y' 'z'\n")});
  EXPECT_EQ("vqconfig: Gr\u00F6\u00DFe.vqc", of(main_shell(), "_NET_WM_NAME"));
}

TEST_F(WindowProperties, NameProcessAndMachine) {
  char machine[256] = "";
  gethostname(machine, sizeof machine - 1);
  for (Widget shell : opened_windows()) {
    EXPECT_EQ(static_cast<unsigned long>(getpid()), number(shell, "_NET_WM_PID", XA_CARDINAL));
    EXPECT_EQ(machine, of(shell, "WM_CLIENT_MACHINE"));
  }
}

TEST_F(WindowProperties, SayWhatKindOfWindowItIs) {
  for (Widget shell : opened_windows()) {
    EXPECT_EQ(atom(shell == main_shell() ? "_NET_WM_WINDOW_TYPE_NORMAL" : "_NET_WM_WINDOW_TYPE_DIALOG"), kind(shell));
  }
}

TEST_F(WindowProperties, TellMenusFromDialogs) {
  start();
  click("family_file_cascade");
  Widget menu = shell_around(widget("family_file_menu"));
  ASSERT_TRUE(wait_for([&] { return is_viewable(menu); }));
  EXPECT_EQ(atom("_NET_WM_WINDOW_TYPE_DROPDOWN_MENU"), kind(menu));
}

TEST_F(WindowProperties, GiveEachWindowARoleOfItsOwn) {
  const std::vector<Widget> shells = opened_windows();
  std::set<std::string> roles;
  for (Widget shell : shells) roles.insert(of(shell, "WM_WINDOW_ROLE"));
  EXPECT_EQ(shells.size(), roles.size());
  EXPECT_TRUE(roles.contains("entity_dialog"));
}

}  // namespace
