#ifndef LIBKEL_MESSAGE_H
#define LIBKEL_MESSAGE_H

#include <initializer_list>
#include <string>
#include <variant>

namespace vqc {

/// Where messages go; neither function may be null. A batch run has no sink, and nothing is shown; the editor sets it
/// once its window exists.
struct MessageSink {
  /// The text of the message resource `name`; null or "" when there is none. The resource database owns it.
  const char* (*text_of)(const char* name);
  /// Shows `text` to the user.
  void (*show)(const char* text);
};
inline const MessageSink* message_sink = nullptr;

/// The text of the message resource `name`. Null when `name` is null or empty or there is no sink; "" when the
/// resource is missing. The result belongs to the resource database.
const char* vq_lookup_string(const char* name);

/// The same, or `name` itself when there is no text: what is shown says at least what was meant.
const char* text_or_name(const char* name);

/// What fills a place in a message: a text for %s (null counts as ""), a number for %d.
using MessageArgument = std::variant<const char*, int>;

/// `format` with its %s and %d replaced in order. The format comes from a resource file, so that anything else in it
/// stands for itself, and a place without an argument vanishes.
std::string filled(const char* format, std::initializer_list<MessageArgument> arguments);

/// Each of these shows a message and returns 1, or returns 0 when there is no sink. A message whose text is missing is
/// shown as its bare name, without its arguments. Null arguments count as "".
int error_show(const char* name);
int error_show_1s(const char* name, const char* a);
int error_show_2s(const char* name, const char* a, const char* b);

/// Shows the syntax error `name` on `line`, in the words of the resource file where it has them. A null or empty name
/// is shown as "<unknown error>".
int vq_syntax_error(int line, const char* name);

/// The C library's text for the current errno; "" when errno is 0.
const char* system_errmsg();

}  // namespace vqc

#endif
