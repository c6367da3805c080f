#include "vqc/cmd/savefile/stream.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "support/files.h"

namespace {

class StreamTest : public testing::Test {
 protected:
  /// All that the file at `path` holds, part by part.
  static std::string read_all(const std::string& path) {
    auto stream = Stream::open(path.c_str(), "r");
    std::string all;
    for (std::string_view part = stream->read(); !part.empty(); part = stream->read()) all += part;
    EXPECT_TRUE(stream->read().empty());
    return all;
  }

  TemporaryFolder folder;
  const std::string path = folder / "file";
};

constexpr std::size_t kBuffer = std::size_t{64} * 1024;

TEST_F(StreamTest, ReadsWhatTheFileHolds) {
  write_file(path, "some text\n");
  EXPECT_EQ("some text\n", read_all(path));
}

TEST_F(StreamTest, ReadsAnEmptyFile) {
  write_file(path, "");
  EXPECT_EQ("", read_all(path));
}

TEST_F(StreamTest, ReadsFilesAboutAsLongAsItsBuffer) {
  for (std::size_t size : {kBuffer - 1, kBuffer, kBuffer + 1, 3 * kBuffer + 5}) {
    std::string text(size, 'x');
    text.back() = 'y';
    write_file(path, text);
    EXPECT_EQ(text, read_all(path)) << size;
  }
}

TEST_F(StreamTest, PutsNulsBehindEachPart) {
  for (std::size_t size : {std::size_t{0}, std::size_t{5}, kBuffer, kBuffer + 1}) {
    write_file(path, std::string(size, 'x'));
    auto stream = Stream::open(path.c_str(), "r");
    std::string_view part;
    do {
      part = stream->read();
      EXPECT_EQ(std::string(Stream::kNulsBehind, '\0'), std::string(part.data() + part.size(), Stream::kNulsBehind));
    } while (!part.empty());
  }
}

TEST_F(StreamTest, ReadsBytesAsTheyAre) {
  const std::string bytes("\0\xff\r\n\x80\x1a", 6);
  write_file(path, bytes);
  EXPECT_EQ(bytes, read_all(path));
}

TEST_F(StreamTest, WritesWhatItIsGiven) {
  auto stream = Stream::open(path.c_str(), "w");
  EXPECT_TRUE(stream->write("one "));
  EXPECT_TRUE(stream->write(""));
  EXPECT_TRUE(stream->write("two"));
  EXPECT_TRUE(stream->close());
  EXPECT_EQ("one two", read_file(path));
}

TEST_F(StreamTest, WritesPiecesThatCrossItsBuffer) {
  auto stream = Stream::open(path.c_str(), "w");
  std::string expected;
  for (int i = 0; i < 30000; ++i) {
    const std::string piece = std::to_string(i) + ",";
    EXPECT_TRUE(stream->write(piece));
    expected += piece;
  }
  EXPECT_TRUE(stream->close());
  EXPECT_EQ(expected, read_file(path));
}

TEST_F(StreamTest, WritesPiecesLongerThanItsBuffer) {
  const std::string longest(5 * kBuffer + 3, 'x');
  auto stream = Stream::open(path.c_str(), "w");
  EXPECT_TRUE(stream->write("<"));
  EXPECT_TRUE(stream->write(longest));
  EXPECT_TRUE(stream->write(">"));
  EXPECT_TRUE(stream->close());
  EXPECT_EQ("<" + longest + ">", read_file(path));
}

TEST_F(StreamTest, ReplacesWhatTheFileHeld) {
  write_file(path, "something longer");
  Stream::open(path.c_str(), "w")->write("short");
  EXPECT_EQ("short", read_file(path));
}

TEST_F(StreamTest, LeavesTheFileAloneWhenReading) {
  write_file(path, "text");
  Stream::open(path.c_str(), "r")->read();
  EXPECT_EQ("text", read_file(path));
}

TEST_F(StreamTest, IsClosedOnceOnly) {
  auto stream = Stream::open(path.c_str(), "w");
  EXPECT_TRUE(stream->close());
  EXPECT_TRUE(stream->close());
}

TEST_F(StreamTest, CannotBeOpenedInAMissingFolder) {
  errno = 0;
  EXPECT_EQ(nullptr, Stream::open((folder / "missing/file").c_str(), "r"));
  EXPECT_EQ(ENOENT, errno);
  errno = 0;
  EXPECT_EQ(nullptr, Stream::open((folder / "missing/file").c_str(), "w"));
  EXPECT_EQ(ENOENT, errno);
}

TEST_F(StreamTest, CannotBeOpenedOnAFolder) {
  for (const char* mode : {"r", "w"}) {
    errno = 0;
    EXPECT_EQ(nullptr, Stream::open(folder.path().c_str(), mode)) << mode;
    EXPECT_EQ(EISDIR, errno) << mode;
  }
}

TEST_F(StreamTest, TellsWhatItCannotWriteAndWhy) {
  auto stream = Stream::open("/dev/full", "w");
  errno = 0;
  EXPECT_FALSE(stream->write(std::string(2 * kBuffer, 'x')));
  EXPECT_EQ(ENOSPC, errno);
}

TEST_F(StreamTest, TellsAtTheLatestWhenItIsClosed) {
  auto stream = Stream::open("/dev/full", "w");
  EXPECT_TRUE(stream->write("x"));
  errno = 0;
  EXPECT_FALSE(stream->close());
  EXPECT_EQ(ENOSPC, errno);
}

}  // namespace
