#ifndef LIBKEL_DESCRIPTOR_H
#define LIBKEL_DESCRIPTOR_H

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
  /// Closes the file, if there is one. False when what has been written is lost; errno says why.
  bool close();

 private:
  static constexpr int kNone = -1;

  int number_ = kNone;
};

}  // namespace vqc

#endif
