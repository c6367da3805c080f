// The resources of many widgets as a table.

#include "vqc/cmd/table/resource_table.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "vqc/cmd/lookup/match.h"
#include "vqc/cmd/savefile/fields.h"

namespace vqc {

namespace {

constexpr std::array<std::string_view, all_columns.size()> kWords = {
    "widget", "name", "page", "popup", "counter", "visible", "free_get", "free_set", "access"};

constexpr std::array<std::string_view, 2> kFlagWords = {"False", "True"};

struct AccessWord {
  Access access;
  std::string_view word;
};
constexpr AccessWord kAccessWords[] = {{ACCESS_CREATE, "create"}, {ACCESS_GET, "get"}, {ACCESS_SET, "set"}};

/// The place of a word among others; none where it is not there.
template <class Words>
std::optional<std::size_t> place_of(const Words& words, std::string_view word) {
  const auto found = std::ranges::find(words, word);
  if (found == std::end(words)) return std::nullopt;
  return static_cast<std::size_t>(found - std::begin(words));
}

std::string access_text(int access) {
  std::string text;
  if (access == ACCESS_NOT_GIVEN) return text;
  for (const auto& [bit, word] : kAccessWords) {
    if (access & bit) text.append(text.empty() ? "" : " ").append(word);
  }
  return text.empty() ? "none" : text;
}

/// The access that words say; nothing where one is no such word.
std::optional<int> access_of(std::string_view text) {
  if (text.empty()) return ACCESS_NOT_GIVEN;
  if (text == "none") return 0;
  int access = 0;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    const auto known = std::ranges::find(kAccessWords, word, &AccessWord::word);
    if (known == std::end(kAccessWords)) return std::nullopt;
    access |= known->access;
    text.remove_prefix(std::min(word.size() + 1, text.size()));
  }
  return access;
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

/// What a resource says once a column has been set.
ResourceFields with_cell(Document& document, const ResourceFields& before, Column column, std::string_view text) {
  ResourceFields after = before;
  if (auto member = text_of(column)) {
    if ((before.*member).view() != text) after.*member = text.empty() ? Text() : document.keep(Text(text));
  }
  if (column == Column::visible) after.visible = text == kFlagWords[true];
  if (column == Column::free_get) after.free_get = static_cast<FreeMode>(*place_of(free_mode_words, text));
  if (column == Column::free_set) after.free_set = static_cast<FreeMode>(*place_of(free_mode_words, text));
  if (column == Column::access) after.access = *access_of(text);
  return after;
}

bool store(Document& document, ResourceDef& resource, const ResourceFields& fields) {
  if (static_cast<const ResourceFields&>(resource) == fields) return false;
  static_cast<ResourceFields&>(resource) = fields;
  document.dirty = true;
  return true;
}

}  // namespace

std::string_view column_word(Column column) { return kWords[static_cast<std::size_t>(column)]; }

std::optional<Column> column_of(std::string_view word) {
  const std::optional<std::size_t> place = place_of(kWords, word);
  return place ? std::optional(static_cast<Column>(*place)) : std::nullopt;
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

std::string cell(const ResourceRow& row, Column column) {
  const ResourceDef& resource = *row.resource;
  if (const auto member = text_of(column)) return std::string((resource.*member).view());
  switch (column) {
    case Column::widget:
      return std::string(row.widget->name.view());
    case Column::name:
      return std::string(resource.name.view());
    case Column::visible:
      return std::string(kFlagWords[resource.visible]);
    case Column::free_get:
      return std::string(free_word(resource.free_get));
    case Column::free_set:
      return std::string(free_word(resource.free_set));
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
  std::vector<std::pair<std::string, ResourceRow>> keyed;
  for (const ResourceRow& row : rows) keyed.emplace_back(cell(row, column), row);
  std::ranges::stable_sort(
      keyed, [descending](const auto& a, const auto& b) { return descending ? b.first < a.first : a.first < b.first; });
  std::ranges::transform(keyed, rows.begin(), [](const auto& each) { return each.second; });
}

bool is_value(Column column, std::string_view text) {
  switch (column) {
    case Column::widget:
    case Column::name:
      return false;
    case Column::visible:
      return place_of(kFlagWords, text).has_value();
    case Column::free_get:
    case Column::free_set:
      return place_of(free_mode_words, text).has_value();
    case Column::access:
      return access_of(text).has_value();
    default:
      return true;
  }
}

bool set_cell(Document& document, ResourceDef& resource, Column column, std::string_view text) {
  return is_value(column, text) && store(document, resource, with_cell(document, resource, column, text));
}

bool copy_resource(Document& document, const ResourceFields& resource, WidgetDef& widget) {
  ResourceFields copied = resource;  // which may be one that moves when the list grows
  const bool is_new = widget.resource_definitions.find(copied.name) == nullptr;
  ResourceDef* own = document.ensure(widget.resource_definitions, copied.name);
  return store(document, *own, copied) || is_new;
}

}  // namespace vqc
