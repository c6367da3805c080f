#ifndef VQC_CMD_GENERATE_EMIT_H
#define VQC_CMD_GENERATE_EMIT_H

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "libkel/text.h"
#include "vqc/cmd/savefile/util.h"

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

}  // namespace emit_detail

// How values are put into a template. A text of the document passes through charout, which prints "%%" as "%"; the
// wrappers say where it is an argument of a formatted print instead, and comes out as it stands.

/// Through charout, or `fallback` when null.
struct Or {
  const Text& text;
  std::string_view fallback;
};
/// Through stringout: in double quotes. `fallback` when null.
struct Quoted {
  const Text& text;
  std::string_view fallback;
};
/// Through ptrout: as it stands, "0" when null.
struct Verbatim {
  const char* text;
};
/// Through ptrsfxout: as it stands, with a suffix; "0" when null.
struct Suffixed {
  const char* text;
  const char* suffix;
};

inline void put(Stream& out, const char* text) { charout(&out, text); }
/// A text of the program's own: it holds no per-cent sign.
inline void put(Stream& out, std::string_view text) { rawout(&out, text); }
inline void put(Stream& out, const std::string& text) { charout(&out, std::string_view(text)); }
inline void put(Stream& out, const Text& text) { charout(&out, text); }
inline void put(Stream& out, const void* pointer) = delete;
inline void put(Stream& out, bool flag) { boolout(&out, flag); }
inline void put(Stream& out, int number) { intout(&out, number); }
inline void put(Stream& out, const Or& value) { value.text ? put(out, value.text) : put(out, value.fallback); }
inline void put(Stream& out, const Verbatim& value) { ptrout(&out, value.text); }
inline void put(Stream& out, const Suffixed& value) { ptrsfxout(&out, value.text, value.suffix); }
inline void put(Stream& out, const Quoted& value) {
  if (!value.text) return put(out, value.fallback);
  rawout(&out, "\"");
  put(out, value.text);
  rawout(&out, "\"");
}

namespace emit_detail {

template <Template source, std::size_t i>
void put_literal(Stream& out) {
  constexpr Piece piece = pieces<source>[i];
  if constexpr (piece.size != 0) rawout(&out, std::string_view(source.text + piece.begin, piece.size));
}

template <Template source, std::size_t... i, class... Values>
void put_all(Stream& out, std::index_sequence<i...> /*places*/, const Values&... values) {
  put_literal<source, 0>(out);
  ((put(out, values), put_literal<source, 2 * i + 2>(out)), ...);
}

}  // namespace emit_detail

/// Emits a template with `values` in place of its names, in the order in which the names stand.
template <Template source, class... Values>
void emit(Stream& out, const Values&... values) {
  static_assert(source.count('@') == 2 * sizeof...(Values), "a value for each name");
  static_assert(source.count('%') == 0, "literal text is written as it stands");
  emit_detail::put_all<source>(out, std::index_sequence_for<Values...>{}, values...);
}

#endif
