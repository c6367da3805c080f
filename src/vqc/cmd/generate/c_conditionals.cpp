// Finds what the preprocessor may leave out.

#include "vqc/cmd/generate/c_conditionals.h"

#include <algorithm>
#include <string_view>

namespace vqc::c {

namespace {

using Words = std::vector<std::string_view>;

/// The tokens of a directive as texts, without comments.
Words words_of(const Code& code, const Token& directive) {
  Words words;
  for (const Token& token : scan_directive(code.text, directive)) {
    if (token.kind != Kind::comment) words.push_back(code.of(token));
  }
  return words;
}

bool is_one_of(std::string_view word, std::initializer_list<std::string_view> words) {
  return std::ranges::find(words, word) != words.end();
}

/// What a directive is to its conditional; nothing for other directives.
std::optional<Step> step_of(const Words& words) {
  if (words.empty()) return {};
  if (is_one_of(words[0], {"if", "ifdef", "ifndef"})) return Step::begin;
  if (is_one_of(words[0], {"else", "elif", "elifdef", "elifndef"})) return Step::further;
  if (words[0] == "endif") return Step::end;
  return {};
}

class Finder {
 public:
  explicit Finder(const Code& code) : code_(code) {}

  Conditionals find() {
    for (std::size_t i = 0; i < code_.tokens.size() && !found_.fault; ++i) {
      if (code_.tokens[i].kind == Kind::directive) read(i);
    }
    if (!found_.fault && !open_.empty()) {
      fail(found_.all[open_.back()].tokens.first, "this conditional is never closed: it has no #endif");
    }
    return std::move(found_);
  }

 private:
  void fail(std::size_t token, std::string_view words) { found_.fault = {code_.tokens[token].begin, words}; }

  void read(std::size_t token) {
    const Words words = words_of(code_, code_.tokens[token]);
    const std::optional<Step> step = step_of(words);
    if (!step) return;
    if (*step == Step::begin) {
      open_.push_back(found_.all.size());
      found_.all.push_back({.tokens = {token, token}, .never = words == Words{"if", "0"}});
    } else if (open_.empty()) {
      return fail(token, "no #if stands before this");
    }
    Conditional& conditional = found_.all[open_.back()];
    conditional.tokens.last = token;
    conditional.has_further = conditional.has_further || *step == Step::further;
    found_.branches.push_back({token, *step, open_.back()});
    if (*step == Step::end) open_.pop_back();
  }

  const Code& code_;
  Conditionals found_;
  std::vector<std::size_t> open_;
};

/// Whether there are only comments and directives of conditionals in a range.
bool is_only_conditional(const Code& code, std::span<const Branch> branches, std::size_t first, std::size_t end) {
  for (std::size_t i = first; i < end; ++i) {
    while (!branches.empty() && branches.front().token < i) branches = branches.subspan(1);
    const bool is_branch = !branches.empty() && branches.front().token == i;
    if (code.tokens[i].kind != Kind::comment && !is_branch) return false;
  }
  return true;
}

}  // namespace

std::span<const Branch> Conditionals::branches_from(std::size_t token) const {
  const auto first = std::ranges::lower_bound(branches, token, {}, &Branch::token);
  return {first, branches.end()};
}

Conditionals find_conditionals(const Code& code) { return Finder(code).find(); }

std::vector<std::size_t> followed_tokens(const Code& code, const Conditionals& conditionals, TokenRange range) {
  std::vector<std::size_t> followed;
  std::span<const Branch> branches = conditionals.branches_from(range.first);
  std::size_t left_out = conditionals.all.size();  // a conditional that is being left out
  for (std::size_t i = range.first; i <= range.last; ++i) {
    if (!branches.empty() && branches.front().token == i) {
      const Branch branch = branches.front();
      branches = branches.subspan(1);
      const bool is_left_out = left_out != conditionals.all.size();
      if (is_left_out && branch.conditional != left_out) continue;
      const bool leaves = branch.step == Step::begin ? conditionals.all[branch.conditional].never
                                                     : branch.step == Step::further && !is_left_out;
      left_out = leaves ? branch.conditional : conditionals.all.size();
    } else if (left_out == conditionals.all.size() && is_code(code.tokens[i])) {
      followed.push_back(i);
    }
  }
  return followed;
}

std::optional<TokenRange> with_whole_conditionals(const Code& code, const Conditionals& conditionals,
                                                  TokenRange range) {
  TokenRange whole = range;
  for (const Branch& branch : conditionals.branches_from(range.first)) {
    if (branch.token > range.last) break;
    const TokenRange& tokens = conditionals.all[branch.conditional].tokens;
    whole = {std::min(whole.first, tokens.first), std::max(whole.last, tokens.last)};
  }
  const bool is_pure =
      is_only_conditional(code, conditionals.branches_from(whole.first), whole.first, range.first) &&
      is_only_conditional(code, conditionals.branches_from(range.last + 1), range.last + 1, whole.last + 1);
  return is_pure ? std::optional(whole) : std::nullopt;
}

}  // namespace vqc::c
