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

  /// The first that does not end before a place, or null.
  const Thing* at(std::size_t place) {
    while (at_ != end_ && last_of_(*at_) < place) ++at_;
    return at_ == end_ ? nullptr : &*at_;
  }

 private:
  typename std::vector<Thing>::const_iterator at_;
  typename std::vector<Thing>::const_iterator end_;
  LastOf last_of_;
};

class UseFinder {
 public:
  UseFinder(const OldStubs& old, const FunctionsByName& functions, const std::vector<Range>& replaced)
      : old_(old), functions_(functions), replaced_(replaced) {}

  std::set<std::string_view> find() {
    for (const auto& [name, function] : functions_) note_provided(name, function.tokens);
    const std::vector<c::Function> all = all_functions();
    Cursor in_function(all, [](const c::Function& function) { return function.tokens.last; });
    Cursor in_dead(old_.outline.dead, [](const c::TokenRange& range) { return range.last; });
    Cursor in_declaration(old_.outline.declarations, [](const c::Declaration& found) { return found.name; });
    Cursor in_replaced(replaced_, [](const Range& range) { return range.end; });
    for (std::size_t i = 0; i < old_.code.tokens.size(); ++i) {
      const Range* replaced = in_replaced.at(old_.code.tokens[i].begin + 1);
      const c::TokenRange* dead = in_dead.at(i);
      const c::Declaration* declaration = in_declaration.at(i);
      const c::Function* function = in_function.at(i);
      if (replaced && replaced->begin <= old_.code.tokens[i].begin) continue;
      if ((dead && dead->holds(i)) || (declaration && declaration->name == i)) continue;
      const bool is_in_function = function && function->tokens.holds(i);
      read(i, is_in_function ? old_.code.of(function->name) : std::string_view());
    }
    return std::move(used_);
  }

 private:
  /// All functions of the file, some of them with the conditionals around them.
  std::vector<c::Function> all_functions() const {
    std::vector<c::Function> all = old_.outline.functions;
    for (c::Function& function : all) {
      const auto found = functions_.find(old_.code.of(function.name));
      if (found != functions_.end()) function = found->second;
    }
    return all;
  }

  std::vector<std::string_view> words_in(const c::Token& directive) const {
    std::vector<std::string_view> words;
    for (const c::Token& word : c::scan_directive(old_.code.text, directive)) words.push_back(old_.code.of(word));
    return words;
  }

  /// Notes what is not there without a function: itself, and the macros that are defined in it.
  void note_provided(std::string_view name, c::TokenRange function) {
    provider_.insert_or_assign(name, name);
    for (std::size_t i = function.first; i <= function.last; ++i) {
      if (old_.code.tokens[i].kind != c::Kind::directive) continue;
      const std::vector<std::string_view> words = words_in(old_.code.tokens[i]);
      if (words.size() > 1 && words[0] == "define") provider_.emplace(words[1], name);
    }
  }

  /// Reads a token that stands in a function of that name.
  void read(std::size_t i, std::string_view user) {
    const c::Token& token = old_.code.tokens[i];
    if (token.kind == c::Kind::word) add(user, old_.code.of(token));
    if (token.kind != c::Kind::directive) return;
    const std::vector<std::string_view> words = words_in(token);
    if (words.empty() || words[0].starts_with("include")) return;
    for (const std::string_view word : words) add(user, word);
  }

  void add(std::string_view user, std::string_view word) {
    const auto found = provider_.find(word);
    if (found == provider_.end() || found->second == user) return;
    const std::string_view name = found->second;
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
  const std::vector<Range>& replaced_;
  std::map<std::string_view, std::set<std::string_view>> uses_;  // of those not known to be used themselves
  std::map<std::string_view, std::string_view> provider_;        // by the names that they provide
  std::set<std::string_view> used_;
};

}  // namespace

std::set<std::string_view> used_functions(const OldStubs& old, const FunctionsByName& functions,
                                          const std::vector<Range>& replaced) {
  return UseFinder(old, functions, replaced).find();
}

}  // namespace vqc
