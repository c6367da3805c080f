#ifndef VQC_CMD_EDITORS_KIT_DIFF_TEXT_H
#define VQC_CMD_EDITORS_KIT_DIFF_TEXT_H

// A text that says what differs: it can be read and scrolled, and its lines have colours.

#include <Xm/Xm.h>

#include <string>
#include <string_view>
#include <vector>

namespace vqc::editors {

/// What a line says, which gives it its colour.
enum class Tint { plain, heading, removed, added };

struct TintedLine {
  Tint tint;
  std::string text;

  bool operator==(const TintedLine&) const = default;
};

using TintedLines = std::vector<TintedLine>;

/// A list of lines in a scrolled window. Its render table has to have the renditions diff_plain, diff_heading,
/// diff_removed and diff_added.
Widget create_diff_text(Widget parent, char* name, ArgList, Cardinal);

/// Shows these lines, and nothing else. Of very many, or of a very long one, it shows the beginning.
void show_lines(Widget diff_text, const TintedLines& lines);

/// The lines in which two texts differ, and those around them.
TintedLines changed_lines(std::string_view from, std::string_view to);

/// How many of the lines have a tint.
int count_lines(const TintedLines& lines, Tint tint);
/// How many lines have changed: one that has another in its place counts once.
int changed_count(const TintedLines& lines);

}  // namespace vqc::editors

#endif
