#ifndef VQC_CMD_GENERATE_EMIT_H
#define VQC_CMD_GENERATE_EMIT_H

#include <array>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <utility>

#include "libkel/text.h"
#include "vqc/cmd/savefile/util.h"

namespace vqc {

/// Text to emit, with @NAMES@ where values go. It is taken apart when the program is compiled.
template <std::size_t size>
struct Template {
  consteval Template(const char (&literal)[size]) {
    for (std::size_t i = 0; i < size; ++i) text[i] = literal[i];
  }

  consteval std::size_t count(char wanted) const {
    std::size_t found = 0;
    for (char c : text) found += c == wanted;
    return found;
  }

  char text[size];
};

// How values are put into a template. Numbers and flags are put as they are; of a text it is said where it comes from.

/// A text of the document as it is printed: "%%" is one per-cent sign. `otherwise` stands for null.
struct Printed {
  Text text;
  std::string_view otherwise;
};
inline Printed printed(Text text, std::string_view otherwise = {}) { return {text, otherwise}; }

/// The same in double quotes, without which `otherwise` stands for null.
struct Quoted {
  Text text;
  std::string_view otherwise;
};
inline Quoted quoted(Text text, std::string_view otherwise) { return {text, otherwise}; }

/// A text of the document as it stands, with something behind it; "0" for null.
struct Verbatim {
  Text text;
  std::string_view suffix;
};
inline Verbatim verbatim(Text text, std::string_view suffix = {}) { return {text, suffix}; }

/// A text of the program's own.
struct Ours {
  std::string_view text;
};
inline Ours ours(std::string_view text) { return {text}; }

inline void put(Sink& out, bool flag) { boolout(out, flag); }
inline void put(Sink& out, int number) { intout(out, number); }
inline void put(Sink& out, const Ours& value) { out.write(value.text); }
inline void put(Sink& out, const Verbatim& value) { ptrsfxout(out, value.text, value.suffix); }
inline void put(Sink& out, const Printed& value) { value.text ? charout(out, value.text) : out.write(value.otherwise); }
inline void put(Sink& out, const Quoted& value) {
  value.text ? stringout(out, value.text) : out.write(value.otherwise);
}

/// A value and the name in a template that it stands for.
template <Template value_name, class Value>
struct Bound {
  static constexpr Template kName = value_name;
  Value value;
};
template <Template name, class Value>
Bound<name, Value> bind(const Value& value) {
  return {value};
}

namespace emit_detail {

struct Piece {
  std::size_t begin;
  std::size_t size;
};

/// The pieces between the @ marks: literal text and names in turn.
template <Template source>
inline constexpr auto pieces = [] {
  static_assert(source.count('@') % 2 == 0, "an @ without its partner");
  std::array<Piece, source.count('@') + 1> result{};
  std::size_t piece = 0;
  for (std::size_t i = 0; source.text[i] != '\0'; ++i) {
    if (source.text[i] == '@') {
      result[++piece].begin = i + 1;
    } else {
      ++result[piece].size;
    }
  }
  return result;
}();

/// Whether a piece of a template is the name of a value.
template <Template source, class Value>
constexpr bool is_named(Piece piece) {
  if (piece.size != sizeof(Value::kName.text) - 1) return false;
  for (std::size_t i = 0; i < piece.size; ++i) {
    if (source.text[piece.begin + i] != Value::kName.text[i]) return false;
  }
  return true;
}

/// How often the name of a value stands in a template.
template <Template source, class Value>
constexpr std::size_t times_named = [] {
  std::size_t times = 0;
  for (std::size_t i = 1; i < pieces<source>.size(); i += 2) times += is_named<source, Value>(pieces<source>[i]);
  return times;
}();

/// How many values there are for the name that a piece is.
template <Template source, std::size_t i, class... Values>
constexpr std::size_t values_for = (std::size_t{0} + ... + is_named<source, Values>(pieces<source>[i]));

/// Which of the values is the first for it.
template <Template source, std::size_t i, class... Values>
constexpr std::size_t place_of = [] {
  std::size_t place = 0;
  (void)((!is_named<source, Values>(pieces<source>[i]) && ++place) && ...);
  return place;
}();

template <Template source, std::size_t i, class... Values>
void put_piece(Sink& out, const std::tuple<const Values&...>& values) {
  constexpr Piece piece = pieces<source>[i];
  if constexpr (i % 2 == 1) {
    static_assert(values_for<source, i, Values...> > 0, "a name of the template has no value");
    static_assert(values_for<source, i, Values...> < 2, "a name of the template has two values");
    put(out, std::get<place_of<source, i, Values...>>(values).value);
  } else if constexpr (piece.size != 0) {
    out.write({source.text + piece.begin, piece.size});
  }
}

}  // namespace emit_detail

/// Emits a template with each value in place of its name. Every name has one value, and every value a name.
template <Template source, class... Values>
void emit(Sink& out, const Values&... values) {
  using namespace emit_detail;
  static_assert(source.count('%') == 0, "literal text is written as it stands");
  static_assert(((times_named<source, Values> > 0) && ...), "the template does not have that name");
  [&]<std::size_t... i>(std::index_sequence<i...>) {
    (put_piece<source, i>(out, std::tuple<const Values&...>(values...)), ...);
  }
  (std::make_index_sequence<pieces<source>.size()>());
}

}  // namespace vqc

#endif
