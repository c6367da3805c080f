#include "libkel/message.h"

#include <cerrno>
#include <cstring>

namespace vqc {

namespace {

bool present(const char* text) { return text && *text; }

int show(const char* text) {
  if (!message_sink || !text) return 0;
  message_sink->show(text);
  return 1;
}

int show_filled(const char* name, std::initializer_list<MessageArgument> arguments) {
  const char* format = vq_lookup_string(name);
  return present(format) ? show(filled(format, arguments).c_str()) : show(name);
}

}  // namespace

std::string filled(const char* format, std::initializer_list<MessageArgument> arguments) {
  std::string result;
  const MessageArgument* argument = arguments.begin();
  for (const char* p = format; *p; ++p) {
    const bool place = *p == '%' && (p[1] == 's' || p[1] == 'd');
    if (!place) {
      result += *p;
      if (*p == '%' && p[1] == '%') ++p;
      continue;
    }
    ++p;
    if (argument == arguments.end()) continue;
    if (const auto* text = std::get_if<const char*>(argument)) {
      result += *text ? *text : "";
    } else {
      result += std::to_string(std::get<int>(*argument));
    }
    ++argument;
  }
  return result;
}

const char* vq_lookup_string(const char* name) {
  return present(name) && message_sink ? message_sink->text_of(name) : nullptr;
}

const char* text_or_name(const char* name) {
  const char* text = vq_lookup_string(name);
  return present(text) ? text : name;
}

int error_show(const char* name) { return show(text_or_name(name)); }

int error_show_1s(const char* name, const char* a) { return show_filled(name, {a}); }

int error_show_2s(const char* name, const char* a, const char* b) { return show_filled(name, {a, b}); }

int vq_syntax_error(int line, const char* name) {
  const char* format = vq_lookup_string("syntax_error");
  const char* shown_name = present(name) ? name : "<unknown error>";
  const char* message = vq_lookup_string(shown_name);
  return show(
      filled(present(format) ? format : "Syntax error on line %d: %s", {line, present(message) ? message : shown_name})
          .c_str());
}

const char* system_errmsg() { return errno == 0 ? "" : std::strerror(errno); }

}  // namespace vqc
