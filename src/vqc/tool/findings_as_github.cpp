// Shows findings as workflow commands, which mark the lines of a change under review.

#include <string>

#include "vqc/tool/findings_writer.h"

namespace vqc {

namespace {

/// A text in which nothing ends the command, or one of its properties where these are `special` too.
std::string escaped(std::string_view text, std::string_view special) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string result;
  for (char c : text) {
    const bool plain = special.find(c) == std::string_view::npos;
    const auto byte = static_cast<unsigned char>(c);
    result += plain ? std::string(1, c) : std::string{'%', kDigits[byte / 16], kDigits[byte % 16]};
  }
  return result;
}

std::string value(std::string_view text) { return escaped(text, "%\r\n"); }
std::string property(std::string_view text) { return escaped(text, "%\r\n:,"); }

class GithubWriter : public FindingsWriter {
 public:
  explicit GithubWriter(Sink& out) : out_(out) {}

  void write(const ShownFinding& shown) override {
    const Place begin = shown.source.place(shown.finding.range.begin);
    const Place end = shown.source.place(shown.finding.range.end);
    std::string message = words_of(shown.finding);
    for (const Note& note : shown.finding.notes) message += "\n" + note.words;
    if (!shown.finding.suggestion.empty()) message += "\n" + suggestion_words(shown.finding);
    out_.write("::" + std::string(command(shown.severity)) + " file=" + property(shown.source.name()) +
               ",line=" + std::to_string(begin.line) + ",endLine=" + std::to_string(end.line) +
               ",col=" + std::to_string(begin.column) + ",endColumn=" + std::to_string(end.column) +
               ",title=" + kind_of(shown.finding.id).name + "::" + value(message) + "\n");
  }

 private:
  static const char* command(Severity severity) {
    return severity == Severity::note ? "notice" : severity_name(severity);
  }

  Sink& out_;
};

}  // namespace

std::unique_ptr<FindingsWriter> github_writer(Sink& out) { return std::make_unique<GithubWriter>(out); }

}  // namespace vqc
