#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/memory.h"
#include "gui/session.h"

using namespace vqc;

// A session that runs short of memory drops what was asked for, says so, and goes on.

namespace {

constexpr std::size_t kKilobyte = 1024;
constexpr int kMany = 20000;
constexpr std::size_t kForHalfOfThem = 2000 * kKilobyte;  // half of that is the text of the document

/// A family whose names take some megabytes.
std::string large_document() {
  std::string text = "VQconfig family 'Large' {";
  for (int i = 0; i < kMany; ++i) text += " header='a/folder/of/the/header/" + std::to_string(i) + ".h'";
  return text + " }";
}

class ShortOfMemory : public Session {
 protected:
  ShortOfMemory() {
    open_document("VQconfig\nfamily 'Dials' {\n\twidget='Dial'\n}\n");
    folder.with("large.vqc", large_document());
  }

  /// Does something while the program has that much memory. What the test lacks itself then does not matter.
  template <class Action>
  static void with_little_memory(std::size_t bytes, Action action) {
    const ShortMemory memory(bytes);
    try {
      action();
    } catch (const std::bad_alloc&) {
    }
  }

  void expect_told() {
    EXPECT_EQ(resource_text("out_of_memory"), error_shown());
    EXPECT_NE("out_of_memory", error_shown());
    press("error_messageb.Cancel");
    EXPECT_FALSE(exit_status);
  }
};

TEST_F(ShortOfMemory, OpenStopsReadingAndKeepsWhatItHasRead) {
  with_little_memory(kForHalfOfThem, [&] { open_file(folder / "large.vqc"); });
  expect_told();
  EXPECT_EQ(Items{"Large"}, items("family_selection"));
  const std::vector<std::string> names = saved_names("Large", "header");
  EXPECT_LT(100U, names.size());
  EXPECT_GT(static_cast<std::size_t>(kMany), names.size());
}

TEST_F(ShortOfMemory, ATextThatIsTooLongLeavesTheDocument) {
  with_little_memory(500 * kKilobyte, [&] { open_file(folder / "large.vqc"); });
  expect_told();
  EXPECT_EQ(Items{"Dials"}, items("family_selection"));
  EXPECT_EQ((std::vector<std::string>{"Dial"}), saved_names("Dials", "widget"));
}

TEST_F(ShortOfMemory, ReadKeepsTheDocumentInMemory) {
  with_little_memory(kForHalfOfThem, [&] { read_into(folder / "large.vqc"); });
  expect_told();
  EXPECT_EQ((Items{"Dials", "Large"}), items("family_selection"));
  EXPECT_EQ((std::vector<std::string>{"Dial"}), saved_names("Dials", "widget"));
}

TEST_F(ShortOfMemory, AnActionIsDropped) {
  enter("family_selection", std::string(2000, 'n'));
  with_little_memory(1500, [] { press_apply("family_selection"); });
  expect_told();
  EXPECT_EQ(Items{"Dials"}, items("family_selection"));
  EXPECT_FALSE(dirty);
  add_family("Gauges");
  EXPECT_EQ((Items{"Dials", "Gauges"}), items("family_selection"));
}

TEST_F(ShortOfMemory, TypingAndTakingBackGoOn) {
  click("family_selection.Text");
  enter("family_selection", std::string(2000, 'n'));
  with_little_memory(1500, [] {
    type("a");
    key("ctrl+z");
  });
  expect_told();
}

TEST_F(ShortOfMemory, TheSameOpensWhenThereIsMemoryAgain) {
  with_little_memory(kForHalfOfThem, [&] { open_file(folder / "large.vqc"); });
  expect_told();
  open_file(folder / "large.vqc");
  EXPECT_EQ("", error_shown());
  EXPECT_EQ(static_cast<std::size_t>(kMany), saved_names("Large", "header").size());
}

TEST_F(ShortOfMemory, SurvivesWhereverItRunsOut) {
  for (std::size_t kilobytes = 200; kilobytes < 3000; kilobytes += 113) {
    with_little_memory(kilobytes * kKilobyte, [&] { read_into(folder / "large.vqc"); });
    ASSERT_EQ(resource_text("out_of_memory"), error_shown()) << kilobytes;
    press("family_newb");
    if (is_shown("savechanges_dialog")) press("savechanges_nob");  // something had been read
    add_family("After");
    EXPECT_EQ(Items{"After"}, items("family_selection")) << kilobytes;
  }
}

}  // namespace
