#ifndef LIBKEL_TEXT_H
#define LIBKEL_TEXT_H

#include <string>
#include <string_view>

namespace vqc {

/// A text that somebody else owns, or null. Null and empty are different things.
class Text {
 public:
  constexpr Text() = default;
  /// Null gives null.
  constexpr Text(const char* s) : view_(s ? std::string_view(s) : std::string_view()) {}
  /// A view of no characters anywhere gives null.
  constexpr explicit Text(std::string_view s) : view_(s) {}

  constexpr explicit operator bool() const { return view_.data() != nullptr; }
  /// Null counts as empty.
  constexpr bool empty() const { return view_.empty(); }
  constexpr std::string_view view() const { return view_; }

  friend constexpr bool operator==(Text a, Text b) {
    return bool{a} == bool{b} && a.view_.size() == b.view_.size() && (a.is_at(b) || a.view_ == b.view_);
  }

 private:
  /// Whether both are the same characters, and not only alike.
  constexpr bool is_at(Text other) const { return view_.data() == other.view_.data(); }

  std::string_view view_;
};

/// `text`, or null where it is empty: what an optional value given as '' means.
constexpr Text non_empty(Text text) { return text.empty() ? Text() : text; }

/// A copy of a text; empty for null.
inline std::string string_of(Text text) { return std::string(text.view()); }

}  // namespace vqc

#endif
