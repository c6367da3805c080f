// Generates all files at once. The files are made before the user is asked, and again when he agrees: none is written
// that he has not seen.

#include "vqc/cmd/editors/generate_all.h"

#include <Xm/DialogS.h>
#include <Xm/List.h>
#include <Xm/PushB.h>
#include <Xm/Separator.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "libkel/leafnm.h"
#include "libkel/message.h"
#include "libkel/source.h"
#include "vqc/cmd/editors/difference_words.h"
#include "vqc/cmd/editors/gendlg.h"
#include "vqc/cmd/editors/generated_paths.h"
#include "vqc/cmd/editors/kit/columns.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/counts.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/diff_text.h"
#include "vqc/cmd/editors/kit/edited_document.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/shown_names.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/safety_net.h"
#include "vqc/cmd/generate/all_files.h"
#include "vqc/cmd/problems/find_problems.h"

namespace vqc::editors {

namespace {

enum Slot { SHELL, FORM, LIST, TEXT, GENERATE, SLOTS };

// clang-format off
const WidgetRow frame_rows[] = {
    {"genall_dialog",    XmCreateDialogShell,  nullptr,         on_close(genall_do_hide), SHELL},
    {"genall_form",      create_modal_form,    "genall_dialog", on_help("vqc_generate_all"), FORM},
};

const WidgetRow rows[] = {
    {"genall_generateb", XmCreatePushButton,   "genall_form",   on_press(genall_do_generate), GENERATE},
    {"genall_closeb",    XmCreatePushButton,   "genall_form",   on_press(genall_do_hide)},
    {"genall_helpb",     XmCreatePushButton,   "genall_form",   on_press(vqc_do_help, "vqc_generate_all")},
    {"genall_separator", XmCreateSeparator,    "genall_form"},
    {"genall_list",      XmCreateScrolledList, "genall_form",   on_select(genall_do_select), LIST},
    {"genall_text",      create_diff_text,     "genall_form",   {}, TEXT},
};

const WidgetLink links[] = {
    {"genall_form", XmNdefaultButton, "genall_generateb"},
    {"genall_form", XmNcancelButton,  "genall_closeb"},
};
// clang-format on

/// What would become of a file.
struct FilePlan {
  OutputFile file;
  std::optional<std::string> before;  // what it holds; nothing where there is no file
  TintedLines changes = {};
  std::string words = {};

  bool is_written() const { return before != file.text; }
};

/// What would be done.
struct Plan {
  std::vector<FilePlan> files;
  KeptStubs stubs;

  bool is_blocked() const { return !stubs.text; }
  bool writes() const { return !is_blocked() && std::ranges::any_of(files, &FilePlan::is_written); }
};

/// That the window shows.
Plan shown;

/// Where the files go; nothing, which is said, where they cannot go anywhere.
std::optional<OutputPaths> output_paths() {
  const auto config = generated_path(CONFIG_FILE);
  const auto code = generated_path(CODE_FILE);
  const auto stubs = generated_path(STUBS_FILE);
  if (!config || !code || !stubs) {
    say("genall_unnamed");
    return {};
  }
  const std::vector<std::string> sources = save_file ? std::vector{*save_file} : std::vector<std::string>();
  const auto clash = find_clash(sources, std::array{*config, *code, *stubs});
  if (!clash) return OutputPaths{*config, *code, stubs};
  say(clash->is_source ? "genall_is_document" : "genall_is_other", {clash->path.c_str()});
  return {};
}

/// Whether neither the document nor its file, which may not have been read whole, has an error; says so if one has.
bool is_right() {
  const std::filesystem::path path = save_file.value_or("");
  const Problems problems =
      find_problems({capture(edited_document, nullptr), path.parent_path(), Source::read_regular(path.c_str())});
  const auto errors = static_cast<int>(problems.count(Severity::error));
  if (errors > 0) say("genall_errors", {errors, problems.first.front().words.c_str()});
  return errors == 0;
}

/// What becomes of stubs, in numbers; empty where all stay.
std::string words_of_stubs(const KeptStubs& stubs) {
  const Count counts[] = {{stubs.new_stubs, "genall_adds", "genall_adds"},
                          {stubs.retired, "genall_retires", "genall_retires"},
                          {stubs.revived, "genall_revives", "genall_revives"}};
  return in_words(counts);
}

std::string words_of(const FilePlan& plan) {
  if (!plan.is_written()) return text_or_name("genall_unchanged");
  const std::string lines = in_numbers(plan.changes);
  return plan.before ? lines : filled(text_or_name("genall_new"), {lines.c_str()});
}

FilePlan plan_for(OutputFile file) {
  const auto source = Source::read_regular(file.path.c_str());
  FilePlan plan{std::move(file), source ? std::optional(std::string(source->text())) : std::nullopt};
  plan.changes = changed_lines(plan.before.value_or(""), plan.file.text);
  plan.words = words_of(plan);
  return plan;
}

/// What a person should know of his stubs file.
TintedLines lines_of(const std::vector<StubsMessage>& messages) {
  TintedLines lines;
  for (const StubsMessage& message : messages) {
    const auto number = static_cast<int>(message.line);
    lines.push_back({message.blocks ? Tint::removed : Tint::heading,
                     filled(text_or_name("genall_stubs_line"), {number, message.words.c_str()})});
  }
  return lines;
}

/// Adds to the plan for the stubs file what becomes of the stubs, or that it cannot be made.
void say_of_stubs(FilePlan& plan, const KeptStubs& stubs) {
  if (!stubs.text) plan.changes.clear();
  const TintedLines messages = lines_of(stubs.messages);
  plan.changes.insert(plan.changes.begin(), messages.begin(), messages.end());
  if (!stubs.text) {
    plan.words = text_or_name("genall_blocked");
  } else {
    std::string words = words_of_stubs(stubs);
    add_to_list(words, plan.words);
    plan.words = words;
  }
}

/// Nothing, which is said, where the files cannot be made.
std::optional<Plan> make_plan() try {
  const auto paths = output_paths();
  if (!paths || !is_right()) return {};
  GeneratedFiles made = generate_all(edited_document, all_families(edited_document), chosen_switches(), *paths);
  Plan plan{{}, std::move(made.stubs)};
  for (OutputFile& file : made.files) plan.files.push_back(plan_for(std::move(file)));
  say_of_stubs(plan.files.back(), plan.stubs);
  return plan;
} catch (const std::system_error& error) {
  say("genall_failed", {error.what()});
  return {};
}

int selected_row() { return list_selected_place(genall_dialog[LIST]); }

void show_selected() {
  const auto row = static_cast<std::size_t>(selected_row());
  if (row < 1 || row > shown.files.size()) return;
  const FilePlan& plan = shown.files[row - 1];
  TintedLines lines = {{Tint::heading, plan.file.path}};
  lines.insert(lines.end(), plan.changes.begin(), plan.changes.end());
  show_lines(genall_dialog[TEXT], lines);
}

CompoundString row_of(const FilePlan& plan, std::size_t name_columns) {
  const std::string name = displayable(leafnm(plan.file.path.c_str()));
  return CompoundString::of_lines((to_the_left(name, name_columns) + "  " + displayable(plan.words)).c_str(),
                                  "genall_row");
}

/// The first file of which there is something to see.
int first_of_interest() {
  const auto place = std::ranges::find_if(shown.files, [](const FilePlan& plan) { return !plan.changes.empty(); });
  return place == shown.files.end() ? 1 : static_cast<int>(place - shown.files.begin()) + 1;
}

void show(Plan plan) {
  shown = std::move(plan);
  std::size_t columns = 0;
  for (const FilePlan& each : shown.files) {
    columns = std::max(columns, columns_of(displayable(leafnm(each.file.path.c_str()))));
  }
  XmListDeleteAllItems(genall_dialog[LIST]);
  for (const FilePlan& each : shown.files) XmListAddItemUnselected(genall_dialog[LIST], row_of(each, columns), 0);
  XmListSelectPos(genall_dialog[LIST], first_of_interest(), False);
  show_selected();
  XtSetSensitive(genall_dialog[GENERATE], shown.writes() ? True : False);
}

/// Says what would be done, or why nothing can be.
void say_of(const Plan& plan) {
  if (plan.is_blocked()) return say("genall_blocked_so");
  say(plan.writes() ? "genall_look" : "genall_same");
}

bool is_as_shown(const Plan& plan) {
  const auto same = [](const FilePlan& a, const FilePlan& b) {
    return a.file.path == b.file.path && a.file.text == b.file.text && a.before == b.before;
  };
  return std::ranges::equal(plan.files, shown.files, same);
}

/// What has been written, in the order of the files.
std::string summary(const Plan& plan) {
  std::string words;
  for (const FilePlan& each : plan.files) {
    if (!each.is_written()) continue;
    const auto lines = static_cast<int>(std::ranges::count(each.file.text, '\n'));
    const char* name = leafnm(each.file.path.c_str());
    add_to_list(words, filled(text_or_name("genall_file"), {name, lines, changed_count(each.changes)}));
  }
  return filled(text_or_name("genall_wrote"), {words.c_str()});
}

void write(const Plan& plan) try {
  std::vector<OutputFile> files;
  for (const FilePlan& each : plan.files) {
    if (each.is_written()) keep_before(each.file.path, Reason::before_generation);
    files.push_back(each.file);
  }
  put_in_place(files);
  hide_dialog(genall_dialog[FORM]);
  say_text(summary(plan));
} catch (const std::system_error& error) {
  hide_dialog(genall_dialog[FORM]);  // first: a message could not be answered behind a modal dialog
  error_show_1s("genall_failed", error.what());
}

}  // namespace

Widget* create_genall_dialog(Widget parent) {
  return build_dialog(parent, {part(frame_rows), status_line("genall_form"), part(rows, links)}, SLOTS);
}

void genall_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  auto plan = make_plan();
  if (!plan || !ensure_dialog(genall_dialog, create_genall_dialog)) return;
  say_of(*plan);
  show(std::move(*plan));
  show_dialog(genall_dialog[FORM], Place::over);
  XmProcessTraversal(genall_dialog[LIST], XmTRAVERSE_CURRENT);
}

void genall_do_select(Widget, XtPointer, XtPointer) { show_selected(); }

void genall_do_generate(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  auto plan = make_plan();
  if (!plan) return hide_dialog(genall_dialog[FORM]);
  if (is_as_shown(*plan)) return write(*plan);
  show(std::move(*plan));
  say("genall_changed");
}

void genall_do_hide(Widget, XtPointer, XtPointer) {
  hide_dialog(genall_dialog[FORM]);
  shown = {};
}

}  // namespace vqc::editors
