#include "libkel/sink.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "support/files.h"

using namespace vqc;

namespace {

constexpr std::size_t kBuffer = std::size_t{64} * 1024;

class FileSinkTest : public testing::Test {
 protected:
  TemporaryFolder folder;
  const std::string path = folder / "file";
};

TEST_F(FileSinkTest, WritesWhatItIsGiven) {
  const auto out = FileSink::open(path.c_str());
  out->write("one ");
  out->write("");
  out->write("two");
  EXPECT_TRUE(out->finish());
  EXPECT_EQ("one two", read_file(path));
}

TEST_F(FileSinkTest, WritesPiecesThatCrossItsBuffer) {
  const auto out = FileSink::open(path.c_str());
  std::string expected;
  for (int i = 0; i < 30000; ++i) {
    const std::string piece = std::to_string(i) + ",";
    out->write(piece);
    expected += piece;
  }
  EXPECT_TRUE(out->finish());
  EXPECT_EQ(expected, read_file(path));
}

TEST_F(FileSinkTest, WritesPiecesAboutAsLongAsItsBuffer) {
  for (std::size_t size : {kBuffer - 1, kBuffer, kBuffer + 1, 5 * kBuffer + 3}) {
    const std::string piece(size, 'x');
    const auto out = FileSink::open(path.c_str());
    out->write("<");
    out->write(piece);
    out->write(">");
    EXPECT_TRUE(out->finish());
    EXPECT_TRUE("<" + piece + ">" == read_file(path)) << size;
  }
}

TEST_F(FileSinkTest, EmptiesTheFileAtOnce) {
  write_file(path, "something longer");
  const auto out = FileSink::open(path.c_str());
  EXPECT_EQ("", read_file(path));
  out->write("short");
  EXPECT_TRUE(out->finish());
  EXPECT_EQ("short", read_file(path));
}

TEST_F(FileSinkTest, CannotBeOpenedInAMissingFolderOrOnAFolder) {
  errno = 0;
  EXPECT_EQ(nullptr, FileSink::open((folder / "missing/file").c_str()));
  EXPECT_EQ(ENOENT, errno);
  errno = 0;
  EXPECT_EQ(nullptr, FileSink::open(folder.path().c_str()));
  EXPECT_EQ(EISDIR, errno);
}

TEST_F(FileSinkTest, RemembersAFailureToTheEnd) {
  const auto out = FileSink::open("/dev/full");
  out->write(std::string(2 * kBuffer, 'x'));
  out->write("more");
  errno = 0;
  EXPECT_FALSE(out->finish());
  EXPECT_EQ(ENOSPC, errno);
}

TEST_F(FileSinkTest, TellsOfAFailureAtTheVeryEnd) {
  const auto out = FileSink::open("/dev/full");
  out->write("x");
  errno = 0;
  EXPECT_FALSE(out->finish());
  EXPECT_EQ(ENOSPC, errno);
}

TEST(StringSink, HasWhatHasBeenWritten) {
  StringSink out;
  out.write("one ");
  out.write(std::string(kBuffer, 'x'));
  out.write(" two");
  EXPECT_TRUE(out.finish());
  EXPECT_TRUE("one " + std::string(kBuffer, 'x') + " two" == out.text());
}

}  // namespace
