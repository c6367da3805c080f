#ifndef LIBKEL_DESCRIPTOR_H
#define LIBKEL_DESCRIPTOR_H

#include <fcntl.h>
#include <sys/types.h>

#include <string_view>
#include <utility>

namespace vqc {

/// What a new file permits, less what the user's umask takes.
inline constexpr mode_t kReadWriteAll = 0666;

/// An open file, which is closed when this goes.
class Descriptor {
 public:
  /// Of no file.
  Descriptor() = default;
  /// A negative number, as open() gives it on failure, is of no file.
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, kNone)) {}
  Descriptor& operator=(Descriptor&& other) noexcept;
  ~Descriptor() { close(); }

  explicit operator bool() const { return number_ >= 0; }
  int get() const { return number_; }

  /// Writes all of a text. False on failure; errno says why.
  bool write(std::string_view text) const;
  /// Whether the file is the one at a path, which begins at an open folder unless it is absolute. Links are not
  /// followed.
  bool is_at(const char* path, int folder = AT_FDCWD) const;

  // Locks of the whole file, which end when it is closed, or its process ends.

  /// Locks the file, and waits for who has it locked. Where the file system knows no locks, there is none.
  void lock() const;
  /// Locks the file unless somebody has it locked. Whether it did.
  bool try_lock() const;
  /// Whether somebody has the file locked. Nobody who asks is taken for that.
  bool is_locked() const;

  /// Closes the file, if there is one. False when what has been written is lost; errno says why.
  bool close();

 private:
  static constexpr int kNone = -1;

  int number_ = kNone;
};

}  // namespace vqc

#endif
