// The resources of many widgets as a table.

#include "vqc/cmd/table/resource_table.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <sstream>
#include <unordered_map>
#include <utility>

#include "vqc/cmd/lookup/match.h"
#include "vqc/cmd/savefile/fields.h"

namespace vqc {

namespace {

constexpr std::array<std::string_view, all_columns.size()> kWords = {
    "widget", "name", "page", "popup", "counter", "visible", "free_get", "free_set", "access"};

constexpr std::array<std::string_view, 2> kFlagWords = {"False", "True"};

/// For each access, which is three bits, its words.
constexpr std::array<std::string_view, 8> kAccessTexts = {"none", "create",     "get",     "create get",
                                                          "set",  "create set", "get set", "create get set"};

constexpr int kAccessBits[] = {ACCESS_CREATE, ACCESS_GET, ACCESS_SET};

/// The place of a word among others; none where it is not there.
template <class Words>
std::optional<std::size_t> place_of(const Words& words, std::string_view word) {
  const auto found = std::ranges::find(words, word);
  if (found == std::end(words)) return std::nullopt;
  return static_cast<std::size_t>(found - std::begin(words));
}

/// Whether words differ in capitals only, which spreadsheets change.
bool is_same_word(std::string_view a, std::string_view b) {
  const auto lower = [](unsigned char c) { return std::tolower(c); };
  return std::ranges::equal(a, b, {}, lower, lower);
}

std::optional<bool> flag_of(std::string_view text) {
  for (const bool flag : {false, true}) {
    if (is_same_word(text, kFlagWords[flag])) return flag;
  }
  return std::nullopt;
}

std::string_view access_text(int access) {
  if (access == ACCESS_NOT_GIVEN) return {};
  return kAccessTexts[static_cast<std::size_t>(access) % kAccessTexts.size()];
}

/// The access that words say, in any order; nothing where one is no such word.
std::optional<int> access_of(std::string_view text) {
  if (text == kAccessTexts[0]) return 0;
  int access = 0;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    if (word.empty()) continue;
    const auto known = std::ranges::find(kAccessBits, word, access_text);
    if (known == std::end(kAccessBits)) return std::nullopt;
    access |= *known;
  }
  return access == 0 ? ACCESS_NOT_GIVEN : access;
}

std::string_view free_word(FreeMode mode) { return free_mode_words[static_cast<std::size_t>(mode)]; }

/// The member that a column of texts shows; null for another column.
Text ResourceFields::*text_of(Column column) {
  if (column == Column::page) return &ResourceFields::page;
  if (column == Column::popup) return &ResourceFields::popup;
  return column == Column::counter ? &ResourceFields::counter : nullptr;
}

void add_rows(ResourceRows& rows, WidgetDef& widget) {
  for (ResourceDef& resource : widget.resource_definitions) rows.push_back({&widget, &resource});
}

/// What a resource says once a column has been set. The text is the document's.
ResourceFields with_cell(const ResourceFields& before, Column column, Text text) {
  ResourceFields after = before;
  if (auto member = text_of(column)) after.*member = text.empty() ? Text() : text;
  if (column == Column::visible) after.visible = *flag_of(text.view());
  if (column == Column::free_get) after.free_get = static_cast<FreeMode>(*place_of(free_mode_words, text.view()));
  if (column == Column::free_set) after.free_set = static_cast<FreeMode>(*place_of(free_mode_words, text.view()));
  if (column == Column::access) after.access = *access_of(text.view());
  return after;
}

bool store(Document& document, ResourceDef& resource, const ResourceFields& fields) {
  if (static_cast<const ResourceFields&>(resource) == fields) return false;
  static_cast<ResourceFields&>(resource) = fields;
  document.dirty = true;
  return true;
}

/// Gives a widget a resource like this one, and notes the row of it unless it has been so before.
void copy(Document& document, const ResourceFields& resource, WidgetDef& widget, Changes& changes,
          ResourceRows& copies) {
  const bool is_new = widget.resource_definitions.find(resource.name) == nullptr;
  ResourceDef* own = document.ensure(widget.resource_definitions, resource.name);
  if (!store(document, *own, resource) && !is_new) return;
  ++(is_new ? changes.added : changes.changed);
  copies.push_back({&widget, own});
}

}  // namespace

std::string_view column_word(Column column) { return kWords[static_cast<std::size_t>(column)]; }

std::optional<Column> column_of(std::string_view word) {
  const auto found = std::ranges::find_if(kWords, [word](std::string_view each) { return is_same_word(each, word); });
  return found == kWords.end() ? std::nullopt : std::optional(static_cast<Column>(found - kWords.begin()));
}

ResourceRows resource_rows(Document& document) {
  ResourceRows rows;
  for (WidgetDef& widget : document.widgets) add_rows(rows, widget);
  return rows;
}

ResourceRows resource_rows(const Family& family) {
  ResourceRows rows;
  for (const auto& reference : family.widgets) add_rows(rows, *reference.record);
  return rows;
}

std::string_view cell(const ResourceRow& row, Column column) {
  const ResourceDef& resource = *row.resource;
  if (const auto member = text_of(column)) return (resource.*member).view();
  switch (column) {
    case Column::widget:
      return row.widget->name.view();
    case Column::name:
      return resource.name.view();
    case Column::visible:
      return kFlagWords[resource.visible];
    case Column::free_get:
      return free_word(resource.free_get);
    case Column::free_set:
      return free_word(resource.free_set);
    case Column::access:
      return access_text(resource.access);
    default:
      return {};
  }
}

ResourceRows matching_rows(std::span<const ResourceRow> rows, Column column, std::string_view typed) {
  const Pattern pattern(typed);
  ResourceRows matching;
  std::ranges::copy_if(rows, std::back_inserter(matching),
                       [&](const ResourceRow& row) { return pattern.rank(cell(row, column)).has_value(); });
  return matching;
}

void sort_rows(ResourceRows& rows, Column column, bool descending) {
  std::unordered_map<std::string_view, ResourceRows> rows_of;
  for (const ResourceRow& row : rows) rows_of[cell(row, column)].push_back(row);
  std::vector<std::string_view> cells;
  cells.reserve(rows_of.size());
  for (const auto& [text, same] : rows_of) cells.push_back(text);
  std::ranges::sort(cells);
  if (descending) std::ranges::reverse(cells);
  rows.clear();
  for (const std::string_view text : cells) rows.insert(rows.end(), rows_of[text].begin(), rows_of[text].end());
}

bool is_value(Column column, std::string_view text) {
  switch (column) {
    case Column::visible:
      return flag_of(text).has_value();
    case Column::free_get:
    case Column::free_set:
      return place_of(free_mode_words, text).has_value();
    case Column::access:
      return access_of(text).has_value();
    default:
      return is_settable(column);
  }
}

std::vector<std::string> known_values(Column column) {
  const auto all = [](const auto& words) { return std::vector<std::string>(std::begin(words), std::end(words)); };
  switch (column) {
    case Column::visible:
      return all(kFlagWords);
    case Column::free_get:
    case Column::free_set:
      return all(free_mode_words);
    case Column::access:
      return all(kAccessTexts);
    default:
      return {};
  }
}

bool set_cell(Document& document, ResourceDef& resource, Column column, std::string_view text) {
  if (!is_value(column, text)) return false;
  const auto member = text_of(column);
  if (member && (resource.*member).view() == text) return false;  // before the document keeps it once more
  return store(document, resource, with_cell(resource, column, document.keep(Text(text))));
}

Changes set_cells(Document& document, std::span<const ResourceRow> rows, Column column, std::string_view text) {
  if (!is_value(column, text)) return {};
  const Text value = document.keep(Text(text));
  ResourceRows changed;
  std::ranges::copy_if(rows, std::back_inserter(changed), [&](const ResourceRow& row) {
    return store(document, *row.resource, with_cell(*row.resource, column, value));
  });
  if (column == Column::page) pages_into_families(document, changed);
  return {.changed = changed.size()};
}

Changes copy_rows(Document& document, std::span<const ResourceRow> rows, std::span<WidgetDef* const> widgets) {
  Changes changes;
  ResourceRows copies;
  for (WidgetDef* widget : widgets) {
    for (const ResourceRow& row : rows) copy(document, *row.resource, *widget, changes, copies);
  }
  pages_into_families(document, copies);
  return changes;
}

void pages_into_families(Document& document, std::span<const ResourceRow> rows) {
  std::unordered_map<const WidgetDef*, std::vector<Text>> pages;
  for (const auto& [widget, resource] : rows) {
    if (resource->page) pages[widget].push_back(resource->page);
  }
  if (pages.empty()) return;
  for (Family& family : document.families) {
    for (const auto& reference : family.widgets) {
      const auto named = pages.find(reference.record);
      if (named == pages.end()) continue;
      for (const Text page : named->second) document.ensure(family.pages, document.pages, page);
    }
  }
}

NamedWidgets widgets_named(Document& document, const std::string& text) {
  if (WidgetDef* widget = document.widgets.find(Text(std::string_view(text)))) return {{widget}, {}};
  NamedWidgets named;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    WidgetDef* widget = document.widgets.find(Text(std::string_view(word)));
    if (!widget) return {{}, word};
    named.widgets.push_back(widget);
  }
  return named;
}

}  // namespace vqc
