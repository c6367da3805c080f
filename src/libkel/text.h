#ifndef LIBKEL_TEXT_H
#define LIBKEL_TEXT_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

/// An owned string, or null. Null and empty are different things.
///
/// Equal strings share one copy of their characters, which lives as long as any Text holds it: a document names the
/// same pages, popups and resources over and over. So copying is cheap, comparing compares addresses, a Text may be
/// assigned its own characters, and hashing hashes addresses too.
class Text {
 public:
  Text() = default;
  /// A copy of `s`; null gives null.
  Text(const char* s) : shared_(s ? share(s) : nullptr) {}
  /// A copy of `s` up to its first NUL.
  explicit Text(std::string_view s) : shared_(share(s)) {}
  Text(const Text& other) : shared_(other.shared_) {
    if (shared_) ++shared_->references;
  }
  Text(Text&& other) noexcept : shared_(std::exchange(other.shared_, nullptr)) {}
  Text& operator=(Text other) noexcept {
    std::swap(shared_, other.shared_);
    return *this;
  }
  ~Text() {
    if (shared_ && --shared_->references == 0) release(shared_);
  }

  /// The characters, or null. They are the Text's own.
  const char* c_str() const { return shared_ ? shared_->characters : nullptr; }
  operator const char*() const { return c_str(); }
  /// Null counts as empty.
  bool empty() const { return !shared_ || shared_->characters[0] == '\0'; }
  std::string_view view() const { return shared_ ? shared_->view() : std::string_view(); }
  /// Whether there is a per-cent sign in it, which printing treats specially.
  bool has_percent() const { return shared_ && shared_->has_percent; }
  /// Spread over all bits, as hash tables like it. Equal texts are one in memory: its address tells them from others.
  std::size_t hash() const { return reinterpret_cast<std::uintptr_t>(shared_) * std::size_t{0x9E3779B97F4A7C15} >> 7; }

  friend bool operator==(const Text& a, const Text& b) { return a.shared_ == b.shared_; }
  friend bool operator==(const Text& a, const char* b) {
    return a.shared_ && b ? std::strcmp(a.shared_->characters, b) == 0 : !a.shared_ && !b;
  }

 private:
  struct Shared {
    static std::size_t memory_for(std::size_t size);
    std::string_view view() const { return {characters, size}; }

    std::uint32_t references;
    std::uint32_t size : 31;
    std::uint32_t has_percent : 1;
    char characters[1];  // as many as the text has, and a NUL
  };
  class Table;

  static Table& table();
  static Shared* share(std::string_view s);
  static Shared* make(std::string_view s);
  static void release(Shared* shared);

  Shared* shared_ = nullptr;
};

/// `text`, or null where it is empty: what an optional value given as '' means.
inline Text non_empty(const Text& text) { return text.empty() ? Text() : text; }

#endif
