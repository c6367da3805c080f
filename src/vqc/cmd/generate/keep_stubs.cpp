// Keeps what people have written in a stubs file when the document changes.

#include "vqc/cmd/generate/keep_stubs.h"

#include <algorithm>

#include "libkel/keltype.h"
#include "vqc/cmd/generate/c_lines.h"
#include "vqc/cmd/generate/c_types.h"
#include "vqc/cmd/generate/generate.h"
#include "vqc/cmd/generate/includes.h"
#include "vqc/cmd/generate/old_includes.h"
#include "vqc/cmd/generate/old_stubs.h"
#include "vqc/cmd/generate/parse_stubs.h"
#include "vqc/cmd/generate/stub_uses.h"
#include "vqc/cmd/generate/stubs_file.h"
#include "vqc/cmd/generate/text_edits.h"

namespace vqc {

namespace {

constexpr std::string_view kLeaveOut = "#if 0\n";
constexpr std::string_view kLeaveOutEnd = "#endif\n";

std::string head_of(const StubKind& kind, std::string_view name) {
  StringSink head;
  write_stub_head(head, kind, Text(name));
  head.finish();
  return head.text();
}

/// The body without the lines behind it.
std::string_view body_of(const StubKind& kind) { return kind.body.substr(0, kind.body.rfind('}') + 1); }

/// What the head of a kind states.
std::string types_of(const StubKind& kind) {
  const std::string head = head_of(kind, "f") + "{}";
  const c::Code code = c::scan(head);
  const c::Conditionals conditionals = c::find_conditionals(code);
  const c::Outline outline = c::outline(code, conditionals, {.is_procedure = [](std::string_view) { return false; }});
  const c::Function& function = outline.functions.front();
  return c::signature(code, c::followed_tokens(code, conditionals, {function.tokens.first, function.body - 1}),
                      function.name);
}

const std::map<const StubKind*, std::string>& types_of_kinds() {
  static const std::map<const StubKind*, std::string> types = [] {
    std::map<const StubKind*, std::string> found;
    for (const StubKind* kind : all_stub_kinds()) found.emplace(kind, types_of(*kind));
    return found;
  }();
  return types;
}

bool are_of_a_kind(std::string_view types) {
  return std::ranges::any_of(types_of_kinds(), [&](const auto& kind) { return kind.second == types; });
}

bool is_wanted(const Procedure& procedure, std::string_view types) {
  return std::ranges::any_of(procedure.kinds, [&](const StubKind* kind) { return types_of_kinds().at(kind) == types; });
}

/// Whether a declaration goes with a function of that kind. One without parameters says nothing about them.
bool agrees(std::string_view declared, const StubKind& kind) {
  const std::string& types = types_of_kinds().at(&kind);
  return declared == types || (declared.ends_with("()") && types.starts_with(declared.substr(0, declared.size() - 1)));
}

std::string without_carriage_returns(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.substr(i, 2) != "\r\n") result += text[i];
  }
  return result;
}

bool is_untouched_head(std::string_view text, std::string_view name) {
  const std::string head = without_carriage_returns(text);
  return std::ranges::any_of(all_stub_kinds(), [&](const StubKind* kind) { return head_of(*kind, name) == head; });
}

bool is_untouched_body(std::string_view text) {
  const std::string body = without_carriage_returns(text);
  return std::ranges::any_of(all_stub_kinds(), [&](const StubKind* kind) { return body_of(*kind) == body; });
}

/// Makes a new stubs file from an old one.
class Keeper {
 public:
  Keeper(const Document& document, std::span<const Family* const> families, Switches switches, std::string_view old)
      : document_(document),
        families_(families),
        switches_(switches),
        procedures_(procedures_of(document, families)),
        old_(read_old_stubs(old, procedures_)) {
    const std::size_t first = old.find('\n');
    if (first != std::string_view::npos && first > 0 && old[first - 1] == '\r') line_feed_ = "\r\n";
  }

  KeptStubs keep() {
    if (old_.fault) {
      block(old_.fault->offset, std::string(old_.fault->words));
    } else {
      for (const RetiredStub& stub : old_.revived) revive(stub);
      for (const RetiredStub& stub : old_.retired_again) check_retired(stub);
      for (auto& [name, procedure] : procedures_) keep(name, procedure);
      retire_unnamed();
      add_includes();
    }
    if (!blocked_ && !edits_.are_apart()) block(0, "what has to change in this file cannot be told apart");
    if (!blocked_) kept_.text = with_new_stubs(edits_.made_in(old_.text()));
    finish_messages();
    return std::move(kept_);
  }

 private:
  // Messages.

  void say(std::size_t offset, std::string words, bool blocks) { found_.push_back({offset, std::move(words), blocks}); }
  void warn(const c::Function& function, std::string words) {
    say(old_.code.tokens[function.name].begin, std::move(words), false);
  }
  void block(std::size_t offset, std::string words) {
    blocked_ = true;
    say(offset, std::move(words), true);
  }
  void block(const c::Function& function, std::string words) {
    block(old_.code.tokens[function.name].begin, std::move(words));
  }

  void finish_messages() {
    std::ranges::stable_sort(found_, {}, &Found::offset);
    std::size_t line = 1;
    std::size_t at = 0;
    for (Found& found : found_) {
      line += static_cast<std::size_t>(std::ranges::count(old_.text().substr(at, found.offset - at), '\n'));
      at = found.offset;
      kept_.messages.push_back({line, std::move(found.words), found.blocks});
    }
  }

  /// A text of ours with the line ends of the file.
  std::string in_lines(std::string_view text) const {
    std::string result;
    for (char c : text) c == '\n' ? result += line_feed_ : result += c;
    return result;
  }

  /// What has to follow a text before a line can begin.
  std::string end_of_line(std::string_view text) const {
    if (c::begins_line(text, text.size())) return "";
    return c::is_continued(text, text.size()) ? line_feed_ + line_feed_ : line_feed_;
  }

  // Procedures that the families name.

  void keep(std::string_view name, Procedure& procedure) {
    if (procedure.kinds.empty()) return;
    if (procedure.functions.empty()) {
      if (!procedure.is_marked) check_declarations(name, procedure);
    } else if (procedure.functions.size() > 1) {
      ++kept_.bodies_kept;
      for (const c::Function& function : procedure.functions) keep_one_of_several(name, procedure, function);
    } else {
      ++kept_.bodies_kept;
      keep_function(name, procedure, procedure.functions.front());
    }
  }

  /// False when the types of a function may stay.
  bool has_to_change(std::string_view name, const Procedure& procedure, const c::Function& function) {
    const std::string types = old_.types_of(function);
    if (is_wanted(procedure, types)) return false;
    if (are_of_a_kind(types)) return true;
    warn(function,
         quoted_name(name) + " has types that no stub has, and keeps them" + asked_for(*procedure.kinds.front()));
    return false;
  }

  void keep_one_of_several(std::string_view name, const Procedure& procedure, const c::Function& function) {
    if (!has_to_change(name, procedure, function)) return;
    block(function, quoted_name(name) + " is defined more than once, and has to get other types" +
                        asked_for(*procedure.kinds.front()));
  }

  void keep_function(std::string_view name, const Procedure& procedure, const c::Function& function) {
    if (!has_to_change(name, procedure, function)) return;
    const StubKind& kind = *procedure.kinds.front();
    if (!procedure.is_marked) {
      block(function, quoted_name(name) + " has to get other types, but has lost the mark of what was generated" +
                          asked_for(kind));
    } else if (check_declarations(name, procedure)) {
      change_prototype(name, kind, function);
    }
  }

  /// Whether all that declares a procedure goes with its kind; what does not blocks.
  bool check_declarations(std::string_view name, const Procedure& procedure) {
    bool agree = true;
    for (const c::Declaration& declaration : procedure.declarations) {
      if (agrees(old_.types_of(declaration), *procedure.kinds.front())) continue;
      agree = false;
      block(old_.code.tokens[declaration.name].begin,
            quoted_name(name) + " is declared here in another way" + asked_for(*procedure.kinds.front()));
    }
    return agree;
  }

  /// Where the line of a head begins that can be taken away without anything else.
  std::optional<std::size_t> head_begin(const c::Function& function) const {
    const auto with_conditionals = [&](std::size_t last) {
      return c::with_whole_conditionals(old_.code, old_.conditionals, {function.tokens.first, last});
    };
    const auto head = with_conditionals(function.body - 1);
    const auto whole = with_conditionals(function.tokens.last);
    if (!function.is_apart || !head || !whole || head->last >= function.body || head->first != whole->first) return {};
    return c::line_begin(old_.code, head->first);
  }

  void change_prototype(std::string_view name, const StubKind& kind, const c::Function& function) {
    if (const std::optional<std::size_t> begin = head_begin(function)) {
      replace_head(*begin, name, kind, function);
      replace_body(name, kind, function);
    } else {
      warn(function, quoted_name(name) +
                         " keeps its types, since its head shares lines or conditionals with other code" +
                         asked_for(kind));
    }
  }

  /// Replaces a head up to the brace, or to the line of the brace. One that somebody has edited is left out instead,
  /// with all of its lines.
  void replace_head(std::size_t begin, std::string_view name, const StubKind& kind, const c::Function& function) {
    const std::size_t brace = old_.code.tokens[function.body].begin;
    const std::size_t behind_text = old_.text().find_last_not_of(" \t", brace - 1) + 1;
    const bool shares_line = old_.text()[behind_text - 1] != '\n';
    const std::size_t end = shares_line ? brace : behind_text;
    const std::size_t lines_end = shares_line ? c::line_end(old_.code, function.body) : end;
    const std::string_view head = old_.text().substr(begin, lines_end - begin);
    edits_.replace({begin, end}, (is_untouched_head(head, name) ? "" : left_out(head)) + in_lines(head_of(kind, name)));
  }

  std::string left_out(std::string_view lines) const {
    return in_lines(kLeaveOut) + std::string(lines) + end_of_line(lines) + in_lines(kLeaveOutEnd);
  }

  /// Replaces a body that nobody has touched.
  void replace_body(std::string_view name, const StubKind& kind, const c::Function& function) {
    const Range range{old_.code.tokens[function.body].begin, old_.code.tokens[function.tokens.last].end};
    const bool is_untouched = is_untouched_body(old_.text().substr(range.begin, range.end - range.begin));
    if (is_untouched) {
      edits_.replace(range, in_lines(body_of(kind)));
      --kept_.bodies_kept;
    }
    warn(function, quoted_name(name) + " gets other types: " + types_of_kinds().at(&kind) +
                       (is_untouched ? "" : "; its body is the old one, and may have to follow"));
  }

  static std::string asked_for(const StubKind& kind) { return "; the document asks for " + types_of_kinds().at(&kind); }

  static std::string quoted_name(std::string_view name) { return "'" + std::string(name) + "'"; }

  // Procedures that no family names any more.

  void retire_unnamed() {
    const FunctionsByName leaving = leaving_functions();
    const std::set<std::string_view> used = used_functions(old_, leaving, edits_.replaced());
    for (const auto& [name, function] : leaving) {
      if (used.contains(name)) {
        warn(function, no_longer_named(name) + "stays since other code of the file uses it");
      } else {
        retire(name, *lines_of(function));
      }
    }
  }

  /// The functions that can be retired, each with lines for itself.
  FunctionsByName leaving_functions() {
    FunctionsByName leaving;
    for (const auto& [name, procedure] : procedures_) {
      if (procedure.is_named || !procedure.is_marked || procedure.functions.empty()) continue;
      const c::Function& function = procedure.functions.front();
      if (procedure.functions.size() > 1) {
        block(function, no_longer_named(name) + "is defined more than once: remove it, or its mark");
      } else if (!lines_of(function)) {
        warn(function, no_longer_named(name) + "stays since it shares lines or conditionals with other code");
      } else {
        leaving.emplace(name, with_conditionals(function));
      }
    }
    return leaving;
  }

  /// A function that has conditionals for itself, with all of these.
  c::Function with_conditionals(c::Function function) const {
    function.tokens = *c::with_whole_conditionals(old_.code, old_.conditionals, function.tokens);
    return function;
  }

  static std::string no_longer_named(std::string_view name) {
    return "the document no longer names " + quoted_name(name) + ", which ";
  }

  /// The lines that a function has for itself.
  std::optional<Range> lines_of(const c::Function& function) const {
    const auto tokens = c::with_whole_conditionals(old_.code, old_.conditionals, function.tokens);
    if (!function.is_apart || !tokens || !c::ends_line(old_.code, tokens->last)) return {};
    const std::optional<std::size_t> begin = c::line_begin(old_.code, tokens->first);
    return begin ? std::optional(Range{*begin, c::line_end(old_.code, tokens->last)}) : std::nullopt;
  }

  void retire(std::string_view name, Range lines) {
    ++kept_.retired;
    edits_.insert(lines.begin, in_lines(std::string(kLeaveOut) + retirement_reason(name) + "\n"),
                  TextEdits::Order::opening);
    const std::string end = end_of_line(old_.text().substr(0, lines.end));
    edits_.insert(lines.end, end.empty() ? in_lines(kLeaveOutEnd) : end + "#endif", TextEdits::Order::closing);
  }

  void check_retired(const RetiredStub& stub) {
    const auto found = procedures_.find(stub.name);
    if (found == procedures_.end() || !found->second.is_named || !found->second.functions.empty()) return;
    block(old_.code.tokens[stub.tokens.first].begin,
          quoted_name(stub.name) + " is named again, but has been retired more than once: remove all but one");
  }

  /// Takes away what retire() has put there.
  void revive(const RetiredStub& stub) {
    ++kept_.revived;
    const auto [first, last] = stub.tokens;
    edits_.replace({old_.code.tokens[first].begin, c::line_end(old_.code, first + 1)}, "");
    Range end{old_.code.tokens[last].begin, c::line_end(old_.code, last)};
    if (!old_.text().substr(0, end.end).ends_with('\n')) {
      --end.begin;
      if (old_.text()[end.begin - 1] == '\r') --end.begin;
    }
    edits_.replace(end, "", TextEdits::Order::closing);
  }

  // The rest of the file.

  void add_includes() {
    const std::string lines = in_lines(missing_includes(document_, families_, old_));
    if (lines.empty()) return;
    const std::size_t place = place_for_includes(old_);
    edits_.insert(place, end_of_line(old_.text().substr(0, place)) + lines, TextEdits::Order::closing);
  }

  /// Adds the stubs that the file has not, behind an empty line.
  std::string with_new_stubs(std::string text) {
    StringSink stubs;
    Run run{document_, families_, switches_, stubs};
    for (const auto& list : {function_stubs(families_), popup_stubs(document_, families_)}) {
      for (const Stub& stub : list) {
        if (has_stub(stub.name)) {
          run.kept_stubs.add(stub.name);
        } else {
          ++kept_.new_stubs;
        }
      }
    }
    write_stub_functions(run);
    write_popup_functions(run);
    stubs.finish();
    if (stubs.text().empty()) return text;
    if (!text.empty()) end_with_empty_line(text);
    return text += in_lines(stubs.text());
  }

  void end_with_empty_line(std::string& text) const {
    if (!text.ends_with('\n')) text += line_feed_;
    const std::string_view end = std::string_view(text).substr(text.size() - std::min<std::size_t>(text.size(), 4));
    if (!without_carriage_returns(end).ends_with("\n\n")) text += line_feed_;
  }

  bool has_stub(Text name) const {
    const Procedure& procedure = procedures_.find(name_in_mark(name))->second;
    return procedure.is_marked || !procedure.functions.empty() || name_in_mark(name).empty();
  }

  struct Found {
    std::size_t offset;
    std::string words;
    bool blocks;
  };

  const Document& document_;
  std::span<const Family* const> families_;
  Switches switches_;
  Procedures procedures_;
  OldStubs old_;
  std::string line_feed_ = "\n";
  TextEdits edits_;
  std::vector<Found> found_;
  bool blocked_ = false;
  KeptStubs kept_;
};

std::string fresh_stubs(const Document& document, std::span<const Family* const> families, Switches switches) {
  StringSink fresh;
  generate(document, families, STUBS_FILE, switches, fresh);
  fresh.finish();
  return fresh.text();
}

}  // namespace

KeptStubs keep_stubs(const Document& document, std::span<const Family* const> families, Switches switches,
                     std::string_view old) {
  const bool is_blank = std::ranges::all_of(old, [](char c) { return kel_is(c, KEL_SPACE); });
  std::string fresh = fresh_stubs(document, families, switches);
  if (!is_blank && old != fresh) return Keeper(document, families, switches, old).keep();
  const auto count = static_cast<int>(function_stubs(families).size() + popup_stubs(document, families).size());
  KeptStubs kept{.text = std::move(fresh), .messages = {}};
  (is_blank ? kept.new_stubs : kept.bodies_kept) = count;
  return kept;
}

}  // namespace vqc
