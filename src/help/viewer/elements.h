#ifndef HELP_VIEWER_ELEMENTS_H
#define HELP_VIEWER_ELEMENTS_H

// Which elements of a page are shown.

#include <array>
#include <string_view>

namespace help {

/// How an element of a page stands to those around it.
enum class Stands {
  alone,    // it has no content
  in_line,  // it marks words
  as_line,  // it holds words, and ends before anything larger
  as_box,   // it holds words and lines
  as_grid   // it holds nothing but the elements that are made for it
};

struct Element {
  std::string_view name;
  Stands stands;
  std::string_view parents = {};  // the elements that it may stand in, each in blanks; everywhere where there are none
  std::string_view attributes = {};  // those that are kept, each in blanks
};

/// The elements that are shown. Of others, only what they contain is.
inline constexpr std::array elements = {
    Element{"a", Stands::in_line},
    Element{"address", Stands::as_line},
    Element{"b", Stands::in_line},
    Element{"big", Stands::in_line},
    Element{"blockquote", Stands::as_box},
    Element{"br", Stands::alone},
    Element{"caption", Stands::as_line, " table "},
    Element{"center", Stands::as_box},
    Element{"cite", Stands::in_line},
    Element{"code", Stands::in_line},
    Element{"dd", Stands::as_box, " dl "},
    Element{"dfn", Stands::in_line},
    Element{"div", Stands::as_box, {}, " align "},
    Element{"dl", Stands::as_box},
    Element{"dt", Stands::as_line, " dl "},
    Element{"em", Stands::in_line},
    Element{"font", Stands::in_line, {}, " color size "},
    Element{"h1", Stands::as_line, {}, " align "},
    Element{"h2", Stands::as_line, {}, " align "},
    Element{"h3", Stands::as_line, {}, " align "},
    Element{"h4", Stands::as_line, {}, " align "},
    Element{"h5", Stands::as_line, {}, " align "},
    Element{"h6", Stands::as_line, {}, " align "},
    Element{"hr", Stands::alone},
    Element{"i", Stands::in_line},
    Element{"kbd", Stands::in_line},
    Element{"li", Stands::as_box, " ol ul "},
    Element{"ol", Stands::as_box},
    Element{"p", Stands::as_line, {}, " align "},
    Element{"pre", Stands::as_line},
    Element{"samp", Stands::in_line},
    Element{"small", Stands::in_line},
    Element{"strike", Stands::in_line},
    Element{"strong", Stands::in_line},
    Element{"sub", Stands::in_line},
    Element{"sup", Stands::in_line},
    Element{"table", Stands::as_grid, {}, " border cellpadding cellspacing "},
    Element{"td", Stands::as_box, " tr ", " align colspan rowspan valign "},
    Element{"th", Stands::as_box, " tr ", " align colspan rowspan valign "},
    Element{"tr", Stands::as_grid, " table "},
    Element{"tt", Stands::in_line},
    Element{"u", Stands::in_line},
    Element{"ul", Stands::as_box},
    Element{"var", Stands::in_line},
};

/// The element of that name; null when it is none of these.
inline const Element* element_named(std::string_view name) {
  for (const Element& element : elements) {
    if (element.name == name) return &element;
  }
  return nullptr;
}

/// The element that what stands in a list by itself is put into; null when the element is no list.
inline const Element* item_of(const Element& list) {
  if (list.name == "dl") return element_named("dd");
  return list.name == "ol" || list.name == "ul" ? element_named("li") : nullptr;
}

/// Whether one of the words, each in blanks, is `word`.
inline bool is_among(std::string_view words, std::string_view word) {
  if (word.empty()) return false;
  for (std::size_t at = words.find(word); at != std::string_view::npos; at = words.find(word, at + 1)) {
    if (words[at - 1] == ' ' && words[at + word.size()] == ' ') return true;
  }
  return false;
}

}  // namespace help

#endif
