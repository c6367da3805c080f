// Writes a page element by element, as the HTML widget stands it.

#include "help/viewer/page_writer.h"

#include <algorithm>

#include "help/viewer/entities.h"

namespace help {

namespace {

constexpr std::size_t kDeepest = 60;  // elements in each other; the widget lays tables out by recursion

bool is_blank(std::string_view text) { return text.find_first_not_of(" \t\r\n\f") == std::string_view::npos; }

/// Whether a value is a word or a small number: no other reaches the widget.
bool is_harmless(std::string_view value) {
  if (value.empty() || value.size() > 8) return false;
  const bool number = value.find_first_not_of("0123456789") == std::string_view::npos;
  return number ? value.size() <= 2
                : value.find_first_not_of("#+-0123456789ABCDEFabcdefghijklmnopqrstuvwxyz") == std::string_view::npos;
}

bool may_stand_anywhere(const Element& element) { return element.parents.front().empty(); }

bool ends_before_boxes(const Element& element) {
  return element.stands == Stands::in_line || element.stands == Stands::as_line;
}

/// The place of a value among those before it, which get it.
std::string number_value(const std::string& value, std::vector<std::string>& values) {
  values.push_back(value);
  return std::to_string(values.size() - 1);
}

}  // namespace

void PageWriter::write(std::string_view words) {
  if (!is_blank(words)) {
    if (is_in_grid()) return;
    open_item();
    for (Open& each : open_) each.is_filled |= each.element->stands != Stands::as_grid;
  }
  page_.html += is_in_pre() ? preformatted_.lay_out(words, line_end()) : escape(words);
}

void PageWriter::open(const Element& element, const Attributes& attributes) {
  make_room(element);
  if (may_stand_anywhere(element)) open_item();
  if (!may_stand(element)) return;
  if (is_in_pre()) page_.html += preformatted_.end_lines(line_end());
  if (element.name == "pre") preformatted_ = {};
  const std::string tag = "<" + std::string(element.name) + write_attributes(element, attributes) + ">";
  page_.html += element.begin.empty() ? tag : element.begin;
  note_child(element);
  if (element.stands != Stands::alone) open_.push_back({&element, page_.html.size()});
}

void PageWriter::close(const Element& element) {
  for (std::size_t i = open_.size(); i-- > 0;) {
    if (open_[i].element == &element) return close_down_to(i);
    if (open_[i].element->name == "table") return;
  }
}

Page PageWriter::finish(std::string title) {
  close_down_to(0);
  page_.title = std::move(title);
  page_.html = "<html><head><title>" + escape(page_.title) + "</title></head><body>" + page_.html + "</body></html>";
  return std::move(page_);
}

bool PageWriter::is_in_grid() const { return !open_.empty() && open_.back().element->stands == Stands::as_grid; }

bool PageWriter::is_in_pre() const {
  return std::ranges::any_of(open_, [](const Open& each) { return each.element->name == "pre"; });
}

bool PageWriter::may_stand(const Element& element) const {
  if (open_.size() == kDeepest) return false;
  if (may_stand_anywhere(element)) return !is_in_grid();
  if (open_.empty() || !is_among(element.parents, open_.back().element->name)) return false;
  return element.name != "caption" || !open_.back().has_children;
}

/// How a line of <pre> ends: not with its division where words are marked beyond it.
std::string_view PageWriter::line_end() const {
  return open_.back().element->name == "pre" ? "</code></div><div><code>" : "<br>";
}

/// Closes what ends where the element begins.
void PageWriter::make_room(const Element& element) {
  if (element.name == "a") close(element);
  if (element.stands == Stands::in_line || element.name == "br") return;
  while (!open_.empty() && ends_before_boxes(*open_.back().element)) close_last();
  if (!may_stand_anywhere(element)) close_up_to_parent(element);
}

/// Words and elements that stand in a list, but in no item of it, get one.
void PageWriter::open_item() {
  if (!open_.empty() && !open_.back().element->item.empty()) open(*find_element(open_.back().element->item));
}

void PageWriter::note_child(const Element& child) {
  if (open_.empty()) return;
  open_.back().has_children = true;
  if (is_in_grid() && child.name != "caption") open_.back().is_filled = true;
}

void PageWriter::close_up_to_parent(const Element& element) {
  for (std::size_t i = open_.size(); i-- > 0;) {
    if (is_among(element.parents, open_[i].element->name)) return close_down_to(i + 1);
    if (open_[i].element->name == "table") return;
  }
}

void PageWriter::close_down_to(std::size_t count) {
  while (open_.size() > count) close_last();
}

void PageWriter::close_last() {
  const Open last = open_.back();
  open_.pop_back();
  if (!last.is_filled && !last.element->filling.empty()) {
    page_.html.resize(last.begin);
    page_.html += last.element->filling;
  }
  page_.html += last.element->end.empty() ? "</" + std::string(last.element->name) + ">" : last.element->end;
}

std::string PageWriter::write_attributes(const Element& element, const Attributes& attributes) {
  std::string kept;
  for (std::string_view name : element.attributes) {
    const auto found = attributes.find(name);
    const std::string value = found == attributes.end() ? "" : write_value(name, found->second);
    if (!value.empty()) kept += " " + std::string(name) + "=\"" + value + "\"";
  }
  return kept;
}

/// A value as the widget gets it; "" when it gets none.
std::string PageWriter::write_value(std::string_view name, const std::string& value) {
  if (value.empty()) return "";
  if (name == "name") return number_value(value, page_.places);
  if (name == "href") return number_value(value, page_.links);
  return is_harmless(value) ? value : "";
}

}  // namespace help
