#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

class HeaderLists : public Session {
 protected:
  HeaderLists() {
    open_document("VQconfig\nfamily 'F' {\n}\nfamily 'G' {\n}\n");
    edit_family("F");
  }
  static void add(const std::string& box, const std::string& name) {
    enter(box, name);
    press_ok(box);
  }
  static void remove(const std::string& box, const std::string& name) {
    enter(box, name);
    press_cancel(box);
  }
};

TEST_F(HeaderLists, TheSameNameInTwoListsIsTwoEntries) {
  add("familyheaderlist_selection", "x.h");
  add("familyheaderlist_selection", "x.h");
  add("confheaderlist_selection", "x.h");
  EXPECT_EQ(Items{"x.h"}, items("familyheaderlist_selection"));
  EXPECT_EQ(Items{"x.h"}, items("confheaderlist_selection"));
  EXPECT_EQ(Items(), items("codeheaderlist_selection"));
  EXPECT_TRUE(saved().starts_with("VQconfig\ncheader 'x.h'\nfamily_header 'x.h'\npopup "));
  EXPECT_EQ(Names{"x.h"}, saved_names("F", "cheader"));
  EXPECT_EQ(Names{"x.h"}, saved_names("F", "family_header"));
  EXPECT_EQ(Names(), saved_names("F", "header"));
}

TEST_F(HeaderLists, FamiliesShareAHeader) {
  add("codeheaderlist_selection", "x.h");
  select("family_selection", "G");
  add("codeheaderlist_selection", "x.h");
  remove("codeheaderlist_selection", "x.h");
  EXPECT_NE(std::string::npos, saved().find("\nheader 'x.h'\n"));
  select("family_selection", "F");
  EXPECT_EQ(Items{"x.h"}, items("codeheaderlist_selection"));
  remove("codeheaderlist_selection", "x.h");
  EXPECT_EQ(std::string::npos, saved().find("x.h"));
}

TEST_F(HeaderLists, AClickOnlyCopiesTheName) {
  choose_menu("entity_viewb", "entity_opt_code_headers_t");
  add("codeheaderlist_selection", "a.h");
  add("codeheaderlist_selection", "b.h");
  click_item("codeheaderlist_selection", "a.h");
  EXPECT_EQ("a.h", text("codeheaderlist_selection"));
  EXPECT_EQ((Items{"a.h", "b.h"}), items("codeheaderlist_selection"));
}

TEST_F(HeaderLists, ReturnOnANameThatIsThereAddsNothing) {
  choose_menu("entity_viewb", "entity_opt_code_headers_t");
  add("codeheaderlist_selection", "a.h");
  add("codeheaderlist_selection", "b.h");
  saved();
  click("codeheaderlist_selection.Text");
  key("ctrl+a");
  type("a.h");
  key("Return");
  EXPECT_EQ((Items{"a.h", "b.h"}), items("codeheaderlist_selection"));
  EXPECT_EQ((Names{"a.h", "b.h"}), saved_names("F", "header"));
  EXPECT_FALSE(dirty);
  EXPECT_TRUE(is_shown("entity_dialog"));
}

TEST_F(HeaderLists, AnEmptyListClearsTheName) {
  add("codeheaderlist_selection", "a.h");
  enter("codeheaderlist_selection", "typed");
  select("family_selection", "F");
  EXPECT_EQ("", text("codeheaderlist_selection"));
}

}  // namespace
