#ifndef HELP_PAGES_HTML_PAGE_H
#define HELP_PAGES_HTML_PAGE_H

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// A help page as the tests look at it. Pages keep to the few elements that the viewer shows well, close all of them,
// and are ASCII with entities.

inline constexpr std::string_view page_start =
    "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">\n<html lang=\"";

/// What is on a page.
struct HtmlPage {
  std::string title;
  std::set<std::string> anchors;
  std::vector<std::string> links;
  std::set<std::string> bold;         // the texts in bold, which are labels
  std::set<std::string> emphasised;   // messages among them
  std::vector<std::string> outline;   // the elements that structure the page, in order
  std::vector<std::string> examples;  // the texts that stand as they are
  std::vector<std::string> faults;
};

/// Reads the text of a page, tag by tag.
class HtmlReader {
 public:
  explicit HtmlReader(const std::string& source) : source_(source) {}

  HtmlPage read() {
    if (!source_.starts_with(page_start)) fault("does not begin as an HTML page");
    std::size_t from = std::min(source_.find('\n'), source_.size());
    while (from < source_.size()) from = source_[from] == '<' ? read_tag(from) : read_text(from);
    for (const std::string& name : open_) fault("<" + name + "> is not closed");
    return page_;
  }

 private:
  static constexpr std::array<std::string_view, 24> elements = {
      "a",    "b",  "body", "code", "dd", "dl",  "dt",    "em", "h1", "h2",    "head", "hr",
      "html", "li", "meta", "ol",   "p",  "pre", "table", "td", "th", "title", "tr",   "ul"};
  static constexpr std::array<std::string_view, 6> inline_elements = {"a", "b", "code", "em", "meta", "hr"};

  template <class Names>
  static bool is_in(const Names& names, std::string_view name) {
    return std::ranges::find(names, name) != names.end();
  }

  void fault(const std::string& what) { page_.faults.push_back(what); }

  /// Texts of elements that are asked for: collected from the opening tag on, kept at the closing one.
  std::string& text_of(const std::string& element) { return texts_[element]; }

  std::size_t read_text(std::size_t from) {
    const std::size_t end = std::min(source_.find('<', from), source_.size());
    const std::string text = decoded(source_.substr(from, end - from));
    for (const std::string& element : open_) text_of(element) += text;
    return end;
  }

  std::size_t read_tag(std::size_t from) {
    static const std::regex tag("^<(/?)([a-z][a-z0-9]*)((?:[ \n][a-z-]+=\"[^\"<>]*\")*)>");
    std::smatch match;
    const auto begin = source_.begin() + static_cast<std::ptrdiff_t>(from);
    if (!std::regex_search(begin, source_.end(), match, tag, std::regex_constants::match_continuous)) {
      fault("a tag cannot be read: " + source_.substr(from, 20));
      return from + 1;
    }
    match[1].length() > 0 ? close(match[2]) : open(match[2], match[3]);
    return from + static_cast<std::size_t>(match.length());
  }

  void open(const std::string& name, const std::string& attributes) {
    if (!is_in(elements, name)) fault("<" + name + "> is not among the elements of help pages");
    check_place(name);
    if (!is_in(inline_elements, name)) page_.outline.push_back(name);
    if (name == "a") read_anchor(attributes);
    if (name == "meta" || name == "hr") return;
    open_.push_back(name);
    text_of(name).clear();
  }

  void close(const std::string& name) {
    if (open_.empty() || open_.back() != name) return fault("</" + name + "> closes nothing");
    open_.pop_back();
    const std::string text = text_of(name);
    if (name == "title") page_.title = text;
    if (name == "b") page_.bold.insert(in_one_line(text));
    if (name == "em") page_.emphasised.insert(in_one_line(text));
    if (name == "pre") page_.examples.push_back(text);
  }

  /// Some elements stand in certain others only, and a paragraph takes none but those within a line.
  void check_place(const std::string& name) {
    static const std::map<std::string, std::set<std::string>> places = {
        {"li", {"ul", "ol"}}, {"dt", {"dl"}}, {"dd", {"dl"}},   {"tr", {"table"}},
        {"td", {"tr"}},       {"th", {"tr"}}, {"h1", {"body"}}, {"h2", {"body"}}};
    const std::string parent = open_.empty() ? "" : open_.back();
    const auto place = places.find(name);
    if (place != places.end() && !place->second.contains(parent)) fault("<" + name + "> stands in <" + parent + ">");
    if (parent == "p" && !is_in(inline_elements, name)) fault("<" + name + "> stands in a paragraph");
  }

  void read_anchor(const std::string& attributes) {
    static const std::regex one("(name|href)=\"([^\"]*)\"");
    std::smatch match;
    if (!std::regex_search(attributes, match, one)) return fault("<a> leads nowhere and is no place");
    if (match[1] == "href") {
      page_.links.push_back(match[2]);
    } else if (!page_.anchors.insert(match[2]).second) {
      fault("the place " + match[2].str() + " is there twice");
    }
  }

  std::string decoded(const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (static_cast<unsigned char>(text[i]) > 126) fault("a character is not ASCII");
      if (text[i] == '&') {
        result += entity(text, i);
      } else {
        result += text[i];
      }
    }
    return result;
  }

  /// The character, in UTF-8, whose entity begins at `i`, which is set to the entity's end.
  std::string entity(const std::string& text, std::size_t& i) {
    static const std::map<std::string, std::string> known = {
        {"amp", "&"},         {"lt", "<"},          {"gt", ">"},          {"quot", "\""},
        {"nbsp", "\xc2\xa0"}, {"auml", "\xc3\xa4"}, {"ouml", "\xc3\xb6"}, {"uuml", "\xc3\xbc"},
        {"Auml", "\xc3\x84"}, {"Ouml", "\xc3\x96"}, {"Uuml", "\xc3\x9c"}, {"szlig", "\xc3\x9f"}};
    const std::size_t end = text.find(';', i);
    const std::string name = end == std::string::npos ? "" : text.substr(i + 1, end - i - 1);
    const auto found = known.find(name);
    if (found == known.end()) {
      fault("not a known entity: " + text.substr(i, 10));
      return "&";
    }
    i = end;
    return found->second;
  }

  static std::string in_one_line(const std::string& text) { return std::regex_replace(text, std::regex("\\s+"), " "); }

  const std::string& source_;
  std::vector<std::string> open_;
  std::map<std::string, std::string> texts_;
  HtmlPage page_;
};

inline HtmlPage read_html(const std::string& source) { return HtmlReader(source).read(); }

#endif
