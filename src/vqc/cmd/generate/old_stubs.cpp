// Understands an earlier stubs file: its marks, its functions and its retired stubs.

#include "vqc/cmd/generate/old_stubs.h"

#include <algorithm>

#include "libkel/keltype.h"
#include "vqc/cmd/generate/c_lines.h"
#include "vqc/cmd/generate/c_types.h"
#include "vqc/cmd/generate/generate.h"
#include "vqc/cmd/generate/includes.h"
#include "vqc/cmd/generate/parse_stubs.h"

namespace vqc {

namespace {

constexpr std::size_t kMostDefinitions = 20;  // of a procedure that are looked at: they may share a long head
constexpr std::string_view kReasonEnd = " */";

std::string reason_start() { return std::string("/* ").append(kProgramName).append(": the document no longer names "); }

/// The name in a line that says why; empty for any other comment.
std::string_view name_in_reason(std::string_view comment) {
  static const std::string start = reason_start();
  if (!comment.starts_with(start) || !comment.ends_with(kReasonEnd)) return {};
  comment.remove_prefix(start.size());
  comment.remove_suffix(std::min(kReasonEnd.size(), comment.size()));
  return c::is_identifier(comment) ? comment : std::string_view();
}

/// Visits the lines that a text has in a range.
template <class Visit>
void each_line(std::string_view text, std::size_t begin, std::size_t end, Visit visit) {
  while (begin < end) {
    const std::size_t line_end = std::min(text.find('\n', begin), end);
    visit(text.substr(begin, line_end - begin));
    begin = line_end + 1;
  }
}

std::string_view marked_in(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  return vqc_marked_stub(line);
}

class Reader {
 public:
  Reader(std::string_view text, Procedures& procedures) : old_{.code = c::scan(text)}, procedures_(procedures) {}

  OldStubs read() {
    note_marks();
    find_borders();
    old_.conditionals = c::find_conditionals(old_.code);
    old_.fault = old_.code.fault ? old_.code.fault : old_.conditionals.fault;
    if (old_.fault) return std::move(old_);
    find_retired();
    find_outline();
    if (!retired_.empty() && !old_.fault) revive();
    note_functions();
    return std::move(old_);
  }

 private:
  std::string_view text() const { return old_.code.text; }

  /// Marks count wherever they begin a line, as they do for those who only carry over what follows the prelude.
  void note_marks() {
    each_line(text(), 0, text().size(), [&](std::string_view line) {
      if (const std::string_view name = marked_in(line); !name.empty()) procedures_[std::string(name)].is_marked = true;
    });
  }

  void find_borders() {
    for (std::size_t i = 0; i < old_.code.tokens.size(); ++i) {
      const c::Token& token = old_.code.tokens[i];
      if (token.kind != c::Kind::comment) continue;
      bool has_mark = false;
      each_line(text(), token.begin, token.end, [&](std::string_view line) { has_mark |= !marked_in(line).empty(); });
      if (has_mark) sought_.borders.push_back(i);
    }
  }

  void find_outline() {
    sought_.is_procedure = [this](std::string_view word) {
      return c::is_identifier(word) && procedures_.find(word) != procedures_.end();
    };
    old_.outline = c::outline(old_.code, old_.conditionals, sought_);
    old_.fault = old_.outline.fault;
  }

  // Retired stubs.

  /// What stands in something that is left out itself cannot come back to life, and neither can what has such a thing
  /// in it: that would be alive then.
  void find_retired() {
    std::size_t left_out_up_to = 0;
    for (std::size_t i = 0; i < old_.conditionals.all.size(); ++i) {
      const c::Conditional& conditional = old_.conditionals.all[i];
      const std::string_view name = retired_in(conditional);
      if (conditional.tokens.first < left_out_up_to) {
        if (!name.empty() && has_retired_around(conditional.tokens.first)) retired_.pop_back();
        continue;
      }
      if (conditional.never && !conditional.has_further) left_out_up_to = conditional.tokens.last;
      if (!name.empty()) retired_.push_back({name, i, conditional.tokens});
    }
  }

  bool has_retired_around(std::size_t token) const { return !retired_.empty() && retired_.back().tokens.holds(token); }

  std::string_view retired_in(const c::Conditional& conditional) const {
    const auto [first, last] = conditional.tokens;
    if (!conditional.never || conditional.has_further || first + 1 == last) return {};
    if (old_.code.of(first) != "#if 0" || old_.code.of(last) != "#endif") return {};
    for (const std::size_t token : {first, first + 1, last}) {
      if (!c::is_line(old_.code, token)) return {};
    }
    if (old_.code.tokens[first + 1].line_feeds != 1) return {};
    return name_in_reason(old_.code.of(first + 1));
  }

  /// Brings retired stubs back to life whose procedures are named again, and those that they use.
  void revive() {
    std::map<std::string_view, const RetiredStub*> asleep;
    for (const RetiredStub& stub : retired_) {
      if (!asleep.emplace(stub.name, &stub).second) old_.retired_again.push_back(stub);
    }
    for (const RetiredStub& stub : old_.retired_again) asleep.erase(stub.name);
    for (const c::Function& function : old_.outline.functions) asleep.erase(old_.code.of(function.name));
    std::vector<const RetiredStub*> waking;
    const auto wake = [&](std::string_view name) {
      if (const auto stub = asleep.extract(name)) waking.push_back(stub.mapped());
    };
    for (const auto& [name, procedure] : procedures_) {
      if (procedure.is_named) wake(name);
    }
    while (!waking.empty()) {
      const RetiredStub& stub = *waking.back();
      waking.pop_back();
      old_.revived.push_back(stub);
      for (std::size_t token = stub.tokens.first; token <= stub.tokens.last; ++token) wake(old_.code.of(token));
    }
    if (!old_.revived.empty()) find_outline_of_revived();
    if (drop_those_in_functions()) find_outline_of_revived();
    if (drop_those_in_functions()) old_.revived.clear(), find_outline_of_revived();
  }

  void find_outline_of_revived() {
    std::set<std::size_t> awake;
    for (const RetiredStub& stub : old_.revived) awake.insert(stub.conditional);
    sought_.is_awake = [awake](std::size_t conditional) { return awake.contains(conditional); };
    find_outline();
  }

  /// Stubs that would come back to life as a part of something else are somebody's own. False when there is none.
  bool drop_those_in_functions() {
    const auto is_in_function = [&](std::size_t token) {
      const auto& functions = old_.outline.functions;
      const auto last = [](const c::Function& function) { return function.tokens.last; };
      const auto found = std::ranges::lower_bound(functions, token, {}, last);
      return found != functions.end() && found->tokens.holds(token);
    };
    return std::erase_if(old_.revived, [&](const RetiredStub& stub) {
             return is_in_function(stub.tokens.first) || is_in_function(stub.tokens.last);
           }) > 0;
  }

  void note_functions() {
    for (const c::Function& function : old_.outline.functions) {
      const auto found = procedures_.find(old_.code.of(function.name));
      if (found == procedures_.end() || found->second.functions.size() == kMostDefinitions) continue;
      found->second.functions.push_back(function);
    }
    for (const c::Declaration& declaration : old_.outline.declarations) {
      procedures_.find(old_.code.of(declaration.name))->second.declarations.push_back(declaration);
    }
  }

  OldStubs old_;
  Procedures& procedures_;
  c::Sought sought_;
  std::vector<RetiredStub> retired_;
};

void note(Procedures& procedures, const std::vector<Stub>& stubs) {
  for (const Stub& stub : stubs) procedures[name_in_mark(stub.name)].kinds.push_back(&stub.kind);
}

void note_named(Procedures& procedures, const std::vector<Stub>& stubs) {
  for (const Stub& stub : stubs) procedures[name_in_mark(stub.name)].is_named = true;
}

std::string head_types(const c::Code& code, const c::Conditionals& conditionals, c::TokenRange head, std::size_t name) {
  return c::signature(code, c::followed_tokens(code, conditionals, head), name);
}

}  // namespace

std::string name_in_mark(Text name) {
  if (c::is_identifier(name.view())) return std::string(name.view());
  StringSink mark;
  charout(mark, Text(std::string_view(vqc_stub_comment(name.view()))));
  mark.finish();
  return std::string(vqc_marked_stub(mark.text()));
}

Procedures procedures_of(const Document& document, std::span<const Family* const> families) {
  Procedures procedures;
  note(procedures, function_stubs(families));
  note(procedures, popup_stubs(document, families));
  const Families all = all_families(document);
  note_named(procedures, function_stubs(all));
  note_named(procedures, popup_stubs(document, all));
  for (const Family* family : all) {
    if (!family->family_init.empty()) procedures[name_in_mark(family->family_init)].is_named = true;
  }
  return procedures;
}

std::string retirement_reason(std::string_view name) { return reason_start().append(name).append(kReasonEnd); }

std::string OldStubs::types_of(const c::Function& function) const {
  return head_types(code, conditionals, {function.tokens.first, function.body - 1}, function.name);
}

std::string OldStubs::types_of(const c::Declaration& declaration) const {
  return head_types(code, conditionals, {declaration.tokens.first, declaration.tokens.last - 1}, declaration.name);
}

OldStubs read_old_stubs(std::string_view text, Procedures& procedures) { return Reader(text, procedures).read(); }

}  // namespace vqc
