#include <filesystem>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "vqc/cmd/editors/kit/widgets.h"
#include "vqc/cmd/editors/safety_net.h"

using namespace vqc;

namespace {

const char athena[] = "VQconfig\nfamily 'Athena' {\n}\n";
const char demo[] = "VQconfig\nfamily 'Demo' {\n}\n";

class RecentMenu : public Session {
 protected:
  /// The items that the menu would show now, without their digits; those that cannot be chosen in brackets.
  static Items shown() {
    click("family_file_cascade");
    Items names;
    for (Widget item : vqc::editors::children_of(widget("family_recent_menu"))) {
      if (!XtIsManaged(item)) continue;
      const std::string path = label(item).substr(3);
      names.push_back(XtIsSensitive(item) ? path : "[" + path + "]");
    }
    key("Escape");
    key("Escape");
    settle();
    return names;
  }
  /// Opens the menu and presses the digit of an item.
  static void choose(const std::string& digit) {
    click("family_file_cascade");
    click("family_recent_cascade");
    key(digit);
    settle();
  }
  std::string with_athena() const { return folder.with("athena.vqc", athena); }
  std::string with_demo() const { return folder.with("demo.vqc", demo); }
};

TEST_F(RecentMenu, IsInsensitiveAsLongAsThereIsNothingInIt) {
  start();
  EXPECT_EQ(Items(), shown());
  EXPECT_FALSE(is_sensitive("family_recent_cascade"));
  open_file(with_athena());
  EXPECT_EQ(Items(), shown());  // which is open
  EXPECT_FALSE(is_sensitive("family_recent_cascade"));
}

TEST_F(RecentMenu, HasWhatWasOpenedAndSavedNewestFirst) {
  start({with_athena()});
  open_file(with_demo());
  save_as("copy.vqc");
  press("family_newb");
  EXPECT_TRUE(is_sensitive("family_recent_cascade"));
  EXPECT_EQ((Items{folder / "copy.vqc", folder / "demo.vqc", folder / "athena.vqc"}), shown());
}

TEST_F(RecentMenu, HasNothingThatCouldNotBeOpened) {
  start();
  open_file(folder / "nowhere.vqc");
  open_file(folder.with("other.txt", "no document"));
  EXPECT_EQ(Items(), shown());
}

TEST_F(RecentMenu, OpensWhatIsChosen) {
  start({with_athena()});
  open_file(with_demo());
  choose("1");
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_EQ("vqconfig: athena.vqc", title());
  EXPECT_EQ(Items{folder / "demo.vqc"}, shown());
  press("family_undob");
  EXPECT_EQ(Items{"Demo"}, items("family_selection"));
}

TEST_F(RecentMenu, AsksBeforeChangesAreLost) {
  start({with_athena()});
  open_file(with_demo());
  add_family("New");
  choose("1");
  EXPECT_TRUE(is_shown("savechanges_dialog"));
  EXPECT_EQ(filled("sbf_open", (folder / "demo.vqc").c_str()), message("savechanges_messagebox"));
  press_cancel("savechanges_messagebox");
  EXPECT_EQ((Items{"Demo", "New"}), items("family_selection"));
  choose("1");
  press_ok("savechanges_messagebox");
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_FALSE(is_shown("open_dialog"));
  EXPECT_NE(std::string::npos, read_file(folder / "demo.vqc").find("'New'"));
}

TEST_F(RecentMenu, DiscardingOpensIt) {
  start({with_athena()});
  open_file(with_demo());
  add_family("New");
  choose("1");
  press("savechanges_nob");
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_EQ(demo, read_file(folder / "demo.vqc"));
  const Versions versions(versions_folder());
  ASSERT_EQ(1U, versions.of(folder / "demo.vqc").size());
  EXPECT_EQ(Reason::not_saved, versions.of(folder / "demo.vqc").front().reason);
}

TEST_F(RecentMenu, ADocumentThatIsGoneCannotBeChosen) {
  start({with_athena()});
  open_file(with_demo());
  std::filesystem::remove(folder / "athena.vqc");
  EXPECT_EQ(Items{"[" + (folder / "athena.vqc") + "]"}, shown());
}

TEST_F(RecentMenu, ShowsTheEndOfALongPath) {
  std::string parts;
  for (int i = 0; i < 12; ++i) parts += "/a folder " + std::to_string(i);
  std::filesystem::create_directories(folder.path() + parts);
  start({folder.with(parts.substr(1) + "/athena.vqc", athena)});
  press("family_newb");
  EXPECT_EQ(Items{".../a folder 8/a folder 9/a folder 10/a folder 11/athena.vqc"}, shown());
}

}  // namespace
