#ifndef LIBKEL_SINK_H
#define LIBKEL_SINK_H

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "libkel/descriptor.h"

namespace vqc {

/// Where text goes. What is written may stay in a buffer until finish() is called. A failure is remembered; writing
/// goes on all the same.
class Sink {
 public:
  Sink();
  Sink(const Sink&) = delete;
  Sink& operator=(const Sink&) = delete;
  virtual ~Sink() = default;

  void write(std::string_view text) {
    if (text.size() > kSize - used_) return write_through(text);
    used_ += text.copy(buffer_.get() + used_, text.size());
  }

  /// Writes what the buffer holds, and ends the writing. False when anything could not be written; errno says why then.
  bool finish();

 protected:
  /// Takes text out of the buffer. What cannot be taken is lost; that gives false, and errno says why.
  virtual bool take(std::string_view text) = 0;
  /// Does what is left to do at the end of the writing. As take().
  virtual bool end() { return true; }

 private:
  void write_through(std::string_view text);
  void note(bool success);

  static constexpr std::size_t kSize = std::size_t{64} * 1024;

  std::unique_ptr<char[]> buffer_;
  std::size_t used_ = 0;
  int error_ = 0;  // the first errno
};

/// Something that writes a text into a sink, the same each time.
using WriteText = std::function<void(Sink& out)>;

/// A file that is written in place: what was in it goes first.
class FileSink : public Sink {
 public:
  /// Null when the file cannot be opened; errno says why.
  static std::unique_ptr<FileSink> open(const char* path);
  /// A file that is open and stays so.
  static std::unique_ptr<FileSink> to_descriptor(int descriptor);

 private:
  explicit FileSink(Descriptor file) : file_(std::move(file)) {}
  bool take(std::string_view text) override { return file_.write(text); }
  bool end() override { return file_.close(); }

  Descriptor file_;  // what is still in the buffer is lost without finish()
};

/// A text in memory.
class StringSink : public Sink {
 public:
  /// What has been written, whole after finish().
  const std::string& text() const& { return text_; }
  std::string text() && { return std::move(text_); }

 private:
  bool take(std::string_view text) override;

  std::string text_;
};

}  // namespace vqc

#endif
