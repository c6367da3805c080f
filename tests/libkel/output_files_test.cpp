#include "libkel/output_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <filesystem>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/files.h"
#include "support/process.h"

using namespace vqc;

namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;
using Written = std::vector<bool>;

/// Makes the files of a test with permissions that do not depend on who runs it.
class WithUmask {
 public:
  explicit WithUmask(mode_t mask) : previous_(umask(mask)) {}
  WithUmask(const WithUmask&) = delete;
  WithUmask& operator=(const WithUmask&) = delete;
  ~WithUmask() { umask(previous_); }

 private:
  mode_t previous_;
};

class OutputFilesTest : public testing::Test {
 protected:
  static std::vector<bool> put(const std::vector<OutputFile>& files) { return put_in_place(files); }

  /// What is said when the files cannot be put in place; "" when they can.
  static std::string complaint(const std::vector<OutputFile>& files) {
    try {
      put_in_place(files);
    } catch (const std::system_error& error) {
      return error.what();
    }
    return "";
  }

  /// The names of all that is in the folder, sorted.
  Names names() const {
    Names found;
    for (const auto& entry : fs::directory_iterator(folder.path())) found.push_back(entry.path().filename());
    std::ranges::sort(found);
    return found;
  }

  /// A time long ago, which a file keeps only when nobody touches it.
  void make_old(const std::string& path) const {
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(1000));
  }
  static bool is_old(const std::string& path) {
    return fs::last_write_time(path) < fs::file_time_type::clock::now() - std::chrono::hours(999);
  }

  static mode_t mode_of(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? status.st_mode & ALLPERMS : 0;
  }
  static ino_t inode_of(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? status.st_ino : 0;
  }

  TemporaryFolder folder;
  const std::string a = folder / "a.c";
  const std::string b = folder / "b.c";
  const std::string c = folder / "c.c";
  WithUmask mask{022};
};

TEST_F(OutputFilesTest, AreMade) {
  EXPECT_EQ((Written{true, true}), put({{a, "one"}, {b, ""}}));
  EXPECT_EQ("one", read_file(a));
  EXPECT_EQ("", read_file(b));
  EXPECT_EQ((Names{"a.c", "b.c"}), names());
}

TEST_F(OutputFilesTest, MayBeLargeAndOfAnyBytes) {
  std::string text(3'000'000, '\0');
  for (std::size_t i = 0; i < text.size(); ++i) text[i] = static_cast<char>(i * i / 7);
  put({{a, text}});
  EXPECT_TRUE(text == read_file(a));
}

TEST_F(OutputFilesTest, MayHaveTheLongestNamesThereAre) {
  const std::string one(255, 'x');
  const std::string other = std::string(254, 'x') + "y";
  EXPECT_EQ((Written{true, true}), put({{folder / one, "1"}, {folder / other, "2"}}));
  EXPECT_EQ((Written{false, true}), put({{folder / one, "1"}, {folder / other, "3"}}));
  EXPECT_EQ("3", read_file(folder / other));
  EXPECT_EQ((Names{one, other}), names());
  EXPECT_EQ(folder / (one + "x") + ": File name too long",
            complaint({{folder / (one + "x"), "4"}, {folder / one, "4"}}));
  EXPECT_EQ("1", read_file(folder / one));
}

TEST_F(OutputFilesTest, ReplaceWhatIsThere) {
  write_file(a, "something longer");
  EXPECT_EQ(Written{true}, put({{a, "short"}}));
  EXPECT_EQ("short", read_file(a));
  EXPECT_EQ(Names{"a.c"}, names());
}

TEST_F(OutputFilesTest, AreNotTouchedWhereNothingChanges) {
  write_file(a, "same");
  write_file(b, "old");
  make_old(a);
  make_old(b);
  const ino_t inode = inode_of(a);
  EXPECT_EQ((Written{false, true}), put({{a, "same"}, {b, "new"}}));
  EXPECT_TRUE(is_old(a));
  EXPECT_EQ(inode, inode_of(a));
  EXPECT_FALSE(is_old(b));
}

TEST_F(OutputFilesTest, LeaveTheFolderAloneWhereNothingChanges) {
  put({{a, "1"}, {b, "2"}});
  make_old(folder.path());
  EXPECT_EQ((Written{false, false}), put({{a, "1"}, {b, "2"}}));
  EXPECT_TRUE(is_old(folder.path()));
}

TEST_F(OutputFilesTest, AreReplacedAsAWholeForWhoHasThemOpen) {
  write_file(a, "old text");
  std::ifstream reader(a);
  put({{a, "new text"}});
  EXPECT_EQ("old text", std::string(std::istreambuf_iterator<char>(reader), {}));
}

TEST_F(OutputFilesTest, KeepPermissions) {
  for (const mode_t mode : {0600U, 0640U, 0664U, 0755U, 0200U}) {
    write_file(a, "old");
    chmod(a.c_str(), mode);
    put({{a, "new" + std::to_string(mode)}});
    EXPECT_EQ(mode, mode_of(a));
    unlink(a.c_str());
  }
}

TEST_F(OutputFilesTest, FollowTheUmaskWhenTheyAreNew) {
  put({{a, "1"}});
  EXPECT_EQ(0644U, mode_of(a));
  const WithUmask other(077);
  put({{b, "1"}});
  EXPECT_EQ(0600U, mode_of(b));
}

/// A group that a user may give to files, if possible not the one that new files have.
gid_t other_group_of_user() {
  gid_t groups[NGROUPS_MAX];
  const int count = getgroups(NGROUPS_MAX, groups);
  const gid_t* found = std::find_if(groups, groups + std::max(count, 0), [](gid_t each) { return each != getegid(); });
  return found == groups + std::max(count, 0) ? getegid() : *found;
}

TEST_F(OutputFilesTest, KeepOwnerAndGroup) {
  const bool root = geteuid() == 0;  // nobody else can give files away
  const uid_t owner = root ? 1234 : geteuid();
  const gid_t group = root ? 5678 : other_group_of_user();
  write_file(a, "old");
  ASSERT_EQ(0, chown(a.c_str(), owner, group));
  put({{a, "new"}});
  struct stat status {};
  ASSERT_EQ(0, stat(a.c_str(), &status));
  EXPECT_EQ(owner, status.st_uid);
  EXPECT_EQ(group, status.st_gid);
}

TEST_F(OutputFilesTest, LeaveSymbolicLinks) {
  fs::create_directory(folder / "sub");
  write_file(folder / "sub/real.c", "old");
  fs::create_symlink("sub/link", a);
  fs::create_symlink("real.c", folder / "sub/link");
  EXPECT_EQ(Written{true}, put({{a, "new"}}));
  EXPECT_EQ("new", read_file(folder / "sub/real.c"));
  EXPECT_EQ("sub/link", fs::read_symlink(a));
  EXPECT_EQ("real.c", fs::read_symlink(folder / "sub/link"));
  EXPECT_EQ((Names{"a.c", "sub"}), names());
}

TEST_F(OutputFilesTest, AreMadeWhereALinkLeads) {
  fs::create_directory(folder / "sub");
  fs::create_symlink(folder / "sub/new.c", a);
  put({{a, "text"}});
  EXPECT_EQ("text", read_file(folder / "sub/new.c"));
  EXPECT_TRUE(fs::is_symlink(a));
}

TEST_F(OutputFilesTest, MayLieBehindALinkToAFolder) {
  fs::create_directory(folder / "sub");
  fs::create_directory_symlink("sub", folder / "link");
  put({{folder / "link/f.c", "text"}});
  EXPECT_EQ("text", read_file(folder / "sub/f.c"));
}

TEST_F(OutputFilesTest, TellOfACircleOfLinks) {
  fs::create_symlink("b.c", a);
  fs::create_symlink("a.c", b);
  EXPECT_EQ(a + ": Too many levels of symbolic links", complaint({{a, "text"}}));
}

TEST_F(OutputFilesTest, WriteADeviceAndLeaveIt) {
  EXPECT_EQ(Written{true}, put({{"/dev/null", "text"}}));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_FALSE(fs::exists("/dev/.null.vqc-new"));
}

TEST_F(OutputFilesTest, WriteAPipeAndLeaveIt) {
  ASSERT_EQ(0, mkfifo(a.c_str(), 0600));
  std::string got;
  std::thread reader([&] { got = read_file(a); });
  EXPECT_EQ((Written{true, true}), put({{a, "through the pipe"}, {b, "text"}}));
  reader.join();
  EXPECT_EQ("through the pipe", got);
  EXPECT_TRUE(fs::is_fifo(a));
  EXPECT_EQ("text", read_file(b));
}

TEST_F(OutputFilesTest, GoToTheEndOfAFileThatIsOpenElsewhere) {
  const int file = open(a.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
  ASSERT_EQ(4, write(file, "old ", 4));
  const ino_t inode = inode_of(a);
  put({{"/dev/fd/" + std::to_string(file), "new"}});
  close(file);
  EXPECT_EQ("old new", read_file(a));
  EXPECT_EQ(inode, inode_of(a));
}

TEST_F(OutputFilesTest, TellOfAPipeThatNobodyReads) {
  int ends[2];
  ASSERT_EQ(0, pipe(ends));
  close(ends[0]);
  const std::string path = "/dev/fd/" + std::to_string(ends[1]);
  EXPECT_EQ(path + ": Broken pipe", complaint({{path, "text"}, {a, "text"}}));
  close(ends[1]);
  EXPECT_EQ(Names{}, names());
}

TEST_F(OutputFilesTest, AreLeftAloneWhenADeviceIsFull) {
  write_file(a, "old");
  EXPECT_EQ("/dev/full: No space left on device", complaint({{a, "new"}, {"/dev/full", "text"}, {b, "new"}}));
  EXPECT_EQ("old", read_file(a));
  EXPECT_EQ(Names{"a.c"}, names());
}

TEST_F(OutputFilesTest, AreLeftAloneWhenOneFindsNoRoom) {
  write_file(a, "old a");
  write_file(b, "old b");
  {
    const RoomForFiles little(5000);
    EXPECT_EQ(b + ": File too large", complaint({{a, "new a"}, {b, std::string(10000, 'b')}}));
  }
  EXPECT_EQ("old a", read_file(a));
  EXPECT_EQ("old b", read_file(b));
  EXPECT_EQ((Names{"a.c", "b.c"}), names());
}

TEST_F(OutputFilesTest, AreLeftAloneWhenOneHasNoFolder) {
  const std::string lost = folder / "missing/b.c";
  EXPECT_EQ(lost + ": No such file or directory", complaint({{a, "text"}, {lost, "text"}}));
  EXPECT_EQ(Names{}, names());
}

TEST_F(OutputFilesTest, CannotBeFolders) {
  EXPECT_EQ(folder.path() + ": Is a directory", complaint({{a, "text"}, {folder.path(), "text"}}));
  EXPECT_EQ(Names{}, names());
  EXPECT_EQ(folder / "missing/: No such file or directory", complaint({{folder / "missing/", "text"}}));
  write_file(a, "text");
  EXPECT_EQ(a + "/: Not a directory", complaint({{a + "/", "text"}}));
}

TEST_F(OutputFilesTest, CannotBeWrittenInAReadOnlyFolder) {
  const AsSomebody somebody(folder.path());
  write_file(a, "old");
  write_file(b, "same");
  chmod(folder.path().c_str(), 0555);
  EXPECT_EQ(a + ": Permission denied", complaint({{a, "new"}, {b, "same"}}));
  EXPECT_EQ(c + ": Permission denied", complaint({{c, "new"}}));
  EXPECT_EQ("old", read_file(a));
  EXPECT_EQ((Names{"a.c", "b.c"}), names());
  chmod(folder.path().c_str(), 0755);
}

TEST_F(OutputFilesTest, AreFineInAReadOnlyFolderWhereNothingChanges) {
  const AsSomebody somebody(folder.path());
  fs::create_directory(folder / "fixed");
  write_file(folder / "fixed/a.c", "same");
  chmod((folder / "fixed").c_str(), 0555);
  EXPECT_EQ((Written{false, true}), put({{folder / "fixed/a.c", "same"}, {b, "new"}}));
  chmod((folder / "fixed").c_str(), 0755);
  EXPECT_EQ("new", read_file(b));
}

TEST_F(OutputFilesTest, LeaveAFileThatIsProtected) {
  const AsSomebody somebody(folder.path());
  write_file(a, "old");
  chmod(a.c_str(), 0444);
  EXPECT_EQ(a + ": Permission denied", complaint({{b, "new"}, {a, "new"}}));
  EXPECT_EQ("old", read_file(a));
  EXPECT_EQ(Names{"a.c"}, names());
}

TEST_F(OutputFilesTest, TellWhetherTheyWouldChange) {
  write_file(a, "text");
  EXPECT_FALSE(would_change({a, "text"}));
  EXPECT_TRUE(would_change({a, "tex"}));
  EXPECT_TRUE(would_change({b, ""}));
  EXPECT_TRUE(would_change({"/dev/null", ""}));
  EXPECT_THROW(would_change({folder / "missing/a.c", ""}), std::system_error);
}

TEST_F(OutputFilesTest, AreTheSameByWhateverPath) {
  write_file(a, "text");
  fs::create_symlink("a.c", b);
  fs::create_hard_link(a, c);
  fs::create_directory_symlink(".", folder / "here");
  EXPECT_TRUE(same_file(a, a));
  EXPECT_TRUE(same_file(a, b));
  EXPECT_TRUE(same_file(a, c));
  EXPECT_TRUE(same_file(a, folder / "here/./a.c"));
  EXPECT_TRUE(same_file(folder / "none.c", folder / "here/none.c"));
  EXPECT_TRUE(same_file("/dev/null", "/dev/./null"));
  EXPECT_TRUE(same_file("/dev/stdin", "/dev/fd/0"));
  EXPECT_FALSE(same_file(a, folder / "none.c"));
  EXPECT_FALSE(same_file(folder / "none.c", folder / "nothing.c"));
}

TEST_F(OutputFilesTest, MayBothGoToOnePipe) {
  int ends[2];
  ASSERT_EQ(0, pipe(ends));
  const int other_end = dup(ends[1]);
  EXPECT_FALSE(same_file("/dev/fd/" + std::to_string(ends[1]), "/dev/fd/" + std::to_string(other_end)));
  for (const int end : {ends[0], ends[1], other_end}) close(end);
}

TEST_F(OutputFilesTest, TakeAwayWhatAKilledRunHasLeft) {
  write_file(a, "same");
  write_file(folder / ".a.c.vqc-new", "half of");
  write_file(folder / ".b.c.vqc-new", "half of");
  chmod((folder / ".b.c.vqc-new").c_str(), 0666);
  EXPECT_EQ((Written{false, true}), put({{a, "same"}, {b, "new"}}));
  EXPECT_EQ((Names{"a.c", "b.c"}), names());
  EXPECT_EQ("new", read_file(b));
  EXPECT_EQ(0644U, mode_of(b));
}

TEST_F(OutputFilesTest, WaitForARunThatMakesThem) {
  const std::string temporary = folder / ".a.c.vqc-new";
  const int other_run = open(temporary.c_str(), O_WRONLY | O_CREAT, 0600);
  ASSERT_EQ(0, flock(other_run, LOCK_EX));
  std::thread waiting([this] { put({{a, "ours"}}); });
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  EXPECT_FALSE(fs::exists(a));
  ASSERT_EQ(6, write(other_run, "theirs", 6));
  fs::rename(temporary, a);
  EXPECT_EQ("theirs", read_file(a));
  close(other_run);
  waiting.join();
  EXPECT_EQ("ours", read_file(a));
  EXPECT_EQ(Names{"a.c"}, names());
}

TEST_F(OutputFilesTest, OfTwoRunsAtOnceAreThoseOfOne) {
  for (int round = 0; round < 20; ++round) {
    std::vector<pid_t> runs;
    for (const std::string text : {"x", "y", "z"}) {
      // Each names them in an order of its own.
      const std::vector<OutputFile> files = {{a, text}, {b, text}, {c, text}};
      runs.push_back(in_process([&] {
        if (text != "x") {
          put({files[2], files[0], files[1]});
        } else {
          put(files);
        }
      }));
    }
    for (const pid_t run : runs) {
      int status = -1;
      waitpid(run, &status, 0);
      EXPECT_EQ(0, status);
    }
    EXPECT_EQ(read_file(a), read_file(b));
    EXPECT_EQ(read_file(a), read_file(c));
    ASSERT_EQ((Names{"a.c", "b.c", "c.c"}), names());
  }
}

TEST_F(OutputFilesTest, AreWholeWheneverARunIsKilledAndTheNextCompletesThem) {
  const std::vector<OutputFile> files = {{a, "new a"}, {b, "new b"}, {c, "same"}};
  int half_done = 0;
  for (int n = 1;; ++n) {
    write_file(a, "old a");
    fs::remove(b);
    write_file(c, "same");
    const bool killed = killed_at_stop(n, [&] { put(files); });
    const std::string text_a = read_file(a);
    EXPECT_TRUE(text_a == "old a" || text_a == "new a") << text_a;
    EXPECT_TRUE(!fs::exists(b) || read_file(b) == "new b") << read_file(b);
    EXPECT_EQ("same", read_file(c));
    if ((text_a == "new a") != fs::exists(b)) ++half_done;
    put(files);
    EXPECT_EQ("new a", read_file(a));
    EXPECT_EQ("new b", read_file(b));
    ASSERT_EQ((Names{"a.c", "b.c", "c.c"}), names()) << "killed at stop " << n;
    if (!killed) break;
    ASSERT_GT(10000, n) << "does it ever end?";
  }
  EXPECT_LT(0, half_done) << "none was killed between one file and the next";
}

}  // namespace
