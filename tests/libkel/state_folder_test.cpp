#include "libkel/state_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include <sys/stat.h>

#include "support/files.h"
#include "support/process.h"

using namespace vqc;

namespace {

/// Gives a variable of the environment a value, or none, for a while.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    set(value);
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { set(before_ ? before_->c_str() : nullptr); }

 private:
  void set(const char* value) const { value ? setenv(name_, value, 1) : unsetenv(name_); }

  const char* name_;
  std::optional<std::string> before_;
};

std::string state_folder_with(const char* state, const char* home) {
  const Variable state_variable("XDG_STATE_HOME", state);
  const Variable home_variable("HOME", home);
  return state_folder();
}

TEST(StateFolder, IsWhereTheUserWantsIt) { EXPECT_EQ("/state/vqconfig", state_folder_with("/state", "/me")); }

TEST(StateFolder, IsInTheHomeFolderByDefault) {
  EXPECT_EQ("/me/.local/state/vqconfig", state_folder_with(nullptr, "/me"));
}

TEST(StateFolder, IsNotWhereARelativePathLeads) {
  EXPECT_EQ("/me/.local/state/vqconfig", state_folder_with("state", "/me"));
  EXPECT_EQ("/me/.local/state/vqconfig", state_folder_with("", "/me"));
}

TEST(StateFolder, IsNoneForWhoHasNoHome) {
  EXPECT_EQ("", state_folder_with(nullptr, nullptr));
  EXPECT_EQ("", state_folder_with("state", "home"));
}

mode_t permissions_of(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(0, stat(path.c_str(), &status)) << path;
  return status.st_mode & ACCESSPERMS;
}

TEST(PrivateFolder, IsMadeForTheUserAlone) {
  const TemporaryFolder folder;
  EXPECT_EQ(std::error_code(), make_private_folder(folder / "a/b"));
  EXPECT_EQ(0700U, permissions_of(folder / "a"));
  EXPECT_EQ(0700U, permissions_of(folder / "a/b"));
}

TEST(PrivateFolder, IsLeftAsItIsIfItIsThere) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "a");
  chmod((folder / "a").c_str(), 0750);
  EXPECT_EQ(std::error_code(), make_private_folder(folder / "a"));
  EXPECT_EQ(0750U, permissions_of(folder / "a"));
}

TEST(PrivateFolder, CannotTakeThePlaceOfAFile) {
  const TemporaryFolder folder;
  folder.with("file", "");
  EXPECT_EQ(std::errc::not_a_directory, make_private_folder(folder / "file"));
  EXPECT_EQ(std::errc::not_a_directory, make_private_folder(folder / "file/a"));
}

TEST(PrivateFolder, IsNowhereWithoutAPath) { EXPECT_EQ(std::errc::no_such_file_or_directory, make_private_folder({})); }

TEST(PrivateFolder, CannotBeMadeInAReadOnlyFolder) {
  const TemporaryFolder folder;
  const AsSomebody somebody(folder.path());
  chmod(folder.path().c_str(), 0555);
  EXPECT_EQ(std::errc::permission_denied, make_private_folder(folder / "a/b"));
  chmod(folder.path().c_str(), 0755);
}

}  // namespace
