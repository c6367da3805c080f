// The primitives of writing.

#include "vqc/cmd/savefile/util.h"

#include <array>
#include <charconv>
#include <string>

#include "libkel/message.h"

namespace vqc {

std::unique_ptr<FileSink> openfile(const char* path) {
  std::unique_ptr<FileSink> out = path ? FileSink::open(path) : nullptr;
  if (!out) error_show_2s("file_open_fail", path, system_errmsg());
  return out;
}

bool closefile(Sink& out) {
  const bool whole = out.finish();
  if (!whole) error_show_1s("file_write_fail", system_errmsg());
  return whole;
}

void charout(Sink& out, Text text) {
  std::string_view rest = text.view();
  for (std::size_t i = rest.find("%%"); i != std::string_view::npos; i = rest.find("%%")) {
    out.write(rest.substr(0, i + 1));
    rest.remove_prefix(i + 2);
  }
  out.write(rest);
}

void charout_1s(Sink& out, std::string_view format, std::string_view argument) {
  std::string text(format);
  const std::size_t place = text.find("%s");
  if (place != std::string::npos) text.replace(place, 2, argument);
  charout(out, Text(text));
}

void strout(Sink& out, Text text) {
  out.write("'");
  charout(out, text);
  out.write("'");
}

void quoteout(Sink& out, Text text) {
  out.write("'");
  std::string_view rest = text.view();
  for (std::size_t i = rest.find_first_of("'\\"); i != std::string_view::npos; i = rest.find_first_of("'\\")) {
    out.write(rest.substr(0, i));
    out.write("\\");
    out.write(rest.substr(i, 1));
    rest.remove_prefix(i + 1);
  }
  out.write(rest);
  out.write("'");
}

void stringout(Sink& out, Text text) {
  out.write("\"");
  charout(out, text);
  out.write("\"");
}

bool boolout_bc(Sink& out, bool flag, std::string_view keyword, bool default_flag) {
  if (flag == default_flag) return false;
  charout_1s(out, "\t%s=", keyword);
  boolout(out, flag);
  out.write("\n");
  return true;
}

void intout(Sink& out, int value) {
  std::array<char, 16> digits;
  out.write({digits.begin(), std::to_chars(digits.begin(), digits.end(), value).ptr});
}

void ptrout(Sink& out, Text text) { out.write(text ? text.view() : "0"); }

void ptrsfxout(Sink& out, Text text, std::string_view suffix) {
  ptrout(out, text);
  if (text) out.write(suffix);
}

}  // namespace vqc
