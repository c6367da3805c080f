// Shows findings to people.

#include <cwchar>
#include <string>

#include "libkel/utf8.h"
#include "vqc/tool/findings_writer.h"

namespace vqc {

namespace {

constexpr std::size_t kColumnsBefore = 60;  // what is shown of a long line before a range, and in all
constexpr std::size_t kColumnsInAll = 110;

struct Colours {
  const char* severity[3];  // of an error, a warning, a note
  const char* place;
  const char* caret;
  const char* end;
};
constexpr Colours kColours{{"\033[1;31m", "\033[1;35m", "\033[1;36m"}, "\033[1m", "\033[1;32m", "\033[0m"};
constexpr Colours kNoColours{{"", "", ""}, "", "", ""};

/// A character of a source as a terminal can show it, and how many columns it takes there.
struct Cell {
  std::string text;
  std::size_t width;
};

Cell cell_of(const Decoded& decoded, std::string_view bytes) {
  if (decoded.character == '\t') return {" ", 1};
  const bool control = decoded.character < ' ' || (decoded.character >= 0x7F && decoded.character < 0xA0);
  if (!decoded.valid() || control) return {"?", 1};
  const int width = wcwidth(static_cast<wchar_t>(decoded.character));
  return {std::string(bytes.substr(0, decoded.size)), width < 0 ? 1 : static_cast<std::size_t>(width)};
}

/// The part of a line around a range, and what is under it.
struct Excerpt {
  std::string line;
  std::string carets;
};

Excerpt excerpt_of(std::string_view line, std::size_t begin, std::size_t end) {
  Excerpt excerpt;
  std::size_t width = 0;
  for (std::size_t at = 0; at < line.size() && width < kColumnsInAll;) {
    const Decoded decoded = first_character(line.substr(at));
    const Cell cell = cell_of(decoded, line.substr(at));
    excerpt.line += cell.text;
    if (at < begin) excerpt.carets.append(cell.width, ' ');
    if (at > begin && at < end) excerpt.carets.append(cell.width, '~');
    if (at == begin) excerpt.carets.append("^").append(cell.width > 1 ? cell.width - 1 : 0, '~');
    width += cell.width;
    at += decoded.size;
  }
  if (begin >= line.size()) excerpt.carets += '^';
  return excerpt;
}

/// Where to begin showing a line so that what stands at `begin` is seen. A character is not cut.
std::size_t first_shown(std::string_view line, std::size_t begin) {
  if (begin <= kColumnsBefore) return 0;
  std::size_t from = begin - kColumnsBefore;
  while (from < begin && (static_cast<unsigned char>(line[from]) & 0xC0U) == 0x80U) ++from;
  return from;
}

class TextWriter : public FindingsWriter {
 public:
  TextWriter(Sink& out, const Colours& colours) : out_(out), colours_(colours) {}

  void write(const ShownFinding& shown) override {
    head(shown.source, shown.finding.range, shown.severity, words_of(shown.finding));
    put(" [", kind_of(shown.finding.id).name, "]\n");
    excerpt(shown.source, shown.finding.range);
    for (const Note& note : shown.finding.notes) write_note(shown.source, note);
    if (!shown.finding.suggestion.empty()) {
      write_note(shown.source, {.range = std::nullopt, .words = suggestion_words(shown.finding)});
    }
  }

 private:
  template <class... Texts>
  void put(const Texts&... texts) {
    (out_.write(texts), ...);
  }

  void head(const Source& source, Range range, Severity severity, std::string_view words) {
    const Place place = source.place(range.begin);
    put(colours_.place, source.name(), ":", std::to_string(place.line), ":", std::to_string(place.column), ": ",
        colours_.end);
    put(colours_.severity[static_cast<std::size_t>(severity)], severity_name(severity), ": ", colours_.end, words);
  }

  void excerpt(const Source& source, Range range) {
    const std::size_t number = source.place(range.begin).line;
    const std::string_view line = source.line(number);
    const std::size_t begin = range.begin - source.offset_of_line(number);
    const std::size_t from = first_shown(line, std::min(begin, line.size()));
    const Excerpt excerpt = excerpt_of(line.substr(from), begin - from, begin - from + (range.end - range.begin));
    const std::string margin = std::to_string(number);
    put("  ", margin, " | ", from > 0 ? "..." : "", excerpt.line, "\n");
    put("  ", std::string(margin.size(), ' '), " | ", from > 0 ? "   " : "", colours_.caret, excerpt.carets,
        colours_.end, "\n");
  }

  void write_note(const Source& source, const Note& note) {
    if (note.range) {
      head(source, *note.range, Severity::note, note.words);
      put("\n");
      excerpt(source, *note.range);
    } else {
      put("  ", colours_.severity[static_cast<std::size_t>(Severity::note)], "note: ", colours_.end, note.words, "\n");
    }
  }

  Sink& out_;
  const Colours& colours_;
};

}  // namespace

std::unique_ptr<FindingsWriter> text_writer(Sink& out, bool in_colour) {
  return std::make_unique<TextWriter>(out, in_colour ? kColours : kNoColours);
}

}  // namespace vqc
