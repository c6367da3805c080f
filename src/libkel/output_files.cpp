// Files that are put in place all together, or not at all.
//
// The temporary file beside a place is also the lock of that place: who has locked it may rename it, or remove it, and
// nobody else does. A process that ends gives up its locks, so that a temporary file without a lock is what a killed
// run has left. Its name follows from that of the place; nobody has to search for it.

#include "libkel/output_files.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "libkel/descriptor.h"
#include "libkel/source.h"

namespace vqc {

namespace {

namespace fs = std::filesystem;

using Status = struct stat;

[[noreturn]] void fail(const std::string& path, int error) {
  throw std::system_error(error, std::generic_category(), path);
}

/// What a path leads to, links followed. None where there is nothing to see; errno says why.
std::optional<Status> status_of(const fs::path& path) {
  Status status{};
  if (stat(path.c_str(), &status) != 0) return {};
  return status;
}

bool same(const Status& a, const Status& b) { return a.st_dev == b.st_dev && a.st_ino == b.st_ino; }

fs::path folder_of(const fs::path& path) { return path.has_parent_path() ? path.parent_path() : "."; }

bool is_link(const fs::path& path) {
  Status status{};
  return lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

/// Whether a link leads to a file that is open somewhere, as /dev/stdout does. It need not have a name at all.
bool leads_to_open_file(const fs::path& link) {
  struct statfs system {};
  return statfs(folder_of(link).c_str(), &system) == 0 && system.f_type == PROC_SUPER_MAGIC;
}

/// Where an output goes.
struct Target {
  fs::path path;  // without links; the same for all who mean this place
  bool is_file;   // or may become one; all else is written where it is
};

/// Whether what is at a path can be replaced by a file.
bool replaceable(const fs::path& path, const std::string& name) {
  const auto status = status_of(path);
  if (!status && errno != ENOENT) fail(name, errno);
  if (status && S_ISDIR(status->st_mode)) fail(name, EISDIR);
  return !status || S_ISREG(status->st_mode);
}

/// `name` is the path as the user says it.
Target target_of(const std::string& name) {
  constexpr int kMostLinks = 40;  // as the system follows
  if (name.empty()) fail(name, ENOENT);
  fs::path path = name;
  for (int links = 0; is_link(path) && !leads_to_open_file(path); ++links) {
    if (links == kMostLinks) fail(name, ELOOP);
    path = folder_of(path) / fs::read_symlink(path);
  }
  std::error_code error;
  const fs::path folder = fs::canonical(folder_of(path), error);
  if (error) fail(name, error.value());
  return {folder / path.filename(), !is_link(path) && replaceable(path, name)};
}

/// The temporary file beside a place. Every run gives it the same name, which is no longer than names may be.
fs::path temporary_beside(const fs::path& place) {
  constexpr std::size_t kLong = 200;
  const std::string name = place.filename();
  const std::string known = name.size() > kLong ? std::to_string(std::hash<std::string>{}(name)) : name;
  return place.parent_path() / ("." + known + ".vqc-new");
}

bool is_empty(const Descriptor& file) {
  Status status{};
  return fstat(file.get(), &status) == 0 && status.st_size == 0;
}

/// A new temporary file, locked. None when it cannot be made; errno says why.
Descriptor locked_temporary(const fs::path& path) {
  for (;;) {
    Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, kReadWriteAll));
    if (!file) return file;
    file.lock();
    if (!file.is_at(path.c_str())) continue;  // who had the lock has put it in place
    if (is_empty(file)) return file;
    unlink(path.c_str());  // a killed run has left it
  }
}

/// Gives a file the permissions of another, and its owner and group as far as we may.
bool take_over(const Descriptor& file, const Status& other) {
  constexpr auto kAsItIs = static_cast<uid_t>(-1);
  const bool owned = fchown(file.get(), other.st_uid, other.st_gid) == 0 ||
                     fchown(file.get(), kAsItIs, other.st_gid) == 0 || errno == EPERM;
  return owned && fchmod(file.get(), other.st_mode & ACCESSPERMS) == 0;
}

/// What writes into a pipe that nobody reads fails, as any other write, while there is one of these.
class IgnorePipeSignal {
 public:
  IgnorePipeSignal() : previous_(std::signal(SIGPIPE, SIG_IGN)) {}
  IgnorePipeSignal(const IgnorePipeSignal&) = delete;
  IgnorePipeSignal& operator=(const IgnorePipeSignal&) = delete;
  ~IgnorePipeSignal() { std::signal(SIGPIPE, previous_); }

 private:
  void (*previous_)(int);
};

/// An output on its way to its place.
class Output {
 public:
  explicit Output(const OutputFile& file)
      : file_(file), target_(target_of(file.path)), temporary_path_(temporary_beside(target_.path)) {}
  Output(Output&&) = default;
  Output& operator=(Output&&) = delete;
  ~Output() {
    if (temporary_ && !written_) unlink(temporary_path_.c_str());
  }

  const fs::path& path() const { return target_.path; }
  bool is_file() const { return target_.is_file; }
  bool would_change() const { return !target_.is_file || differs(); }
  /// Whether a temporary file is there: of a run that goes on, or of a killed one.
  bool is_begun() const { return fs::exists(fs::symlink_status(temporary_path_)); }
  bool written() const { return written_; }

  /// Keeps other runs from this place. Where it cannot, nothing can be written either.
  void lock();
  /// Writes the temporary file, if it is needed.
  void write_beside();
  /// Puts it in place, if there is one. The lock stays.
  void rename();
  /// Writes what is no file.
  void write_through();

 private:
  bool differs() const;

  const OutputFile& file_;
  Target target_;
  fs::path temporary_path_;
  Descriptor temporary_;
  int lock_error_ = 0;
  bool complete_ = false;
  bool written_ = false;
};

bool Output::differs() const {
  const auto old = Source::read(target_.path.c_str());
  return !old || old->text() != file_.text;
}

void Output::lock() {
  temporary_ = locked_temporary(temporary_path_);
  if (!temporary_) lock_error_ = errno;
}

void Output::write_beside() {
  if (!differs()) return;
  if (!temporary_) fail(file_.path, lock_error_);
  const auto old = status_of(target_.path);
  if (old && faccessat(AT_FDCWD, target_.path.c_str(), W_OK, AT_EACCESS) != 0) fail(file_.path, errno);
  complete_ = temporary_.write(file_.text) && (!old || take_over(temporary_, *old)) && fsync(temporary_.get()) == 0;
  if (!complete_) fail(file_.path, errno);
}

void Output::rename() {
  if (!complete_) return;
  if (::rename(temporary_path_.c_str(), target_.path.c_str()) != 0) fail(file_.path, errno);
  written_ = true;
}

void Output::write_through() {
  const IgnorePipeSignal ignore_pipe_signal;
  Descriptor out(open(target_.path.c_str(), O_WRONLY | O_APPEND | O_NOCTTY | O_CLOEXEC));
  if (!out || !out.write(file_.text) || !out.close()) fail(file_.path, errno);
  written_ = true;
}

/// Those of the outputs that are files, in an order that is the same for all runs: so none waits for one that waits for
/// it.
std::vector<Output*> files_in_order(std::vector<Output>& outputs) {
  std::vector<Output*> files;
  files.reserve(outputs.size());
  for (Output& output : outputs) {
    if (output.is_file()) files.push_back(&output);
  }
  std::ranges::sort(files, {}, [](const Output* file) -> const fs::path& { return file->path(); });
  return files;
}

}  // namespace

std::vector<bool> put_in_place(std::span<const OutputFile> files) {
  std::vector<Output> outputs(files.begin(), files.end());
  std::vector<Output*> replaced = files_in_order(outputs);
  const auto has_work = [](const Output* output) { return output->would_change() || output->is_begun(); };
  if (std::ranges::none_of(replaced, has_work)) replaced.clear();
  for (Output* output : replaced) output->lock();
  for (Output* output : replaced) output->write_beside();
  for (Output& output : outputs) {
    if (!output.is_file()) output.write_through();
  }
  for (Output* output : replaced) output->rename();
  std::vector<bool> written;
  std::ranges::transform(outputs, std::back_inserter(written), &Output::written);
  return written;
}

bool would_change(const OutputFile& file) { return Output(file).would_change(); }

bool same_file(const std::string& a, const std::string& b) {
  const Target target_a = target_of(a);
  const Target target_b = target_of(b);
  if (target_a.path == target_b.path) return true;
  const auto status_a = status_of(target_a.path);
  const auto status_b = status_of(target_b.path);
  return status_a && status_b && S_ISREG(status_a->st_mode) && same(*status_a, *status_b);
}

}  // namespace vqc
