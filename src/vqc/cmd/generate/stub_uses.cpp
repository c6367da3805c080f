// Finds who uses which function.

#include "vqc/cmd/generate/stub_uses.h"

#include <algorithm>

namespace vqc {

namespace {

/// A sequence of things that are asked for in their order.
template <class Thing, class LastOf>
class Cursor {
 public:
  Cursor(const std::vector<Thing>& things, LastOf last_of)
      : at_(things.begin()), end_(things.end()), last_of_(last_of) {}

  /// The first that does not end before a token, or null.
  const Thing* at(std::size_t token) {
    while (at_ != end_ && last_of_(*at_) < token) ++at_;
    return at_ == end_ ? nullptr : &*at_;
  }

 private:
  std::vector<Thing>::const_iterator at_;
  std::vector<Thing>::const_iterator end_;
  LastOf last_of_;
};

class UseFinder {
 public:
  UseFinder(const OldStubs& old, const FunctionsByName& functions) : old_(old), functions_(functions) {}

  std::set<std::string_view> find() {
    Cursor in_function(old_.outline.functions, [](const c::Function& function) { return function.tokens.last; });
    Cursor in_dead(old_.outline.dead, [](const c::TokenRange& range) { return range.last; });
    Cursor in_declaration(old_.outline.declarations, [](const c::Declaration& found) { return found.name; });
    for (std::size_t i = 0; i < old_.code.tokens.size(); ++i) {
      const c::TokenRange* dead = in_dead.at(i);
      const c::Declaration* declaration = in_declaration.at(i);
      const c::Function* function = in_function.at(i);
      if ((dead && dead->holds(i)) || (declaration && declaration->name == i)) continue;
      const bool is_in_function = function && function->tokens.holds(i);
      read(i, is_in_function ? old_.code.of(function->name) : std::string_view());
    }
    return std::move(used_);
  }

 private:
  /// Reads a token that stands in a function of that name.
  void read(std::size_t i, std::string_view user) {
    const c::Token& token = old_.code.tokens[i];
    if (token.kind == c::Kind::word) add(user, old_.code.of(token));
    if (token.kind != c::Kind::directive) return;
    const std::vector<c::Token> words = c::scan_directive(old_.code.text, token);
    if (words.empty() || old_.code.of(words.front()).starts_with("include")) return;
    for (const c::Token& word : words) add({}, old_.code.of(word));  // a macro may be used anywhere
  }

  void add(std::string_view user, std::string_view name) {
    if (user == name || !functions_.contains(name)) return;
    if (functions_.contains(user) && !used_.contains(user)) {
      uses_[user].insert(name);
    } else {
      mark_used(name);
    }
  }

  /// Notes that a function is used, and with it those that it uses.
  void mark_used(std::string_view name) {
    std::vector<std::string_view> found{name};
    while (!found.empty()) {
      const std::string_view next = found.back();
      found.pop_back();
      if (!used_.insert(next).second) continue;
      found.insert(found.end(), uses_[next].begin(), uses_[next].end());
    }
  }

  const OldStubs& old_;
  const FunctionsByName& functions_;
  std::map<std::string_view, std::set<std::string_view>> uses_;  // of those not known to be used themselves
  std::set<std::string_view> used_;
};

}  // namespace

std::set<std::string_view> used_functions(const OldStubs& old, const FunctionsByName& functions) {
  return UseFinder(old, functions).find();
}

}  // namespace vqc
