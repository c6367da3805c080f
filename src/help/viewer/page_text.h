#ifndef HELP_VIEWER_PAGE_TEXT_H
#define HELP_VIEWER_PAGE_TEXT_H

// The words of a page, and where they are found.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace help {

/// Where words stand among the characters of a page, from the first to after the last.
struct Span {
  std::size_t begin = 0;
  std::size_t end = 0;
};

/// A page as it is read: the characters without the tags. Words are found in it whatever their case, their white
/// space, and the tags between them; but not across lines, cells and the like.
class PageText {
 public:
  /// The anchor that marks what has been found.
  static constexpr const char* kMark = "found";

  /// Of a page as the HTML widget gets it.
  explicit PageText(std::string html);

  /// The first such words at `from` or after it, or else before it. Nothing when there are none.
  std::optional<Span> find(std::string_view words, std::size_t from) const;

  /// The page with an anchor named kMark around these characters; its links have that target.
  std::string mark(Span span) const;

 private:
  /// A character, the place in the page that it is read from, and the address of the link that it is in.
  struct Character {
    char32_t folded;
    std::size_t begin;
    std::size_t end;
    std::string link;  // "" for none
  };

  void add_text(std::string_view text, std::size_t begin, const std::string& link);
  void add_line_end(std::size_t at);
  bool stands_at(std::size_t at, const std::u32string& words) const;
  std::string mark_run(Span span, bool first) const;

  std::string html_;
  std::vector<Character> characters_;
};

}  // namespace help

#endif
