#include "libkel/source.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <thread>

#include <sys/stat.h>

#include "support/files.h"

using namespace vqc;

namespace {

using namespace std::string_literals;

class SourceTest : public testing::Test {
 protected:
  std::shared_ptr<const Source> read(std::string_view text) { return Source::read(folder.with("file", text).c_str()); }

  TemporaryFolder folder;
};

TEST_F(SourceTest, IsWhatTheFileHolds) {
  const auto source = read("some text\n");
  EXPECT_EQ("some text\n", source->text());
  EXPECT_EQ(folder / "file", source->name());
}

TEST_F(SourceTest, CanBeOfRegularFilesAlone) {
  EXPECT_EQ("text", Source::read_regular(folder.with("file", "text").c_str())->text());
  EXPECT_EQ(nullptr, Source::read_regular("/dev/zero"));
  EXPECT_EQ(nullptr, Source::read_regular(folder.path().c_str()));
  EXPECT_EQ(nullptr, Source::read_regular((folder / "missing").c_str()));
}

TEST_F(SourceTest, MayBeEmpty) { EXPECT_EQ("", read("")->text()); }

TEST_F(SourceTest, TakesBytesAsTheyAre) {
  const std::string bytes = "\0\xff\r\n\x80\x1a"s;
  EXPECT_EQ(bytes, read(bytes)->text());
}

TEST_F(SourceTest, HasANulBehindIt) {
  for (std::size_t size : {0, 5, 4095, 4096, 4097, 8191, 8192, 100000}) {
    const auto source = read(std::string(size, 'x'));
    ASSERT_EQ(size, source->text().size());
    EXPECT_EQ('\0', source->text().data()[size]) << size;
  }
}

TEST_F(SourceTest, MayBeOfAnySize) {
  std::string text(5'000'000, 'x');
  text.back() = 'y';
  EXPECT_TRUE(text == read(text)->text());
}

TEST_F(SourceTest, ComesFromAPipeToo) {
  const std::string pipe = folder / "pipe";
  ASSERT_EQ(0, mkfifo(pipe.c_str(), 0600));
  const std::string text(300'000, 'x');
  std::thread writer([&] { write_file(pipe, text); });
  const auto source = Source::read(pipe.c_str());
  writer.join();
  EXPECT_TRUE(text == source->text());
}

TEST_F(SourceTest, CannotBeReadFromWhatIsMissingOrAFolder) {
  errno = 0;
  EXPECT_EQ(nullptr, Source::read((folder / "missing").c_str()));
  EXPECT_EQ(ENOENT, errno);
  errno = 0;
  EXPECT_EQ(nullptr, Source::read(folder.path().c_str()));
  EXPECT_EQ(EISDIR, errno);
}

TEST(SourceFromText, IsACopy) {
  std::string text = "text";
  const auto source = Source::from_text(text, "name");
  text = "else";
  EXPECT_EQ("text", source->text());
  EXPECT_EQ("name", source->name());
}

TEST(SourceWrittenBy, HoldsWhatIsWritten) {
  const auto source = Source::written_by([](Sink& out) {
    out.write("two\n");
    out.write("lines");
  });
  EXPECT_EQ("two\nlines", source->text());
  EXPECT_EQ('\0', source->text().data()[source->text().size()]);
  EXPECT_EQ(2U, source->place(source->text().size()).line);
}

TEST(SourceWrittenBy, MayBeOfAnySize) {
  const std::string part(50'000, 'x');
  for (const int parts : {0, 1, 2, 20}) {
    const auto source = Source::written_by([&](Sink& out) {
      for (int i = 0; i < parts; ++i) out.write(part);
    });
    EXPECT_EQ(std::string(part.size() * static_cast<std::size_t>(parts), 'x'), source->text()) << parts;
  }
}

TEST(SourceFromText, GivesTheTextOfARange) { EXPECT_EQ("bc", Source::from_text("abcd")->text({1, 3})); }

// Places.

TEST(Places, AreCountedFromOne) {
  const auto source = Source::from_text("ab\n\ncd");
  EXPECT_EQ((Place{1, 1}), source->place(0));
  EXPECT_EQ((Place{1, 2}), source->place(1));
  EXPECT_EQ((Place{1, 3}), source->place(2));  // the line feed itself
  EXPECT_EQ((Place{2, 1}), source->place(3));
  EXPECT_EQ((Place{3, 1}), source->place(4));
  EXPECT_EQ((Place{3, 3}), source->place(6));  // the end
}

TEST(Places, TakeACharacterForAColumn) {
  const auto source = Source::from_text("\xc3\xa4\xe2\x82\xacx");
  EXPECT_EQ((Place{1, 2}), source->place(2));
  EXPECT_EQ((Place{1, 3}), source->place(5));
}

TEST(Places, TakeAByteThatIsNoCharacterForAColumn) {
  EXPECT_EQ((Place{1, 4}), Source::from_text("\xff\xc3zx")->place(3));
}

TEST(Places, AreTheSameInWhicheverOrderTheyAreAskedFor) {
  const std::string text =
      "a\xC3\xA4\xFF"
      "b\xE8\xA1\xA8\n\xC3\xA4"
      "c\xA4";
  const auto source = Source::from_text(text);
  for (std::size_t first = 0; first <= text.size(); ++first) {
    for (std::size_t second = 0; second <= text.size(); ++second) {
      source->place(first);
      EXPECT_EQ(Source::from_text(text)->place(second), source->place(second)) << second << " after " << first;
    }
  }
}

TEST(Places, AreBehindLineFeedsOnly) {
  const auto source = Source::from_text("a\rb\vc\fd\ne");
  EXPECT_EQ((Place{1, 7}), source->place(6));
  EXPECT_EQ((Place{2, 1}), source->place(8));
}

TEST(Places, OfAnEmptyTextAreOne) { EXPECT_EQ((Place{1, 1}), Source::from_text("")->place(0)); }

TEST(Lines, AreGivenWithoutTheirEnds) {
  const auto source = Source::from_text("ab\n\ncd\n");
  EXPECT_EQ("ab", source->line(1));
  EXPECT_EQ("", source->line(2));
  EXPECT_EQ("cd", source->line(3));
  EXPECT_EQ("", source->line(4));
}

TEST(Lines, ThatAreNotThereAreEmpty) {
  const auto source = Source::from_text("ab");
  EXPECT_EQ("", source->line(0));
  EXPECT_EQ("", source->line(2));
}

}  // namespace
