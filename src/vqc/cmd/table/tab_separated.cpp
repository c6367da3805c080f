// Rows of resources as tab-separated text.

#include "vqc/cmd/table/tab_separated.h"

#include <algorithm>
#include <utility>

namespace vqc {

namespace {

std::string quoted(std::string_view cell) {
  if (cell.find_first_of("\t\n\r\"") == std::string_view::npos) return std::string(cell);
  std::string text = "\"";
  for (const char c : cell) text.append(c == '"' ? 2 : 1, c);
  return text + '"';
}

template <class Say>
std::string line_of(Say say) {
  std::string line;
  for (const Column column : all_columns) line.append(line.empty() ? "" : "\t").append(quoted(say(column)));
  return line + '\n';
}

/// A line of a text, taken apart.
struct Line {
  std::size_t number;
  std::vector<std::string> cells;
  bool is_closed = true;
};

/// Takes a text apart, cell by cell.
class CellReader {
 public:
  explicit CellReader(std::string_view text) : text_(text) {}

  bool at_end() const { return place_ == text_.size(); }

  Line line() {
    Line line{number_, {}};
    do line.cells.push_back(cell(line.is_closed));
    while (take('\t'));
    take('\r');
    if (take('\n')) ++number_;
    return line;
  }

 private:
  bool take(char c) {
    if (at_end() || text_[place_] != c) return false;
    ++place_;
    return true;
  }

  std::string cell(bool& is_closed) {
    if (take('"')) return quoted_cell(is_closed);
    const std::size_t end = std::min(text_.find_first_of("\t\r\n", place_), text_.size());
    return std::string(text_.substr(std::exchange(place_, end), end - place_));
  }

  std::string quoted_cell(bool& is_closed) {
    std::string cell;
    while (!at_end()) {
      const char c = text_[place_++];
      if (c == '"' && !take('"')) return cell;
      if (c == '\n') ++number_;
      cell += c;
    }
    is_closed = false;
    return cell;
  }

  std::string_view text_;
  std::size_t place_ = 0;
  std::size_t number_ = 1;
};

/// Puts a text into a document: it is all read before anything is set.
class Paste {
 public:
  Paste(Document& document, std::string_view text) : document_(document), reader_(text) {}

  Pasted run() {
    read_heading(reader_.line());
    while (pasted_.problems.empty() && !reader_.at_end()) lines_.push_back(reader_.line());
    std::erase_if(lines_, [](const Line& line) { return line.cells.size() == 1 && line.cells[0].empty(); });
    if (pasted_.problems.empty()) std::ranges::for_each(lines_, [this](const Line& line) { check(line); });
    if (pasted_.problems.empty()) std::ranges::for_each(lines_, [this](const Line& line) { put(line); });
    pages_into_families(document_, rows_);
    return std::move(pasted_);
  }

 private:
  void complain(TextError error, const Line& line, std::string subject = {}) {
    pasted_.problems.push_back({error, line.number, std::move(subject)});
  }

  void read_heading(const Line& line) {
    if (!line.is_closed) return complain(TextError::unclosed_quote, line);
    for (const std::string& word : line.cells) {
      const std::optional<Column> column = column_of(word);
      if (!column) complain(TextError::unknown_column, line, word);
      if (column && place_of(*column)) complain(TextError::doubled_column, line, word);
      columns_.push_back(column.value_or(Column::widget));
    }
    if (!pasted_.problems.empty()) return;
    for (const Column column : {Column::widget, Column::name}) {
      if (!place_of(column)) complain(TextError::missing_column, line, std::string(column_word(column)));
    }
  }

  /// Where the lines have a column.
  std::optional<std::size_t> place_of(Column column) const {
    const auto found = std::ranges::find(columns_, column);
    if (found == columns_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - columns_.begin());
  }

  const std::string& cell(const Line& line, Column column) const { return line.cells[*place_of(column)]; }

  WidgetDef* widget_of(const Line& line) const {
    return document_.widgets.find(Text(std::string_view(cell(line, Column::widget))));
  }

  void check(const Line& line) {
    if (!line.is_closed) return complain(TextError::unclosed_quote, line);
    if (line.cells.size() != columns_.size()) return complain(TextError::number_of_cells, line);
    if (!widget_of(line)) complain(TextError::unknown_widget, line, cell(line, Column::widget));
    if (cell(line, Column::name).empty()) complain(TextError::no_name, line);
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      const bool is_wrong = is_settable(columns_[i]) && !is_value(columns_[i], line.cells[i]);
      if (is_wrong) complain(TextError::no_value, line, line.cells[i]);
    }
  }

  void put(const Line& line) {
    WidgetDef* widget = widget_of(line);
    auto& resources = widget->resource_definitions;
    ResourceDef* resource = resources.find(Text(std::string_view(cell(line, Column::name))));
    const bool is_new = !resource;
    if (is_new)
      resource = document_.ensure(resources, document_.keep(Text(std::string_view(cell(line, Column::name)))));
    bool is_changed = is_new;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      if (is_settable(columns_[i])) is_changed |= set_cell(document_, *resource, columns_[i], line.cells[i]);
    }
    if (!is_changed) return;
    ++(is_new ? pasted_.added : pasted_.changed);
    rows_.push_back({widget, resource});
  }

  Document& document_;
  CellReader reader_;
  std::vector<Column> columns_;
  std::vector<Line> lines_;
  ResourceRows rows_;  // that are new or others now
  Pasted pasted_;
};

}  // namespace

std::string as_text(std::span<const ResourceRow> rows) {
  std::string text = line_of(column_word);
  for (const ResourceRow& row : rows) text += line_of([&row](Column column) { return cell(row, column); });
  return text;
}

Pasted paste_text(Document& document, std::string_view text) { return Paste(document, text).run(); }

}  // namespace vqc
