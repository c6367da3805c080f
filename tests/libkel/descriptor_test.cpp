#include "libkel/descriptor.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <fcntl.h>
#include <unistd.h>

#include "support/files.h"

using namespace vqc;

namespace {

class DescriptorTest : public testing::Test {
 protected:
  static Descriptor opened(const std::string& path) { return Descriptor(open(path.c_str(), O_RDWR | O_CLOEXEC)); }

  TemporaryFolder folder;
  const std::string path = folder.with("file", "text");
  const Descriptor file = opened(path);
};

TEST_F(DescriptorTest, IsAtItsPathUntilTheFileIsReplaced) {
  EXPECT_TRUE(file.is_at(path.c_str()));
  std::filesystem::rename(folder.with("other", "text"), path);
  EXPECT_FALSE(file.is_at(path.c_str()));
  unlink(path.c_str());
  EXPECT_FALSE(file.is_at(path.c_str()));
}

TEST_F(DescriptorTest, IsNotAtALinkToItsFile) {
  std::filesystem::create_symlink(path, folder / "link");
  EXPECT_FALSE(file.is_at((folder / "link").c_str()));
}

TEST_F(DescriptorTest, IsAtAPathInAnOpenFolder) {
  const Descriptor open_folder(open(folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  EXPECT_TRUE(file.is_at("file", open_folder.get()));
  EXPECT_FALSE(file.is_at("other", open_folder.get()));
}

TEST_F(DescriptorTest, HasALockUntilItIsClosed) {
  Descriptor owner = opened(path);
  EXPECT_FALSE(file.is_locked());
  EXPECT_TRUE(owner.try_lock());
  EXPECT_TRUE(file.is_locked());
  EXPECT_FALSE(file.try_lock());
  owner.close();
  EXPECT_FALSE(file.is_locked());
  EXPECT_TRUE(file.try_lock());
}

TEST_F(DescriptorTest, IsNotLockedByAsking) {
  EXPECT_FALSE(opened(path).is_locked());
  const Descriptor other = opened(path);
  EXPECT_FALSE(other.is_locked());
  EXPECT_TRUE(file.try_lock());
}

}  // namespace
