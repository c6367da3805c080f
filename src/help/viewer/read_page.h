#ifndef HELP_VIEWER_READ_PAGE_H
#define HELP_VIEWER_READ_PAGE_H

// Makes help pages ready to be shown.

#include <optional>
#include <string_view>

#include "help/viewer/page.h"

namespace help {

/// The page that a file holds; nothing when it is not HTML.
std::optional<Page> read_page(std::string_view bytes);

/// A page of one sentence.
Page make_notice(std::string_view title, std::string_view sentence);

}  // namespace help

#endif
