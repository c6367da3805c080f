// The headers that an earlier stubs file includes, and those that it has to include now.

#include "vqc/cmd/generate/old_includes.h"

#include "vqc/cmd/generate/c_lines.h"
#include "vqc/cmd/generate/includes.h"
#include "vqc/cmd/generate/parse_stubs.h"

namespace vqc {

namespace {

/// The name that a directive includes; empty for any other directive.
std::string_view included_by(std::string_view directive) {
  constexpr std::string_view kBlanks = " \t";
  const auto skip_blanks = [&] {
    directive.remove_prefix(std::min(directive.find_first_not_of(kBlanks), directive.size()));
  };
  directive.remove_prefix(1);
  skip_blanks();
  constexpr std::string_view kInclude = "include";
  if (!directive.starts_with(kInclude)) return {};
  directive.remove_prefix(kInclude.size());
  skip_blanks();
  if (!directive.starts_with('<') && !directive.starts_with('"')) return {};
  const char close = directive.front() == '<' ? '>' : '"';
  directive.remove_prefix(1);
  return directive.substr(0, std::min(directive.find(close), directive.size()));
}

std::string code_includes(const Document& document, std::span<const Family* const> families) {
  StringSink includes;
  Run run{document, families, {}, includes};
  write_code_includes(run);
  includes.finish();
  return includes.text();
}

bool is_prelude_end(const OldStubs& old, std::size_t token) {
  const c::Token& comment = old.code.tokens[token];
  return comment.kind == c::Kind::comment && vqc_is_prelude_end(old.code.of(comment)) &&
         c::line_begin(old.code, token) == comment.begin;
}

}  // namespace

std::string missing_includes(const Document& document, std::span<const Family* const> families, const OldStubs& old) {
  std::set<std::string_view> known;
  for (const c::Token& token : old.code.tokens) {
    if (token.kind == c::Kind::directive) known.insert(included_by(old.code.of(token)));
  }
  const std::string all = code_includes(document, families);
  std::string missing;
  // What every stubs file includes is no header of a family.
  for (std::size_t begin = code_includes(document, {}).size(); begin < all.size();) {
    const std::size_t end = all.find('\n', begin) + 1;
    const std::string_view line = std::string_view(all).substr(begin, end - begin);
    const std::string_view name = included_by(line);
    if (line == "#include <" + std::string(name) + ">\n" && known.insert(name).second) missing += line;
    begin = end;
  }
  return missing;
}

std::size_t place_for_includes(const OldStubs& old) {
  std::size_t place = 0;
  std::size_t depth = 0;
  auto branch = old.conditionals.branches.begin();
  for (std::size_t i = 0; i < old.code.tokens.size(); ++i) {
    const c::Token& token = old.code.tokens[i];
    if (token.kind != c::Kind::comment && token.kind != c::Kind::directive) break;
    if (branch != old.conditionals.branches.end() && branch->token == i) {
      depth += branch->step == c::Step::begin ? 1 : 0;
      depth -= branch->step == c::Step::end ? 1 : 0;
      ++branch;
    } else if (token.kind == c::Kind::directive && depth == 0 && !included_by(old.code.of(token)).empty()) {
      place = c::line_end(old.code, i);
    } else if (is_prelude_end(old, i)) {
      return place == 0 ? token.begin : place;
    }
  }
  return place;
}

}  // namespace vqc
