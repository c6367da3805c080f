#ifndef HELP_VIEWER_PAGE_H
#define HELP_VIEWER_PAGE_H

// A help page, made ready to be shown.

#include <string>
#include <vector>

namespace help {

/// A page made ready for the HTML widget, which stands no other: UTF-8 with no entities but those for "&", "<" and
/// ">", well-formed, of the elements that the widget shows as text.
struct Page {
  std::string title;
  std::string html;
  std::vector<std::string> links;   // a link to the n-th of these has the address "n"
  std::vector<std::string> places;  // the n-th of these is marked by the anchor "n"
};

}  // namespace help

#endif
