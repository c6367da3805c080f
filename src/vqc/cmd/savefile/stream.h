#ifndef VQC_CMD_SAVEFILE_STREAM_H
#define VQC_CMD_SAVEFILE_STREAM_H

#include <cstddef>
#include <memory>
#include <string_view>

/// An open file with a buffer. Closing happens at the latest when it is destroyed.
class Stream {
 public:
  /// Null when the file cannot be opened; errno says why. The mode is "r", or "w" to create or truncate.
  static std::unique_ptr<Stream> open(const char* path, const char* mode);
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;
  ~Stream();

  /// Writes `text`, which may stay in the buffer. False when what had to leave the buffer could not be written: that
  /// part is lost and errno says why.
  bool write(std::string_view text) {
    if (text.size() > kSize - used_) return write_through(text);
    used_ += text.copy(buffer_.get() + used_, text.size());
    return true;
  }

  /// The next part of the file, which stands until the next call; empty at its end or when it cannot be read. NULs
  /// follow it, so that who looks for the end of something need not look for that of the part as well.
  std::string_view read();

  /// Writes what the buffer holds and closes the file. False when either fails; true when it was closed already.
  bool close();

  static constexpr std::size_t kNulsBehind = 64;  // as many as are looked at in one go

 private:
  explicit Stream(int descriptor);
  bool write_through(std::string_view text);
  bool flush();
  bool write_all(std::string_view text) const;

  static constexpr std::size_t kSize = std::size_t{64} * 1024;

  int descriptor_;
  std::size_t used_ = 0;
  std::unique_ptr<char[]> buffer_;
};

#endif
