#ifndef HELP_VIEWER_PAGE_WRITER_H
#define HELP_VIEWER_PAGE_WRITER_H

// Writes a page for the HTML widget: each element is closed, and stands where it may.

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "help/viewer/elements.h"
#include "help/viewer/page.h"
#include "help/viewer/preformatted.h"

namespace help {

/// The values of an element's attributes, by their names.
using Attributes = std::map<std::string, std::string, std::less<>>;

class PageWriter {
 public:
  void write(std::string_view words);

  /// Opens an element where it may stand, and closes what ends there.
  void open(const Element& element, const Attributes& attributes = {});

  /// Closes the element, if it is open, and what is open in it.
  void close(const Element& element);

  /// The page, with everything closed. There is no writing to it any more.
  Page finish(std::string title);

 private:
  /// An element that has been opened.
  struct Open {
    const Element* element;
    std::size_t begin;  // of what it contains
    bool has_children = false;
    bool is_filled = false;  // a table has rows, a row has cells, others have words
  };

  bool is_in_grid() const;
  bool is_in_pre() const;
  bool may_stand(const Element& element) const;
  std::string_view line_end() const;
  void make_room(const Element& element);
  void open_item();
  void note_child(const Element& child);
  void close_up_to_parent(const Element& element);
  void close_down_to(std::size_t count);
  void close_last();
  std::string write_attributes(const Element& element, const Attributes& attributes);
  std::string write_value(std::string_view name, const std::string& value);

  Page page_;
  std::vector<Open> open_;
  Preformatted preformatted_;  // where the text of a <pre> is
};

}  // namespace help

#endif
