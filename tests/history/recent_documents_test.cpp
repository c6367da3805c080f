#include "vqc/cmd/history/recent_documents.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/files.h"

using namespace vqc;

namespace {

namespace fs = std::filesystem;

using Paths = std::vector<fs::path>;

const std::error_code kDone;

class RecentDocumentsTest : public testing::Test {
 protected:
  TemporaryFolder folder;
  RecentDocuments recent{folder / "state"};
};

TEST_F(RecentDocumentsTest, ThereAreNoneAtFirst) { EXPECT_EQ(Paths(), recent.paths()); }

TEST_F(RecentDocumentsTest, TheOneOfLastComesFirst) {
  for (const char* path : {"/d/a.vqc", "/d/b.vqc", "/d/a.vqc", "/d/c.vqc"}) EXPECT_EQ(kDone, recent.add(path));
  EXPECT_EQ((Paths{"/d/c.vqc", "/d/a.vqc", "/d/b.vqc"}), recent.paths());
}

TEST_F(RecentDocumentsTest, TenAreKept) {
  for (int i = 1; i <= 12; ++i) EXPECT_EQ(kDone, recent.add("/d/" + std::to_string(i)));
  const Paths paths = recent.paths();
  ASSERT_EQ(10U, paths.size());
  EXPECT_EQ("/d/12", paths.front());
  EXPECT_EQ("/d/3", paths.back());
}

TEST_F(RecentDocumentsTest, PathsMayHaveAnyBytes) {
  const fs::path odd = "/d/two\nlines, 100% and \xFF";
  EXPECT_EQ(kDone, recent.add(odd));
  EXPECT_EQ(Paths{odd}, recent.paths());
}

TEST_F(RecentDocumentsTest, APathBeginsAtTheRoot) {
  EXPECT_EQ(kDone, recent.add("a.vqc"));
  EXPECT_EQ(Paths{fs::canonical(".") / "a.vqc"}, recent.paths());
}

TEST_F(RecentDocumentsTest, WhatIsNoPathIsLeftOut) {
  fs::create_directory(folder / "state");
  folder.with("state/recent", "/d/a.vqc\nrelative\n/bad%zz\n\n/d/b.vqc");
  EXPECT_EQ((Paths{"/d/a.vqc", "/d/b.vqc"}), recent.paths());
}

TEST_F(RecentDocumentsTest, AreForTheUserAlone) {
  umask(0);
  EXPECT_EQ(kDone, recent.add("/d/a.vqc"));
  struct stat status {};
  ASSERT_EQ(0, stat((folder / "state/recent").c_str(), &status));
  EXPECT_EQ(0600U, status.st_mode & 0777U);
  ASSERT_EQ(0, stat((folder / "state").c_str(), &status));
  EXPECT_EQ(0700U, status.st_mode & 0777U);
}

TEST_F(RecentDocumentsTest, NoLinkIsFollowed) {
  const std::string other = folder.with("other", "/d/other.vqc\n");
  fs::create_directory(folder / "state");
  fs::create_symlink(other, folder / "state/recent");
  EXPECT_EQ(Paths(), recent.paths());
  EXPECT_EQ(kDone, recent.add("/d/a.vqc"));
  EXPECT_EQ("/d/other.vqc\n", read_file(other));
  EXPECT_EQ(Paths{"/d/a.vqc"}, recent.paths());
}

TEST_F(RecentDocumentsTest, SaysWhyTheyCannotBeKept) {
  folder.with("state", "a file where a folder should be");
  EXPECT_EQ(std::errc::not_a_directory, recent.add("/d/a.vqc"));
  EXPECT_EQ(Paths(), recent.paths());
}

TEST_F(RecentDocumentsTest, SessionsTakeNothingFromEachOther) {
  for (int session = 0; session < 5; ++session) {
    if (fork() != 0) continue;
    for (int i = 0; i < 20; ++i) recent.add("/d/" + std::to_string(session));
    _exit(0);
  }
  while (wait(nullptr) > 0) {
  }
  EXPECT_EQ(5U, recent.paths().size());
}

}  // namespace
