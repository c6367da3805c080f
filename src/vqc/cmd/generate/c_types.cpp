// Reads the types in the head of a function, in the new style or the old one.

#include "vqc/cmd/generate/c_types.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <vector>

namespace vqc::c {

namespace {

using Tokens = std::span<const std::size_t>;
using Parts = std::vector<std::string_view>;

// Words of types. Any other word is a name or an attribute, unless there is no word of a type beside it.
constexpr std::string_view kTypeWords[] = {
    "void",   "char",     "short",   "int",   "long",      "float",     "double",      "signed",  "unsigned",
    "struct", "union",    "enum",    "const", "volatile",  "Widget",    "WidgetClass", "ArgList", "Arg",
    "String", "Cardinal", "Boolean", "Bool",  "XtPointer", "XWidget_p", "XWidget_t",
};

struct Alias {
  std::string_view written;
  std::string_view means;
};
constexpr Alias kAliases[] = {
    {"String", "char*"},          {"Arg*", "ArgList"},         {"unsigned", "Cardinal"},
    {"unsigned int", "Cardinal"}, {"XWidget_t*", "XWidget_p"},
};

bool is_type_word(std::string_view word) { return std::ranges::find(kTypeWords, word) != std::end(kTypeWords); }

/// Reads the type that some tokens state.
class TypeReader {
 public:
  TypeReader(const Code& code, Tokens tokens) : code_(code), rest_(tokens) {}

  std::string read() {
    while (!rest_.empty()) read_part();
    if (parts_.empty() && has_unknown_) return "?";
    drop_last_const();
    std::string type;
    for (const std::string_view part : parts_) {
      if (!type.empty() && part != "*" && type.back() != '*') type += ' ';
      type += part;
    }
    for (const Alias& alias : kAliases) {
      if (type == alias.written) return std::string(alias.means);
    }
    return type;
  }

 private:
  bool is_mark(std::size_t place, char mark) const { return place < rest_.size() && code_.is_mark(rest_[place], mark); }

  void read_part() {
    const std::string_view text = code_.of(rest_.front());
    if (code_.tokens[rest_.front()].kind != Kind::mark) {
      read_word(text);
    } else if (text == "[") {
      if (!is_mark(1, '[')) parts_.push_back("*");
      skip_to(']');
    } else if (text != "]") {
      parts_.push_back(text);
    }
    rest_ = rest_.subspan(1);
  }

  /// A word that is no type is left out, with what stands behind it in parentheses.
  void read_word(std::string_view word) {
    if (is_type_word(word)) return parts_.push_back(word);
    has_unknown_ = true;
    if (!is_mark(1, '(')) return;
    int depth = 0;
    do {
      rest_ = rest_.subspan(1);
      depth += is_mark(0, '(') ? 1 : is_mark(0, ')') ? -1 : 0;
    } while (depth > 0 && rest_.size() > 1);
  }

  void skip_to(char mark) {
    while (rest_.size() > 1 && !is_mark(0, mark)) rest_ = rest_.subspan(1);
  }

  /// A parameter that is constant itself is of the same type for those who call.
  void drop_last_const() {
    const auto behind_stars = std::ranges::find(parts_.rbegin(), parts_.rend(), "*").base();
    parts_.erase(std::remove(behind_stars, parts_.end(), "const"), parts_.end());
  }

  const Code& code_;
  Tokens rest_;
  Parts parts_;
  bool has_unknown_ = false;
};

std::string type_of(const Code& code, Tokens tokens) { return TypeReader(code, tokens).read(); }

/// The place of the first of these marks that is in no brackets, from `begin`; the size if there is none.
std::size_t find_mark(const Code& code, Tokens tokens, std::size_t begin, char mark) {
  int depth = 0;
  for (std::size_t i = begin; i < tokens.size(); ++i) {
    if (depth == 0 && code.is_mark(tokens[i], mark)) return i;
    if (code.is_mark(tokens[i], '(')) ++depth;
    if (code.is_mark(tokens[i], ')')) --depth;
  }
  return tokens.size();
}

/// The parts between marks.
std::vector<Tokens> split(const Code& code, Tokens tokens, char mark) {
  std::vector<Tokens> parts;
  for (std::size_t begin = 0; begin < tokens.size();) {
    const std::size_t end = find_mark(code, tokens, begin, mark);
    parts.push_back(tokens.subspan(begin, end - begin));
    begin = end + 1;
  }
  return parts;
}

/// Types by the names of parameters.
using Types = std::map<std::string_view, std::string>;

/// Where the declared name stands: the last word.
std::size_t name_in(const Code& code, Tokens declarator) {
  std::size_t place = declarator.size();
  while (place > 0 && code.tokens[declarator[place - 1]].kind != Kind::word) --place;
  return place == 0 ? declarator.size() : place - 1;
}

constexpr std::size_t kMostWords = 10;  // of what several declarators share: no type of C has more

/// Adds what a declaration as "Boolean *a, *b" says.
void read_declaration(const Code& code, Tokens declaration, Types& types) {
  std::vector<std::size_t> base;
  for (const Tokens declarator : split(code, declaration, ',')) {
    const std::size_t name = name_in(code, declarator);
    if (name == declarator.size()) continue;
    std::vector<std::size_t> tokens = base;
    for (const std::size_t token : declarator) {
      if (token != declarator[name]) tokens.push_back(token);
    }
    if (base.empty()) {
      std::ranges::copy_if(declarator.first(std::min(name, kMostWords)), std::back_inserter(base),
                           [&](std::size_t token) { return code.tokens[token].kind == Kind::word; });
    }
    types[code.of(declarator[name])] = type_of(code, tokens);
  }
}

/// The types of parameters that are declared behind the parentheses.
Types old_style_types(const Code& code, Tokens behind) {
  Types types;
  for (const Tokens declaration : split(code, behind, ';')) read_declaration(code, declaration, types);
  return types;
}

}  // namespace

std::string signature(const Code& code, std::span<const std::size_t> head, std::size_t name) {
  const auto place = static_cast<std::size_t>(std::ranges::find(head, name) - head.begin());
  if (place + 1 >= head.size() || !code.is_mark(head[place + 1], '(')) return "?";
  const std::size_t close = find_mark(code, head, place + 2, ')');
  if (close == head.size()) return "?";
  const auto types = old_style_types(code, head.subspan(close + 1));
  std::string text = type_of(code, head.first(place)) + "(";
  for (const Tokens parameter : split(code, head.subspan(place + 2, close - place - 2), ',')) {
    const auto declared = parameter.size() == 1 ? types.find(code.of(parameter.front())) : types.end();
    if (text.back() != '(') text += ',';
    text += declared != types.end() ? declared->second : type_of(code, parameter);
  }
  return text + ")";
}

}  // namespace vqc::c
