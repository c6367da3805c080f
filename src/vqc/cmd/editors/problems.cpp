// Lists what is wrong with the document, goes there, and says what it means.

#include "vqc/cmd/editors/problems.h"

#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/List.h>
#include <Xm/PushB.h>
#include <Xm/Text.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "libkel/message.h"
#include "vqc/cmd/editors/document_check.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/counts.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/shown_names.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/show_spot.h"
#include "vqc/cmd/editors/spot_list.h"

namespace vqc::editors {

namespace {

enum Slot { SHELL, FORM, FOUND, LIST, TEXT, SLOTS };

// clang-format off
const WidgetRow frame_rows[] = {
    {"problems_dialog",   XmCreateDialogShell,  nullptr,           {}, SHELL},
    {"problems_form",     create_form,          "problems_dialog", on_help("vqc_problems"), FORM},
};

const WidgetRow rows[] = {
    {"problems_gob",      XmCreatePushButton,   "problems_form",   on_press(problems_do_go)},
    {"problems_explainb", XmCreatePushButton,   "problems_form",   on_press(problems_do_explain)},
    {"problems_closeb",   XmCreatePushButton,   "problems_form",   on_press(problems_do_hide)},
    {"problems_helpb",    XmCreatePushButton,   "problems_form",   on_press(vqc_do_help, "vqc_problems")},
    {"problems_text",     XmCreateScrolledText, "problems_form",   {}, TEXT},
    {"problems_found",    XmCreateLabel,        "problems_form",   {}, FOUND},
    {"problems_list",     XmCreateScrolledList, "problems_form",   on_select(do_on_click<problems_do_go>), LIST},
};

const WidgetLink links[] = {
    {"problems_form", XmNdefaultButton, "problems_gob"},
    {"problems_form", XmNcancelButton,  "problems_closeb"},
    {"problems_form", XmNinitialFocus,  "problems_list"},
};
// clang-format on

/// What the list shows; null before it shows anything.
std::shared_ptr<const Problems> shown;

Widget at(Slot slot) { return problems_dialog[slot]; }

struct SeverityWords {
  const char* name;
  const char* one;
  const char* several;
};
constexpr SeverityWords severities[] = {{"problem_error", "one_error", "many_errors"},
                                        {"problem_warning", "one_warning", "many_warnings"},
                                        {"problem_note", "one_note", "many_notes"}};

const char* severity_of(const Problem& problem) {
  return text_or_name(severities[static_cast<std::size_t>(kind_of(problem.id).severity)].name);
}

/// "Warning: the alias 'A' has no to_name (alias A)"
std::string row_of(const Problem& problem) {
  const char* severity = severity_of(problem);
  const char* words = problem.words.c_str();
  if (problem.spot) return filled(text_or_name("problem_at_spot"), {severity, words, spot_name(*problem.spot).c_str()});
  if (!problem.line) return filled(text_or_name("problem_anywhere"), {severity, words});
  auto [place, text] = *problem.line;
  std::ranges::replace(text, '\t', ' ');  // a list shows no tabs
  return filled(text_or_name("problem_at_line"),
                {severity, words, static_cast<int>(place.line), static_cast<int>(place.column), text.c_str()});
}

/// "1 error, 2 warnings"
std::string counts_of(const Problems& problems) {
  std::vector<Count> counts;
  for (std::size_t i = 0; i < problems.counts.size(); ++i) {
    counts.push_back({static_cast<int>(problems.counts[i]), severities[i].one, severities[i].several});
  }
  return in_words(counts);
}

std::string summary_of(const Problems& problems) {
  std::string counts = counts_of(problems);
  if (counts.empty()) return text_or_name("problems_none");
  if (problems.first.size() < Problems::kMost) return counts;
  return filled(text_or_name("problems_many"), {counts.c_str(), static_cast<int>(Problems::kMost)});
}

/// The problem that is selected; null for none.
const Problem* selected_problem() {
  const int place = shown ? selected_place(at(LIST)) : -1;
  return place < 0 ? nullptr : &shown->first[static_cast<std::size_t>(place)];
}

void select_again(const Problem& problem) {
  const auto again = std::ranges::find(shown->first, problem);
  if (again != shown->first.end()) list_select_place(at(LIST), static_cast<int>(again - shown->first.begin()) + 1);
}

void list_problems() {
  std::vector<std::string> names;
  for (const Problem& problem : shown->first) names.push_back(row_of(problem));
  list_show(at(LIST), names);
  XtVaSetValues(at(FOUND), XmNlabelString, CompoundString(summary_of(*shown).c_str()).get(), nullptr);
}

/// Brings the window up to date if it is up. What is selected stays so while it is there.
void show_problems() {
  if (!XtIsManaged(at(FORM)) || (shown && *shown == *problems_found())) return;
  const Problem* selected = selected_problem();
  const auto before = std::exchange(shown, problems_found());
  list_problems();
  if (selected) select_again(*selected);
}

/// All that there is to say about a problem.
std::string text_about(const Problem& problem) {
  std::string text = row_of(problem) + "\n";
  for (const std::string& note : problem.notes) text += note + "\n";
  return text + "\n" + explanation_of(kind_of(problem.id));
}

}  // namespace

Widget* create_problems_dialog(Widget parent) {
  return build_dialog(parent, {part(frame_rows), status_line("problems_form"), part(rows, links)}, SLOTS);
}

void problems_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (!ensure_dialog(problems_dialog, create_problems_dialog)) return;
  on_problems = show_problems;
  show_dialog(at(FORM));
  show_problems();
}

void problems_do_go(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  const Problem* problem = selected_problem();
  if (!problem) return say("problems_unselected");
  if (!problem->spot) return say("problem_without_spot");
  show_spot(*problem->spot);
}

void problems_do_explain(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  const Problem* problem = selected_problem();
  if (!problem) return say("problems_unselected");
  settext(at(TEXT), Name(text_about(*problem)));
  XmTextShowPosition(at(TEXT), 0);
}

void problems_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(at(FORM)); }

}  // namespace vqc::editors
