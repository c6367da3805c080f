// Shows pages, follows their links, and finds words in them.

#include "help/viewer/viewer.h"

#include <Xm/ScrollBar.h>
#include <Xm/TextF.h>
#include <Xm/Xm.h>
#include <XmHTML/XmHTML.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>

#include "help/viewer/address.h"
#include "help/viewer/client.h"
#include "help/viewer/history.h"
#include "help/viewer/page_text.h"
#include "help/viewer/read_page.h"
#include "help/viewer/window.h"
#include "libkel/message.h"

using namespace vqc;

namespace help {

namespace {

constexpr const char* kContents = "entry.html";

History history;
Page page;                          // what is shown
std::optional<PageText> page_text;  // the same, once something has been sought in it
std::optional<Span> found;          // what has been found last

/// The sizes of the text, in hundredths of that in the resource file.
constexpr std::array sizes{70, 85, 100, 120, 145, 175, 210};
constexpr std::size_t kNormalSize = 2;
std::size_t size = kNormalSize;

std::string fill_message(const char* name, const std::string& argument) {
  return filled(look_up_text(name).c_str(), {argument.c_str()});
}

// Where the page is scrolled to.

int read_scroll_value(const char* resource) {
  int value = 0;
  XtVaGetValues(find_scroll_bar(), resource, &value, nullptr);
  return value;
}

int read_scroll_position() { return read_scroll_value(XmNvalue); }

void scroll_to(int value) {
  XmHTMLScrollToYPos(window.page, value);
  repaint_page();
}

/// Scrolls to the anchor of that name, unless it is in sight and may stay where it is.
void scroll_to_anchor(const std::string& name, bool may_stay) {
  std::string reference = "#" + name;
  if (may_stay && XmHTMLAnchorVisibleByName(window.page, reference.data())) return;
  XmHTMLAnchorScrollToName(window.page, reference.data());
  repaint_page();
}

void scroll_to_place(const std::string& place) {
  const auto at = std::ranges::find(page.places, place);
  if (at == page.places.end()) return set_status(fill_message("no_such_place", place));
  scroll_to_anchor(std::to_string(at - page.places.begin()), false);
}

// Pages.

/// What a file holds. When it cannot be read, errno says why.
std::optional<std::string> read_file(const std::string& file) {
  if (std::filesystem::is_directory(file)) {
    errno = EISDIR;
    return std::nullopt;
  }
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(stream), {});
}

/// The page in a file, or one that says why there is none.
Page load_page(const std::string& file) {
  const std::optional<std::string> contents = read_file(file);
  if (!contents) {
    const std::string reason = std::strerror(errno);
    const std::string format = look_up_text("page_unreadable");
    return make_notice(look_up_text("no_page"), filled(format.c_str(), {file.c_str(), reason.c_str()}));
  }
  if (std::optional<Page> read = read_page(*contents)) return *std::move(read);
  return make_notice(look_up_text("no_page"), fill_message("page_not_html", file));
}

/// Shows the text of a page, its beginning first.
void show_html(std::string html) { XmHTMLTextSetString(window.page, html.data()); }

void forget_found() {
  page_text.reset();
  found.reset();
}

/// Shows the page where the history is.
void show_here() {
  const Visit& here = history.here();
  page = load_page(here.file);
  forget_found();
  show_html(page.html);
  scroll_to(here.scrolled);
  set_title(page.title.empty() ? std::filesystem::path(here.file).filename().string() : page.title);
  set_status("");
  XtSetSensitive(window.back, static_cast<Boolean>(history.can_go_back()));
  XtSetSensitive(window.forward, static_cast<Boolean>(history.can_go_forward()));
}

void remember_scrolling() {
  if (!history.empty()) history.here().scrolled = read_scroll_position();
}

void go_to(const std::string& file) {
  remember_scrolling();
  history.go_to(file);
  show_here();
}

void follow(const std::string& link) {
  const std::optional<Address> target = resolve_link(history.here().file, link);
  if (!target) return set_status(fill_message("leads_away", link));
  go_to(target->file);
  if (!target->place.empty()) scroll_to_place(target->place);
}

/// Where the link leads that a callback of the HTML widget tells of; "" when it tells of none.
std::string read_link(const XmHTMLAnchorCallbackStruct& call) {
  char* end = nullptr;
  if (!call.href || !*call.href) return "";
  const unsigned long index = std::strtoul(call.href, &end, 10);
  return *end == '\0' && index < page.links.size() ? page.links[index] : "";
}

// Finding.

std::string read_words() {
  char* text = XmTextFieldGetString(window.find);
  std::string words = text;
  XtFree(text);
  return words;
}

/// Finds the words from there on, and marks and shows them.
void find_from(std::size_t from) {
  const std::string words = read_words();
  if (words.empty()) return;
  if (!page_text) page_text.emplace(page.html);
  const std::optional<Span> next = page_text->find(words, from);
  if (!next) return set_status(fill_message("not_found", words));
  const int before = read_scroll_position();
  set_status(found && next->begin < from ? look_up_text("found_from_top") : "");
  found = next;
  show_html(page_text->mark(*found));
  scroll_to(before);
  scroll_to_anchor(PageText::kMark, true);
}

/// Takes the mark off what has been found.
void unmark() {
  if (!found) return;
  const int before = read_scroll_position();
  forget_found();
  show_html(page.html);
  scroll_to(before);
}

// The size of the text.

/// A list of font sizes, scaled.
std::string scale(const std::string& list, int percent) {
  std::istringstream stream(list);
  std::string result;
  for (std::string number; std::getline(stream, number, ',');) {
    if (!result.empty()) result += ',';
    result += std::to_string((std::atoi(number.c_str()) * percent + 50) / 100);
  }
  return result;
}

std::string read_size_list(const char* resource) {
  char* list = nullptr;
  XtVaGetValues(window.page, resource, &list, nullptr);
  return list ? list : "";
}

/// The two lists of font sizes for each of the sizes of the text. The widget keeps their addresses, not their copies.
struct FontSizes {
  std::string proportional;
  std::string fixed;
};

std::array<FontSizes, sizes.size()> scale_font_sizes() {
  std::array<FontSizes, sizes.size()> result;
  const FontSizes normal = {read_size_list(XmNfontSizeList), read_size_list(XmNfontSizeFixedList)};
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    result[i] = {scale(normal.proportional, sizes[i]), scale(normal.fixed, sizes[i])};
  }
  return result;
}

void set_size(std::size_t new_size) {
  static std::array<FontSizes, sizes.size()> font_sizes = scale_font_sizes();
  if (new_size >= sizes.size() || new_size == size) return;
  size = new_size;
  const double place = read_scroll_position() / static_cast<double>(std::max(1, read_scroll_value(XmNmaximum)));
  XtVaSetValues(window.page, XmNfontSizeList, font_sizes[size].proportional.data(), XmNfontSizeFixedList,
                font_sizes[size].fixed.data(), nullptr);
  scroll_to(static_cast<int>(place * read_scroll_value(XmNmaximum)));
}

}  // namespace

void show_file(const std::string& file) {
  if (history.empty() || history.here().file != file) {
    go_to(file);
  } else {
    history.here().scrolled = 0;
    show_here();
  }
  show_window();
  focus_on_page();
}

void quit() {
  leave_client();
  std::exit(0);
}

void go_back(Widget, XtPointer, XtPointer) {
  if (!history.can_go_back()) return;
  remember_scrolling();
  history.go_back();
  show_here();
}

void go_forward(Widget, XtPointer, XtPointer) {
  if (!history.can_go_forward()) return;
  remember_scrolling();
  history.go_forward();
  show_here();
}

void go_to_contents(Widget, XtPointer, XtPointer) { go_to(replace_name(history.here().file, kContents)); }

void follow_link(Widget, XtPointer, XtPointer call) {
  auto& anchor = *static_cast<XmHTMLAnchorCallbackStruct*>(call);
  const std::string link = read_link(anchor);
  anchor.doit = False;
  anchor.doc_modified = True;
  if (!link.empty()) follow(link);
}

void show_link(Widget, XtPointer, XtPointer call) {
  set_status(read_link(*static_cast<XmHTMLAnchorCallbackStruct*>(call)));
}

void find_as_typed(Widget, XtPointer, XtPointer) {
  if (read_words().empty()) return unmark();
  find_from(found ? found->begin : 0);
}

void find_next(Widget, XtPointer, XtPointer) { find_from(found ? found->begin + 1 : 0); }

void end_find(Widget, XEvent*, String*, Cardinal*) {
  unmark();
  focus_on_page();
}

void make_smaller(Widget, XtPointer, XtPointer) { set_size(size - 1); }
void make_normal(Widget, XtPointer, XtPointer) { set_size(kNormalSize); }
void make_larger(Widget, XtPointer, XtPointer) { set_size(size + 1); }

void close_window(Widget, XtPointer, XtPointer) { quit(); }

}  // namespace help
