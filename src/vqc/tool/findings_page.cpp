// Writes the manual page vqc-findings(7) from the table of findings. It runs while the program is built.

#include <cstdio>
#include <string>
#include <string_view>

#include "libkel/diagnostics.h"

using namespace vqc;

namespace {

/// A text that has no meaning of its own for the formatter.
std::string plain(std::string_view text) {
  std::string result;
  bool at_start = true;
  for (char c : text) {
    if (at_start && (c == '.' || c == '\'')) result += "\\&";
    result += c == '\\' ? "\\e" : std::string(1, c);
    at_start = c == '\n';
  }
  return result;
}

/// A document as it is typed, longer lines cut.
std::string document(std::string_view text) {
  constexpr std::size_t kMost = 100;
  std::string result;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::string_view line = text.substr(begin, text.find('\n', begin) - begin);
    result += plain(line.substr(0, kMost));
    result += line.size() > kMost ? "...\n" : "\n";
    begin += line.size() + 1;
  }
  return result;
}

/// A text with each sentence on a line of its own, as manual pages have it.
std::string sentences(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    result += i > 0 && text[i] == ' ' && text[i - 1] == '.' ? '\n' : text[i];
  }
  return plain(result);
}

void write_kind(const FindingKind& kind) {
  std::printf(".It Sy %s Pq %s%s\n", kind.name, severity_name(kind.severity), kind.shown ? "" : ", only with --with");
  std::printf("%s.\n.Pp\n%s\n", plain(kind.words).c_str(), sentences(kind.explanation).c_str());
  std::printf(".Bd -literal -offset indent\n%s.Ed\n.Pp\nMended:\n.Bd -literal -offset indent\n%s.Ed\n",
              document(kind.example).c_str(), document(kind.cure).c_str());
}

constexpr const char* kBeginning = R"(.Dd %s
.Dt VQC-FINDINGS 7
.Os VQconfig
.Sh NAME
.Nm vqc-findings
.Nd what vqc finds in descriptions of widget sets
.Sh DESCRIPTION
This page lists all that
.Xr vqc 1
can find in a document, each with a document in which it is found, and with the same document mended.
In the words, %%0 and the like stand for what is found.
.Pp
An error is what
.Xr vqconfig 1
stops reading at.
A warning is what it reads and a compiler or the running builder will not like, or what a person hardly meant.
.Bl -tag -width Ds
)";

constexpr const char* kEnd = R"(.El
.Sh SEE ALSO
.Xr vqc 1 ,
.Xr vqconfig 1 ,
.Xr vqc 5
)";

}  // namespace

/// Takes the date of the page.
int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::printf(kBeginning, argv[1]);
  for (const FindingKind& kind : finding_kinds()) write_kind(kind);
  std::fputs(kEnd, stdout);
}
