// Finds the functions in C, without compiling it.

#include "vqc/cmd/generate/c_outline.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "libkel/hash_set.h"

namespace vqc::c {

namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

enum class Opens : std::uint8_t { parenthesis, linkage, function, other };

/// A bracket that has been opened. Inside functions only braces count.
struct Bracket {
  std::size_t token;
  std::size_t outer;  // the one around it
  Opens opens;
};

/// Where the reading stands. Branches of a conditional all begin with a copy of the same.
struct State {
  std::size_t bracket = kNone;     // the innermost that is open
  std::size_t first = kNone;       // of the declaration
  std::size_t restart = kNone;     // where it begins if what stands before is a macro
  std::size_t previous = kNone;    // the last token outside brackets
  std::size_t name = kNone;        // the word before the parameters
  std::size_t parameters = kNone;  // the bracket that they stand in
  std::size_t mention = kNone;     // of a procedure
  bool has_value = false;          // an '=' has come
  bool has_members = false;        // struct, union or enum: a brace begins their list
  bool is_old_style = false;       // declarations of the parameters follow
};

/// A conditional that is being read.
struct Open {
  State before;
  State behind;
  bool has_behind = false;
  std::size_t code_before = 0;  // its present branch
  bool dead_before = false;
  bool aside_before = false;
};

constexpr std::string_view kNoNames[] = {
    "void",     "char",   "short",      "int",        "long",          "float",       "double",         "signed",
    "unsigned", "const",  "static",     "extern",     "__attribute__", "__attribute", "__asm__",        "__asm",
    "asm",      "typeof", "__typeof__", "__declspec", "_Alignas",      "alignas",     "_Static_assert",
};

class Outliner {
 public:
  Outliner(const Code& code, const Conditionals& conditionals, const Sought& sought)
      : code_(code), conditionals_(conditionals), sought_(sought) {}

  Outline find() {
    auto branch = conditionals_.branches.begin();
    auto border = sought_.borders.begin();
    for (std::size_t i = 0; i < code_.tokens.size(); ++i) {
      if (branch != conditionals_.branches.end() && branch->token == i) {
        read_branch(*branch++);
      } else if (border != sought_.borders.end() && *border == i) {
        ++border;
        has_dead_border_ = is_dead_;
        if (is_outside()) begin_declaration();
      } else if (is_code(code_.tokens[i])) {
        ++code_count_;
        if (!is_dead_) read(i);
      }
    }
    if (state_.bracket != kNone) fail(brackets_[state_.bracket].token, "this bracket is never closed");
    return std::move(found_);
  }

 private:
  bool is_in(Opens what) const { return state_.bracket != kNone && brackets_[state_.bracket].opens == what; }
  bool is_outside() const { return state_.bracket == kNone || is_in(Opens::linkage); }
  bool is_procedure(std::size_t token) const { return sought_.is_procedure(code_.of(token)); }

  void fail(std::size_t token, std::string_view words) {
    if (!found_.fault) found_.fault = {code_.tokens[token].begin, words};
  }

  // Conditionals.

  void read_branch(const Branch& branch) {
    if (branch.step == Step::begin) return begin_conditional(branch);
    Open& open = open_.back();
    const bool was_dead = is_dead_ && !open.dead_before;
    if (was_dead) found_.dead.back().last = branch.token;
    if (!was_dead && !open.has_behind && code_count_ > open.code_before) {
      open.behind = state_;
      open.has_behind = true;
    }
    is_dead_ = open.dead_before;
    state_ = open.before;
    if (branch.step == Step::end) {
      state_ = open.behind;
      is_aside_ = open.aside_before;
      open_.pop_back();
    } else {
      is_aside_ = open.aside_before || open.has_behind;
      open.code_before = code_count_;
    }
    if (was_dead && std::exchange(has_dead_border_, false) && is_outside()) begin_declaration();
  }

  void begin_conditional(const Branch& branch) {
    open_.push_back({.before = state_,
                     .behind = state_,
                     .code_before = code_count_,
                     .dead_before = is_dead_,
                     .aside_before = is_aside_});
    const bool never = conditionals_.all[branch.conditional].never;
    if (is_dead_ || !never || (sought_.is_awake && sought_.is_awake(branch.conditional))) return;
    is_dead_ = true;
    found_.dead.push_back({branch.token, branch.token});
  }

  // Tokens.

  void read(std::size_t i) {
    if (code_.tokens[i].kind != Kind::mark) return read_word(i);
    switch (code_.text[code_.tokens[i].begin]) {
      case '{':
        return open_brace(i);
      case '}':
        return close_brace(i);
      case '(':
        return open_parenthesis(i);
      case ')':
        return close_parenthesis(i);
      case ';':
        return end_declaration(i);
      case '=':
        state_.has_value = state_.has_value || is_outside();
        break;
      default:
        break;
    }
    if (is_outside()) go_past(i);
  }

  void go_past(std::size_t i) {
    if (state_.first == kNone) state_.first = i;
    state_.previous = i;
  }

  void read_word(std::size_t i) {
    const std::string_view word = code_.of(i);
    if (is_in(Opens::parenthesis)) parameter_of_[word] = state_.bracket;
    if (!is_outside()) return;
    if (begins_anew(i)) state_.restart = i;
    if (word == "struct" || word == "union" || word == "enum") state_.has_members = true;
    if (!state_.has_value && sought_.is_procedure(word)) state_.mention = i;
    if (is_parameter(word)) state_.is_old_style = true;
    go_past(i);
  }

  /// Whether what stands before a word is something else, as a macro that needs no semicolon.
  bool begins_anew(std::size_t i) const {
    if (state_.previous == kNone) return false;
    if (code_.is_mark(state_.previous, ';')) return true;
    while (code_.tokens[i].line_feeds < 2 && i > state_.previous + 1 && !is_code(code_.tokens[i - 1])) --i;
    return code_.tokens[i].line_feeds > 1;
  }

  bool is_parameter(std::string_view word) const {
    const auto found = parameter_of_.find(word);
    return state_.parameters != kNone && found != parameter_of_.end() && found->second == state_.parameters;
  }

  void begin_declaration() { state_ = {.bracket = state_.bracket}; }

  void end_declaration(std::size_t i) {
    if (!is_outside()) return;
    if (state_.is_old_style && !state_.has_value) {
      state_.has_members = false;
      return go_past(i);
    }
    if (state_.mention != kNone) found_.declarations.push_back({state_.mention, {state_.first, i}});
    begin_declaration();
  }

  void push(std::size_t i, Opens what) {
    brackets_.push_back({i, state_.bracket, what});
    state_.bracket = brackets_.size() - 1;
  }

  // Parentheses.

  void open_parenthesis(std::size_t i) {
    if (!is_outside() && !is_in(Opens::parenthesis)) return;
    if (is_outside() && may_be_name(state_.previous)) take_name(state_.previous);
    if (is_outside() && state_.first == kNone) state_.first = i;
    push(i, Opens::parenthesis);
  }

  void close_parenthesis(std::size_t i) {
    if (!is_in(Opens::parenthesis)) return;
    state_.bracket = brackets_[state_.bracket].outer;
    if (is_outside()) go_past(i);
  }

  bool is_no_name(std::size_t token) const {
    return std::ranges::find(kNoNames, code_.of(token)) != std::end(kNoNames);
  }

  bool may_be_name(std::size_t token) const {
    return token != kNone && !state_.has_value && code_.tokens[token].kind == Kind::word &&
           is_identifier(code_.of(token)) && !is_no_name(token);
  }

  /// The first word before parentheses is the name, unless a later one is that of a procedure.
  void take_name(std::size_t token) {
    const bool is_better = state_.name == kNone || (is_procedure(token) && !is_procedure(state_.name));
    if (!is_better) return;
    if (is_procedure(token) && state_.restart != kNone && state_.restart != token) state_.first = state_.restart;
    state_.name = token;
    state_.parameters = brackets_.size();
    state_.has_members = false;
    state_.is_old_style = false;
  }

  // Braces.

  void open_brace(std::size_t i) {
    const Opens what = is_outside() ? brace_opens() : Opens::other;
    if (is_outside() && state_.first == kNone) state_.first = i;
    push(i, what);
    if (what == Opens::linkage) begin_declaration();
  }

  Opens brace_opens() const {
    if (state_.previous != kNone && code_.tokens[state_.previous].kind == Kind::quoted &&
        code_.of(state_.first) == "extern") {
      return Opens::linkage;
    }
    if (state_.has_value || state_.has_members || state_.name == kNone) return Opens::other;
    return Opens::function;
  }

  void close_brace(std::size_t i) {
    while (is_in(Opens::parenthesis)) {
      if (!is_aside_) fail(brackets_[state_.bracket].token, "this bracket is never closed");
      state_.bracket = brackets_[state_.bracket].outer;
    }
    if (state_.bracket == kNone) {
      if (!is_aside_) fail(i, "no '{' stands before this");
      return;
    }
    const Bracket bracket = brackets_[state_.bracket];
    state_.bracket = bracket.outer;
    if (bracket.opens == Opens::function) add_function(i, bracket.token);
    if (bracket.opens == Opens::function || bracket.opens == Opens::linkage) return begin_declaration();
    if (is_outside()) go_past(i);
  }

  /// Adds a function, or finds one more end of it, in another branch.
  void add_function(std::size_t last, std::size_t body) {
    std::vector<Function>& functions = found_.functions;
    if (!functions.empty() && functions.back().body == body) {
      functions.back().tokens.last = last;
      return;
    }
    Function found{state_.name, body, {state_.first, last}, true};
    for (auto other = functions.rbegin(); other != functions.rend() && other->tokens.last >= state_.first; ++other) {
      found.is_apart = false;
      if (!std::exchange(other->is_apart, false)) break;  // those before it are known not to be apart
    }
    found.is_apart = found.is_apart && !may_have_macro_before();
    functions.push_back(found);
  }

  /// Whether a line before the name ends with parentheses that are no attribute's: they may be all of a macro.
  bool may_have_macro_before() const {
    int depth = 0;
    bool is_macro = false;
    for (std::size_t i = state_.first; i + 1 < state_.name; ++i) {
      if (code_.is_mark(i, '(') && depth++ == 0) is_macro = i == state_.first || !is_no_name(i - 1);
      if (!code_.is_mark(i, ')') || --depth > 0) continue;
      if (is_macro && code_.tokens[i + 1].line_feeds > 0) return true;
    }
    return false;
  }

  const Code& code_;
  const Conditionals& conditionals_;
  const Sought& sought_;
  Outline found_;
  State state_;
  std::vector<Open> open_;
  std::vector<Bracket> brackets_;
  struct Hash {
    std::size_t operator()(std::string_view word) const { return hash_of(word); }
  };
  std::unordered_map<std::string_view, std::size_t, Hash> parameter_of_;  // the parentheses that a word stood in last
  std::size_t code_count_ = 0;                                            // tokens so far, dead or not
  bool is_dead_ = false;                                                  // an "#if 0" leaves this out
  bool has_dead_border_ = false;  // and a border with it, which counts as it did before
  bool is_aside_ = false;         // another branch is the one that counts for what follows
};

}  // namespace

Outline outline(const Code& code, const Conditionals& conditionals, const Sought& sought) {
  return Outliner(code, conditionals, sought).find();
}

}  // namespace vqc::c
