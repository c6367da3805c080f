#ifndef LIBKEL_SOURCE_H
#define LIBKEL_SOURCE_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "libkel/large_memory.h"
#include "libkel/sink.h"

namespace vqc {

/// The bytes of a Source from `begin` up to `end`.
struct Range {
  std::size_t begin = 0;
  std::size_t end = 0;

  bool operator==(const Range&) const = default;
};

/// A place in a text as people count it: both numbers from 1. A column is one character; a byte that is no UTF-8 is one
/// column too.
struct Place {
  std::size_t line = 1;
  std::size_t column = 1;

  bool operator==(const Place&) const = default;
};

/// Bytes whose values are not set at first.
class Bytes {
 public:
  explicit Bytes(std::size_t size) : memory_(static_cast<char*>(large_memory()->allocate(size, 1)), GiveBack{size}) {}

  char* get() const { return memory_.get(); }

 private:
  struct GiveBack {
    std::size_t size;
    void operator()(char* memory) const { large_memory()->deallocate(memory, size, 1); }
  };
  std::unique_ptr<char, GiveBack> memory_;
};

/// A text, read whole, with its name and where its lines begin. Only a line feed ends a line. Asking for places is not
/// for two threads at once.
class Source {
 public:
  /// The file at `path`. Null when it cannot be read; errno says why.
  static std::shared_ptr<const Source> read(const char* path);
  /// The same of regular files alone: a device may have no end. Null for anything else.
  static std::shared_ptr<const Source> read_regular(const char* path);
  /// What an open file gives up to its end. It stays open.
  static std::shared_ptr<const Source> read(int descriptor, std::string name);
  /// A text that is in memory already.
  static std::shared_ptr<const Source> from_text(std::string_view text, std::string name = {});
  /// A text that is written, twice: how large it is has to be known, so that no more memory is taken than it needs.
  static std::shared_ptr<const Source> written_by(const WriteText& write);

  const std::string& name() const { return name_; }
  /// All of it. A NUL that does not count follows.
  std::string_view text() const { return {bytes_.get(), size_}; }
  /// The text in a range of it.
  std::string_view text(Range range) const { return text().substr(range.begin, range.end - range.begin); }

  /// Where the byte at `offset` stands; the end of the text is a place too.
  Place place(std::size_t offset) const;
  /// Where the line of that number begins; the end of the text when there is none.
  std::size_t offset_of_line(std::size_t number) const;
  /// The line of that number without its line feed; empty when there is none.
  std::string_view line(std::size_t number) const;

 private:
  Source(std::string name, Bytes bytes, std::size_t size);
  const std::vector<std::size_t>& line_starts() const;

  std::string name_;
  Bytes bytes_;
  std::size_t size_;
  /// A place whose column has been counted, and where it is.
  struct Counted {
    std::size_t offset = 0;
    Place place = {};
  };
  mutable Counted counted_;  // the last one: most are asked for in their order, and lines may be long
  mutable std::vector<std::size_t> line_starts_;  // found when first asked for: most texts have no fault to show
};

}  // namespace vqc

#endif
