// Reads the pages of help with libxml2, whatever state they are in.

#include "help/viewer/read_page.h"

#include <libxml/HTMLparser.h>

#include <algorithm>
#include <array>
#include <climits>
#include <memory>
#include <new>

#include "help/viewer/elements.h"
#include "help/viewer/entities.h"
#include "help/viewer/page_writer.h"
#include "libkel/utf8.h"

using namespace vqc;

namespace help {

namespace {

std::string copy(const xmlChar* text) { return text ? reinterpret_cast<const char*>(text) : ""; }

/// The attributes that the library hands over: names and values in turns, and null at the end.
Attributes collect(const xmlChar** attributes) {
  Attributes result;
  for (; attributes && *attributes; attributes += 2) result.emplace(copy(attributes[0]), copy(attributes[1]));
  return result;
}

/// A text with each run of white space as one blank, and none at its ends.
std::string put_on_one_line(std::string_view text) {
  std::string line;
  for (char c : text) {
    const bool blank = std::string_view(" \t\r\n\f").find(c) != std::string_view::npos;
    if (!blank) line += c;
    if (blank && !line.empty() && line.back() != ' ') line += ' ';
  }
  if (line.ends_with(' ')) line.pop_back();
  return line;
}

constexpr std::array<std::string_view, 5> page_tags{"!doctype", "html", "head", "title", "body"};

/// Whether a text has a tag that only pages have.
bool is_html(std::string_view text) {
  for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at + 1)) {
    std::string name(text.substr(at + 1, 9));
    name.resize(std::min(name.find_first_of(" \t\r\n\f/>"), name.size()));
    std::ranges::transform(name, name.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c; });
    if (std::ranges::find(page_tags, name) != page_tags.end()) return true;
  }
  return false;
}

bool begins_declaration(std::string_view html) {
  return html.starts_with("<?") || (html.starts_with("<!") && !html.starts_with("<!--"));
}

/// The page with each declaration as a processing instruction called "_". The library leaves those out, but shows what
/// it does not understand.
std::string hide_declarations(std::string_view html) {
  std::string result;
  while (!html.empty()) {
    const bool hides = begins_declaration(html);
    const std::size_t size = hides ? 2 : std::min(html.find('<', 1), html.size());
    result += hides ? "<?_ " : html.substr(0, size);
    html.remove_prefix(size);
  }
  return result;
}

/// Hears from the library what a page consists of, piece by piece, and writes what is shown. The library is libxml2,
/// for libtidy mends a page by moving, adding and dropping text.
class PageReader {
 public:
  PageReader() {
    if (!parser_) throw std::bad_alloc();
    *parser_->sax = {};
    parser_->sax->startElement = begin_element;
    parser_->sax->endElement = end_element;
    parser_->sax->characters = take_words;
    parser_->sax->ignorableWhitespace = take_words;
    parser_->userData = this;
  }

  Page read(std::string_view html) {
    const std::string whole = kOutermost + number_entities(hide_declarations(html));
    const int size = static_cast<int>(std::min<std::size_t>(whole.size(), INT_MAX));
    htmlCtxtReadMemory(parser_.get(), whole.data(), size, nullptr, "UTF-8", kOptions);  // makes no document
    return writer_.finish(put_on_one_line(title_));
  }

 private:
  using Parser = std::unique_ptr<htmlParserCtxt, decltype(&htmlFreeParserCtxt)>;

  static constexpr int kOptions =
      HTML_PARSE_NOIMPLIED | HTML_PARSE_IGNORE_ENC | HTML_PARSE_NONET | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING;

  /// In two elements that it does not know the library takes words as they come, and makes no paragraphs for them.
  static constexpr const char* kOutermost = "<page><page>";

  static constexpr int kTooDeep = 2000;  // elements in each other: the library goes through them all where one ends

  static void begin_element(void* reader, const xmlChar* name, const xmlChar** attributes) {
    static_cast<PageReader*>(reader)->begin(find_element(copy(name)), collect(attributes));
  }

  static void end_element(void* reader, const xmlChar* name) {
    static_cast<PageReader*>(reader)->end(find_element(copy(name)));
  }

  static void take_words(void* reader, const xmlChar* words, int size) {
    static_cast<PageReader*>(reader)->take({reinterpret_cast<const char*>(words), static_cast<std::size_t>(size)});
  }

  void begin(const Element* element, const Attributes& attributes) {
    if (parser_->nameNr > kTooDeep) return xmlStopParser(parser_.get());
    if (!element || hidden_) return;
    if (element->stands == Stands::hidden) {
      hidden_ = element;
    } else if (element->stands == Stands::replaced) {
      const auto found = attributes.find(element->attributes.front());
      if (found != attributes.end()) writer_.write(found->second);
    } else {
      writer_.open(*element, attributes);
    }
  }

  void end(const Element* element) {
    if (hidden_) {
      if (element == hidden_) hidden_ = nullptr;
    } else if (element) {
      writer_.close(*element);
    }
  }

  void take(std::string_view words) {
    if (!hidden_) {
      writer_.write(words);
    } else if (hidden_->name == "title") {
      title_ += words;
    }
  }

  Parser parser_{htmlNewParserCtxt(), htmlFreeParserCtxt};
  PageWriter writer_;
  std::string title_;
  const Element* hidden_ = nullptr;  // the element whose content is not shown
};

}  // namespace

std::optional<Page> read_page(std::string_view bytes) {
  if (bytes.find('\0') != std::string_view::npos) return std::nullopt;
  const std::string html = as_utf8(bytes);
  if (!is_html(html)) return std::nullopt;
  return PageReader().read(html);
}

Page make_notice(std::string_view title, std::string_view sentence) {
  PageWriter writer;
  const auto line = [&](std::string_view name, std::string_view words) {
    writer.open(*find_element(name));
    writer.write(words);
  };
  line("h1", as_utf8(title));
  line("p", as_utf8(sentence));
  return writer.finish(as_utf8(title));
}

}  // namespace help
