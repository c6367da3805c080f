// The rules on icons and the headers that have them.

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "vqc/cmd/check/header_files.h"
#include "vqc/cmd/check/rules.h"

namespace vqc {

namespace {

struct Icon {
  Text WidgetDef::*name;
  Text WidgetDef::*header;
};
constexpr Icon icons[] = {
    {&WidgetDef::largeicon, &WidgetDef::largeiconheader},
    {&WidgetDef::smallicon, &WidgetDef::smalliconheader},
};

bool is_bitmap(Text header) { return header.view().ends_with(".xbm"); }

/// Headers that can have more than one icon may have both of the widget.
bool has_header(const WidgetDef& widget, const Icon& icon) {
  return widget.*icon.header || std::ranges::any_of(icons, [&](const Icon& each) {
           return widget.*each.header && !is_bitmap(widget.*each.header);
         });
}

/// The name of the icon that a bitmap has: its file's.
std::string_view icon_in(Text bitmap) {
  std::string_view name = bitmap.view();
  name.remove_suffix(std::string_view(".xbm").size());
  return name.substr(name.rfind('/') + 1);
}

/// The icons that come with the header of a widget, or with a bitmap among the headers of a family.
std::unordered_set<std::string_view> icons_with_header(const Document& document) {
  std::unordered_set<std::string_view> names;
  for (const WidgetDef& widget : document.widgets) {
    for (const Icon& icon : icons) {
      if (widget.*icon.header) names.insert((widget.*icon.name).view());
    }
  }
  for (const HeaderEntry& header : document.code_headers) {
    if (is_bitmap(header.name)) names.insert(icon_in(header.name));
  }
  return names;
}

struct Include {
  std::string_view header;
  std::optional<Range> place;
};

/// The headers of icons that the code file includes, those of one name together and in the order of the source.
std::vector<Include> included_headers(const Inspection& inspection) {
  std::vector<Include> includes;
  for (const WidgetDef& widget : inspection.document.widgets) {
    if (!is_in_family(inspection, widget)) continue;
    for (const Icon& icon : icons) {
      const Text header = widget.*icon.header;
      if (header) includes.push_back({header.view(), inspection.place_of(header)});
    }
  }
  std::ranges::sort(includes, {},
                    [](const Include& each) { return std::pair(each.header, each.place.value_or(Range{}).begin); });
  return includes;
}

}  // namespace

void icons_without_header(Inspection& inspection) {
  const auto known = icons_with_header(inspection.document);
  for (const WidgetDef& widget : inspection.document.widgets) {
    for (const Icon& icon : icons) {
      const Text name = widget.*icon.name;
      if (!name || has_header(widget, icon) || known.contains(name.view())) continue;
      inspection.add(FindingId::icon_without_header, inspection.place_of(name), {string_of(name)});
    }
  }
}

/// Each header is found once, where it is included for the second time.
void icon_headers_twice(Inspection& inspection) {
  const std::vector<Include> includes = included_headers(inspection);
  for (std::size_t i = 1; i < includes.size(); ++i) {
    const std::string_view header = includes[i].header;
    const bool second = includes[i - 1].header == header && (i < 2 || includes[i - 2].header != header);
    if (!second || has_guard(inspection.options, Text(header))) continue;
    inspection.add(FindingId::icon_header_twice, includes[i].place, {std::string(header)},
                   {{includes[i - 1].place, "it is included here already"}});
  }
}

}  // namespace vqc
