#ifndef HELP_VIEWER_PREFORMATTED_H
#define HELP_VIEWER_PREFORMATTED_H

// The text of a <pre>, whose lines and spaces are kept.

#include <cstddef>
#include <string>
#include <string_view>

namespace help {

/// Lays preformatted text out in text that is not: with other spaces, and tags where lines end. What ends before the
/// first line and after the last is left out.
class Preformatted {
 public:
  /// The next words, with `line_end` where lines end in them.
  std::string lay_out(std::string_view words, std::string_view line_end);

  /// The ends of lines before what comes next. A line that is empty gets a space, or the widget would leave it out.
  std::string end_lines(std::string_view line_end);

 private:
  void end_line();
  std::string write(char32_t character, std::string_view bytes);

  bool has_begun_ = false;
  std::size_t ends_ = 0;  // that are not written yet
  std::size_t column_ = 0;
};

}  // namespace help

#endif
