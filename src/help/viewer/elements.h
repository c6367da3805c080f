#ifndef HELP_VIEWER_ELEMENTS_H
#define HELP_VIEWER_ELEMENTS_H

// Which elements of a page are shown, and how they are written for the HTML widget.

#include <algorithm>
#include <array>
#include <string_view>

namespace help {

/// How an element of a page stands to those around it.
enum class Stands {
  hidden,    // what it contains is not shown
  replaced,  // words are shown for it: the value of its attribute
  alone,     // it has no content
  in_line,   // it marks words
  as_line,   // it holds words, and ends before anything larger
  as_box,    // it holds words and lines
  as_grid    // it holds nothing but the elements that are made for it
};

using Names = std::array<std::string_view, 4>;

struct Element {
  std::string_view name;
  Stands stands;
  Names attributes = {};          // those that are kept
  Names parents = {};             // the elements that it may stand in; everywhere where there are none
  std::string_view item = {};     // the element that what stands in it by itself is put into
  std::string_view filling = {};  // what it contains instead of nothing, for the widget does not stand it empty
  std::string_view begin = {};    // what is written instead of its tags
  std::string_view end = {};
};

/// The elements that are known; of others, only what they contain is shown. Each line of preformatted text is a
/// division, for the widget sets those of <pre> so close that they run into each other. An empty paragraph keeps a rule
/// away from a list.
inline constexpr auto elements = [] {
  using enum Stands;
  constexpr Names of_table{"border", "cellpadding", "cellspacing"};
  constexpr Names of_cell{"align", "colspan", "rowspan", "valign"};
  // clang-format off
  return std::array{
      //      name           stands    attributes         parents       item  filling, begin, end
      Element{"a",           in_line,  {"name", "href"}},
      Element{"address",     as_line},
      Element{"b",           in_line},
      Element{"big",         in_line},
      Element{"blockquote",  as_box},
      Element{"br",          alone},
      Element{"caption",     as_line,  {},                {"table"}},
      Element{"center",      as_box},
      Element{"cite",        in_line},
      Element{"code",        in_line},
      Element{"dd",          as_box,   {},                {"dl"}},
      Element{"dfn",         in_line},
      Element{"div",         as_box,   {"align"}},
      Element{"dl",          as_box,   {},                {},           "dd"},
      Element{"dt",          as_line,  {},                {"dl"}},
      Element{"em",          in_line},
      Element{"font",        in_line,  {"color", "size"}},
      Element{"h1",          as_line,  {"align"}},
      Element{"h2",          as_line,  {"align"}},
      Element{"h3",          as_line,  {"align"}},
      Element{"h4",          as_line,  {"align"}},
      Element{"h5",          as_line,  {"align"}},
      Element{"h6",          as_line,  {"align"}},
      Element{"hr",          alone,    {}, {}, {}, {}, "<p></p><hr>"},
      Element{"i",           in_line},
      Element{"img",         replaced, {"alt"}},
      Element{"kbd",         in_line},
      Element{"li",          as_box,   {},                {"ol", "ul"}},
      Element{"ol",          as_box,   {},                {},           "li"},
      Element{"p",           as_line,  {"align"}},
      Element{"pre",         as_line,  {}, {}, {}, {}, "<p></p><div><code>", "</code></div><p></p>"},
      Element{"samp",        in_line},
      Element{"script",      hidden},
      Element{"small",       in_line},
      Element{"strike",      in_line},
      Element{"strong",      in_line},
      Element{"style",       hidden},
      Element{"sub",         in_line},
      Element{"sup",         in_line},
      Element{"table",       as_grid,  of_table,          {},           {},   "<tr><td>\u2003</td></tr>"},
      Element{"td",          as_box,   of_cell,           {"tr"},       {},   "\u2003"},
      Element{"th",          as_box,   of_cell,           {"tr"},       {},   "\u2003"},
      Element{"title",       hidden},
      Element{"tr",          as_grid,  {},                {"table"},    {},   "<td>\u2003</td>"},
      Element{"tt",          in_line},
      Element{"u",           in_line},
      Element{"ul",          as_box,   {},                {},           "li"},
      Element{"var",         in_line},
  };
  // clang-format on
}();

inline bool is_among(const Names& names, std::string_view name) {
  return std::ranges::find(names, name) != names.end();
}

/// The element of that name; null when it is none of these.
inline const Element* find_element(std::string_view name) {
  const auto* found = std::ranges::find(elements, name, &Element::name);
  return found == elements.end() ? nullptr : found;
}

}  // namespace help

#endif
