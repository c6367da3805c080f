// Reads a help page, and makes it ready for the HTML widget.

#include "help/viewer/page.h"

#include <algorithm>

#include "help/viewer/elements.h"
#include "help/viewer/entities.h"
#include "help/viewer/markup.h"
#include "libkel/utf8.h"

namespace help {

namespace {

constexpr std::size_t kDeepest = 60;  // elements in each other; the widget lays tables out by recursion

constexpr char32_t kNoBreakSpace = 0xA0;
constexpr char32_t kEmSpace = 0x2003;

bool is_blank(std::string_view text) { return text.find_first_not_of(" \t\r\n\f") == std::string_view::npos; }

/// Whether a value is a word or a small number: no other reaches the widget.
bool is_harmless(std::string_view value) {
  if (value.empty() || value.size() > 8) return false;
  const bool number = value.find_first_not_of("0123456789") == std::string_view::npos;
  return number ? value.size() <= 2
                : value.find_first_not_of("#+-0123456789ABCDEFabcdefghijklmnopqrstuvwxyz") == std::string_view::npos;
}

/// The tags that an element is written with. Each line of preformatted text is a division, for the widget sets those of
/// <pre> so close that they run into each other. An empty paragraph keeps a rule away from a list.
std::string beginning_of(std::string_view name, const std::string& attributes) {
  if (name == "pre") return "<p></p><div><code>";
  if (name == "hr") return "<p></p><hr>";
  return "<" + std::string(name) + attributes + ">";
}

std::string end_of(std::string_view name) {
  return name == "pre" ? "</code></div><p></p>" : "</" + std::string(name) + ">";
}

/// Lays preformatted text out in text that is not: with other spaces, and tags where lines end. What ends before the
/// first line and after the last is left out.
class Preformatted {
 public:
  std::string lay_out(std::string_view text, const std::string& end_of_line) {
    std::string result;
    while (!text.empty()) {
      const Decoded next = first_character(text);
      if (next.character == '\n') {
        end_line();
      } else if (next.character != '\r') {
        result += pending_ends(end_of_line) + written(next.character, text.substr(0, next.size));
      }
      text.remove_prefix(next.size);
    }
    return result;
  }

  /// The ends of lines before what comes next. A line that is empty gets a space, or the widget would leave it out.
  std::string pending_ends(const std::string& end_of_line) {
    std::string result;
    for (; ends_ > 0; --ends_) result += end_of_line + (ends_ > 1 ? spaces(1) : "");
    has_begun_ = true;
    return result;
  }

 private:
  static constexpr std::size_t kTab = 8;

  void end_line() {
    if (has_begun_) ++ends_;
    has_begun_ = true;
    column_ = 0;
  }

  std::string written(char32_t character, std::string_view bytes) {
    const bool is_tab = character == '\t';
    const std::size_t width = is_tab ? kTab - column_ % kTab : 1;
    column_ += width;
    return is_tab || character == ' ' ? spaces(width) : escaped(bytes);
  }

  static std::string spaces(std::size_t count) {
    std::string result;
    while (count-- > 0) result += utf8(kNoBreakSpace);
    return result;
  }

  bool has_begun_ = false;
  std::size_t ends_ = 0;  // that are not written yet
  std::size_t column_ = 0;
};

/// An element that has been opened.
struct Open {
  const Element* element;
  std::size_t begin;  // of what it contains
  bool has_children = false;
  bool is_filled = false;  // a table has rows, a row has cells, others have words
};

/// Writes a page element by element, and sees that each is closed and stands where it may.
class PageWriter {
 public:
  void text(std::string_view words) {
    if (!is_blank(words)) {
      if (inside_grid()) return;
      open_item();
      for (Open& each : open_) each.is_filled |= each.element->stands != Stands::as_grid;
    }
    page_.html += is_in_pre() ? preformatted_.lay_out(words, end_of_line()) : escaped(words);
  }

  void open(const Element& element, std::string_view tag) {
    make_room(element);
    if (element.parents.empty()) open_item();
    if (!may_stand(element)) return;
    if (is_in_pre()) page_.html += preformatted_.pending_ends(end_of_line());
    if (element.name == "pre") preformatted_ = {};
    page_.html += beginning_of(element.name, attributes_of(element, tag));
    if (!open_.empty()) add_child(open_.back(), element);
    if (element.stands != Stands::alone) open_.push_back({&element, page_.html.size()});
  }

  /// Closes the element, if it is open, and what is open in it.
  void close(std::string_view name) {
    for (std::size_t i = open_.size(); i-- > 0;) {
      if (open_[i].element->name == name) return close_down_to(i);
      if (open_[i].element->name == "table") return;
    }
  }

  Page finished(std::string title) {
    close_down_to(0);
    page_.title = std::move(title);
    page_.html = "<html><head><title>" + escaped(page_.title) + "</title></head><body>" + page_.html + "</body></html>";
    return std::move(page_);
  }

 private:
  static void add_child(Open& parent, const Element& child) {
    parent.has_children = true;
    if (parent.element->stands == Stands::as_grid && child.name != "caption") parent.is_filled = true;
  }

  bool inside_grid() const { return !open_.empty() && open_.back().element->stands == Stands::as_grid; }

  bool is_in_pre() const {
    return std::ranges::any_of(open_, [](const Open& each) { return each.element->name == "pre"; });
  }

  /// How a line of <pre> ends: not with its division where words are marked beyond it.
  std::string end_of_line() const { return open_.back().element->name == "pre" ? "</code></div><div><code>" : "<br>"; }

  bool may_stand(const Element& element) const {
    if (open_.size() == kDeepest) return false;
    if (element.parents.empty()) return !inside_grid();
    if (open_.empty() || !is_among(element.parents, open_.back().element->name)) return false;
    return element.name != "caption" || !open_.back().has_children;
  }

  static bool ends_before_boxes(const Open& open) {
    return open.element->stands == Stands::in_line || open.element->stands == Stands::as_line;
  }

  /// Closes what ends where the element begins.
  void make_room(const Element& element) {
    if (element.name == "a") close("a");
    if (element.stands == Stands::in_line || element.name == "br") return;
    while (!open_.empty() && ends_before_boxes(open_.back())) close_last();
    if (!element.parents.empty()) close_up_to_parent(element);
  }

  /// Words and elements that stand in a list, but in no item of it, get one.
  void open_item() {
    const Element* item = open_.empty() ? nullptr : item_of(*open_.back().element);
    if (item) open(*item, "");
  }

  void close_up_to_parent(const Element& element) {
    for (std::size_t i = open_.size(); i-- > 0;) {
      if (is_among(element.parents, open_[i].element->name)) return close_down_to(i + 1);
      if (open_[i].element->name == "table") return;
    }
  }

  void close_down_to(std::size_t count) {
    while (open_.size() > count) close_last();
  }

  void close_last() {
    const Open last = open_.back();
    open_.pop_back();
    const bool in_table = last.element->stands == Stands::as_grid || is_among(last.element->parents, "tr");
    if (in_table && !last.is_filled) {
      page_.html.resize(last.begin);
      page_.html += filling_of(last.element->name);
    }
    page_.html += end_of(last.element->name);
  }

  /// The widget stands no table without rows, no row without cells, and no cell without words.
  static std::string filling_of(std::string_view name) {
    if (name == "table") return "<tr>" + filling_of("tr") + "</tr>";
    if (name == "tr") return "<td>" + filling_of("td") + "</td>";
    return utf8(kEmSpace);
  }

  std::string attributes_of(const Element& element, std::string_view tag) {
    if (element.name == "a") return anchor_attributes(tag);
    std::string kept;
    for (std::string_view names = element.attributes; !is_blank(names);) {
      names.remove_prefix(1);
      const std::string_view name = names.substr(0, names.find(' '));
      names.remove_prefix(name.size());
      const std::string value = attribute(tag, name);
      if (is_harmless(value)) kept += " " + std::string(name) + "=\"" + value + "\"";
    }
    return kept;
  }

  std::string anchor_attributes(std::string_view tag) {
    return numbered("name", attribute(tag, "name"), page_.places) +
           numbered("href", attribute(tag, "href"), page_.links);
  }

  static std::string numbered(const char* name, std::string value, std::vector<std::string>& values) {
    if (value.empty()) return "";
    values.push_back(std::move(value));
    return " " + std::string(name) + "=\"" + std::to_string(values.size() - 1) + "\"";
  }

  Page page_;
  std::vector<Open> open_;
  Preformatted preformatted_;  // where the text of a <pre> is
};

/// A text with each run of white space as one blank, and none at its ends.
std::string put_on_one_line(std::string_view text) {
  std::string line;
  for (char c : text) {
    const bool blank = is_blank({&c, 1});
    if (!blank) line += c;
    if (blank && !line.empty() && line.back() != ' ') line += ' ';
  }
  if (line.ends_with(' ')) line.pop_back();
  return line;
}

/// Reads a page piece by piece.
class PageReader {
 public:
  std::optional<Page> read(std::string_view html) {
    for (const Piece& piece : pieces_of(html)) take(piece);
    if (!is_html_) return std::nullopt;
    return writer_.finished(put_on_one_line(title_));
  }

 private:
  void take(const Piece& piece) {
    if (piece.kind == Piece::Kind::tag) take_tag(piece.source, name_of(piece.source));
    if (piece.kind == Piece::Kind::text) take_text(decoded(piece.source));
  }

  void take_text(const std::string& words) {
    if (hidden_ == "title") title_ += words;
    if (hidden_.empty()) writer_.text(words);
  }

  void take_tag(std::string_view tag, const std::string& name) {
    if (is_among(" !doctype html head title body ", name)) is_html_ = true;
    if (!hidden_.empty()) {
      if (name == "/" + hidden_) hidden_.clear();
    } else if (is_among(" title script style ", name)) {
      hidden_ = name;
    } else if (name == "img") {
      writer_.text(attribute(tag, "alt"));
    } else if (name.starts_with('/')) {
      writer_.close(std::string_view(name).substr(1));
    } else if (const Element* element = element_named(name)) {
      writer_.open(*element, tag);
    }
  }

  PageWriter writer_;
  std::string title_;
  std::string hidden_;  // the element whose content is not shown
  bool is_html_ = false;
};

}  // namespace

std::optional<Page> read_page(std::string_view bytes) {
  if (bytes.find('\0') != std::string_view::npos) return std::nullopt;
  return PageReader().read(as_utf8(bytes));
}

Page make_notice(std::string_view title, std::string_view sentence) {
  PageWriter writer;
  const auto line = [&](std::string_view name, std::string_view words) {
    writer.open(*element_named(name), "");
    writer.text(words);
  };
  line("h1", as_utf8(title));
  line("p", as_utf8(sentence));
  return writer.finished(as_utf8(title));
}

}  // namespace help
