// The window of versions. It opens at once; what differs from now is found while the user is idle, a version at a time.

#include "vqc/cmd/editors/versions_window.h"

#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/List.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/Separator.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "libkel/leafnm.h"
#include "libkel/message.h"
#include "libkel/output_files.h"
#include "libkel/source.h"
#include "vqc/cmd/editors/difference_words.h"
#include "vqc/cmd/editors/file_commands.h"
#include "vqc/cmd/editors/generated_paths.h"
#include "vqc/cmd/editors/kit/columns.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/local_time.h"
#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/shown_names.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/safety_net.h"

namespace vqc::editors {

namespace {

namespace fs = std::filesystem;

enum Slot { SHELL, FORM, PATH, LIST, TEXT, SHOW, RESTORE, SLOTS };

/// A file whose versions can be shown.
using Choice = std::optional<FileKind>;
constexpr Choice document_choice;  // none of those that are generated
constexpr Choice config_choice = CONFIG_FILE;
constexpr Choice code_choice = CODE_FILE;
constexpr Choice stubs_choice = STUBS_FILE;

const Callbacks on_version = {
    {{XmNbrowseSelectionCallback, versions_do_select}, {XmNdefaultActionCallback, versions_do_show}}};

// clang-format off
const WidgetRow frame_rows[] = {
    {"versions_dialog",    XmCreateDialogShell,  nullptr,              on_close(versions_do_hide), SHELL},
    {"versions_form",      create_form,          "versions_dialog",    on_help("vqc_versions"), FORM},
};

const WidgetRow rows[] = {
    {"versions_showb",     XmCreatePushButton,   "versions_form",      on_press(versions_do_show), SHOW},
    {"versions_restoreb",  XmCreatePushButton,   "versions_form",      on_press(versions_do_restore), RESTORE},
    {"versions_closeb",    XmCreatePushButton,   "versions_form",      on_press(versions_do_hide)},
    {"versions_helpb",     XmCreatePushButton,   "versions_form",      on_press(vqc_do_help, "vqc_versions")},
    {"versions_separator", XmCreateSeparator,    "versions_form"},

    {"versions_file_menu", XmCreatePulldownMenu, "versions_form"},
    {"versions_documentb", XmCreatePushButton,   "versions_file_menu", on_press(versions_do_choose_file, &document_choice)},
    {"versions_configb",   XmCreatePushButton,   "versions_file_menu", on_press(versions_do_choose_file, &config_choice)},
    {"versions_codeb",     XmCreatePushButton,   "versions_file_menu", on_press(versions_do_choose_file, &code_choice)},
    {"versions_stubsb",    XmCreatePushButton,   "versions_file_menu", on_press(versions_do_choose_file, &stubs_choice)},
    {"versions_file_opt",  XmCreateOptionMenu,   "versions_form"},
    {"versions_path",      XmCreateLabel,        "versions_form",      {}, PATH},
    {"versions_list",      XmCreateScrolledList, "versions_form",      on_version, LIST},
    {"versions_text",      create_diff_text,     "versions_form",      {}, TEXT},
};

const WidgetLink links[] = {
    {"versions_file_opt", XmNsubMenuId,     "versions_file_menu"},
    {"versions_form",     XmNdefaultButton, "versions_showb"},
    {"versions_form",     XmNcancelButton,  "versions_closeb"},
};
// clang-format on

/// The message for each Reason.
constexpr const char* reason_messages[] = {"kept_before_save", "kept_before_generation", "kept_crash",
                                           "kept_changed_outside", "kept_not_saved"};

/// What versions are compared with.
struct Now {
  std::shared_ptr<const State> document;  // null for a generated file
  fs::file_time_type written;             // of that

  bool operator==(const Now&) const = default;
};

/// What the window shows.
struct Shown {
  Choice choice;
  fs::path path;
  Now now;
  std::vector<Version> versions;
  std::vector<std::string> words;  // what differs, of the first of them
};
Shown shown;
bool waits_for_idleness = false;

Versions all_versions() { return Versions(versions_folder()); }

fs::path path_of(Choice choice) { return choice ? generated_path(*choice).value_or("") : save_file.value_or(""); }

Now now_of(Choice choice, const fs::path& path) {
  std::error_code absent;
  if (choice) return {nullptr, fs::last_write_time(path, absent)};
  return {capture(edited_document, shown.now.document), {}};
}

std::string text_in_file() {
  const auto source = Source::read_regular(shown.path.c_str());
  return source ? std::string(source->text()) : std::string();
}

/// A version of the document, as it is read.
struct KeptDocument {
  std::shared_ptr<const State> state;
  LoadResult result;
};

KeptDocument read_document(const Version& version, std::string_view text) {
  Document document;
  const LoadResult result = load_kept(text, version.reason, document);
  return {capture(document, nullptr), result};
}

/// What could not be read of it; empty for nothing.
std::string trouble_with(const LoadResult& result) {
  if (!result.has_header) return text_or_name("versions_no_document");
  return result.first_error ? filled(text_or_name("versions_incomplete"), {result.first_error->line}) : "";
}

std::string words_of_document(const Version& version, std::string_view text) {
  const auto [state, result] = read_document(version, text);
  const std::string trouble = trouble_with(result);
  return trouble.empty() ? in_numbers(count_differences(differences(*shown.now.document, *state))) : trouble;
}

/// In numbers, what differs from now in a version.
std::string words_of(const Version& version) {
  const auto text = all_versions().text(version);
  if (!text) return text_or_name("versions_gone");
  return shown.choice ? in_numbers(changed_lines(text_in_file(), *text)) : words_of_document(version, *text);
}

/// The same line by line.
TintedLines lines_of(const Version& version) {
  const auto text = all_versions().text(version);
  if (!text) return {};
  if (shown.choice) return changed_lines(text_in_file(), *text);
  return in_lines(field_differences(*shown.now.document, *read_document(version, *text).state));
}

std::string size_words(std::uintmax_t size) {
  constexpr std::uintmax_t kKilobyte = 1000;
  if (size < kKilobyte) return filled(text_or_name("versions_bytes"), {static_cast<int>(size)});
  return filled(text_or_name("versions_kilobytes"), {static_cast<int>((size + kKilobyte / 2) / kKilobyte)});
}

std::string reason_words(const char* message) { return displayable(text_or_name(message)); }

/// The columns that the longest of all reasons takes.
std::size_t reason_columns() {
  std::size_t columns = 0;
  for (const char* message : reason_messages) columns = std::max(columns, columns_of(reason_words(message)));
  return columns;
}

CompoundString row_of(const Version& version, const std::string& words) {
  constexpr std::size_t kSizeColumns = 12;
  const char* reason = reason_messages[static_cast<std::size_t>(version.reason)];
  const std::string row = local_time(version.time) + "  " + to_the_left(reason_words(reason), reason_columns()) +
                          to_the_right(size_words(version.size), kSizeColumns) + "  " + words;
  return CompoundString::of_lines(displayable(row).c_str(), "versions_row");
}

int selected_row() { return list_selected_place(versions_dialog[LIST]); }

const Version* selected_version() {
  const auto row = static_cast<std::size_t>(selected_row());
  return row >= 1 && row <= shown.versions.size() ? &shown.versions[row - 1] : nullptr;
}

void select_row(int row) {
  XmListSelectPos(versions_dialog[LIST], row, False);
  XtSetSensitive(versions_dialog[SHOW], selected_version() ? True : False);
  XtSetSensitive(versions_dialog[RESTORE], selected_version() ? True : False);
}

void replace_row(int row, const CompoundString& item) {
  const int selected = selected_row();
  XmString items[] = {item};
  XmListDeselectAllItems(versions_dialog[LIST]);  // replacing forgets what is selected, and never frees it
  XmListReplaceItemsPosUnselected(versions_dialog[LIST], items, 1, row);
  if (selected > 0) select_row(selected);
}

bool all_words_known() { return !versions_dialog || shown.words.size() == shown.versions.size(); }

void find_words(XtPointer, XtIntervalId*);

/// What the user does in the meantime comes first.
void find_words_when_idle() {
  constexpr unsigned long kMilliseconds = 10;
  if (waits_for_idleness || all_words_known()) return;
  waits_for_idleness = true;
  XtAppAddTimeOut(XtWidgetToApplicationContext(versions_dialog[FORM]), kMilliseconds, find_words, nullptr);
}

/// Finds what differs in the next version.
void find_words(XtPointer, XtIntervalId*) {
  waits_for_idleness = false;
  if (all_words_known()) return;
  const Version& version = shown.versions[shown.words.size()];
  shown.words.emplace_back();
  guarded([&] { shown.words.back() = words_of(version); });
  replace_row(static_cast<int>(shown.words.size()), row_of(version, shown.words.back()));
  find_words_when_idle();
}

std::string path_words(const Shown& file) {
  if (!file.path.empty()) return file.path;
  return text_or_name(file.choice ? "versions_no_file" : "versions_unnamed");
}

/// What there is to show of a file.
Shown look(Choice choice) {
  Shown found{choice, path_of(choice), {}, {}, {}};
  found.now = now_of(choice, found.path);
  const bool has_path = !choice || !found.path.empty();
  if (has_path) found.versions = all_versions().of(found.path);
  return found;
}

/// The row of a version; the first one where it is absent.
int place_of(const std::optional<Version>& version, const std::vector<Version>& versions) {
  const auto place = version ? std::ranges::find(versions, *version) : versions.end();
  return place == versions.end() ? 1 : static_cast<int>(place - versions.begin()) + 1;
}

/// What was selected stays so.
void show(Shown file) {
  const Version* version = selected_version();
  const int row = place_of(version ? std::optional(*version) : std::nullopt, file.versions);
  shown = std::move(file);
  XtVaSetValues(versions_dialog[PATH], XmNlabelString, CompoundString(displayable(path_words(shown)).c_str()).get(),
                nullptr);
  XmListDeleteAllItems(versions_dialog[LIST]);
  for (const Version& each : shown.versions) XmListAddItemUnselected(versions_dialog[LIST], row_of(each, ""), 0);
  show_lines(versions_dialog[TEXT], {});
  select_row(row);
  find_words_when_idle();
}

void restore_document(const Version& version, std::string_view text) {
  const auto [state, result] = read_document(version, text);
  if (!result.has_header) return say("versions_no_document");
  if (*state == *shown.now.document) return say("versions_same");
  keep_unsaved();
  restore_kept(text, version.reason);
  const std::string time = local_time(version.time);
  if (!result.first_error) return say("versions_restored", {time.c_str()});
  say("versions_restored_part", {time.c_str(), result.first_error->line});
}

/// Writes a version of a generated file.
void restore_file(const Version& version, std::string text) try {
  const OutputFile file[] = {{shown.path, std::move(text)}};
  if (!would_change(file[0])) return say("versions_same");
  keep_before(shown.path, Reason::before_generation);
  put_in_place(file);
  say("versions_restored_file", {leafnm(shown.path.c_str()), local_time(version.time).c_str()});
} catch (const std::system_error& error) {
  error_show_2s("file_open_fail", shown.path.c_str(), error.code().message().c_str());
}

}  // namespace

Widget* create_versions_dialog(Widget parent) {
  return build_dialog(parent, {part(frame_rows), status_line("versions_form"), part(rows, links)}, SLOTS);
}

void refresh_versions() {
  if (!versions_dialog || !XtIsManaged(versions_dialog[FORM])) return;
  Shown found = look(shown.choice);
  const bool is_same = found.path == shown.path && found.now == shown.now && found.versions == shown.versions;
  if (!is_same) show(std::move(found));
}

void versions_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (!ensure_dialog(versions_dialog, create_versions_dialog)) return;
  show(look(shown.choice));
  show_dialog(versions_dialog[FORM]);
  XmProcessTraversal(versions_dialog[LIST], XmTRAVERSE_CURRENT);
}

void versions_do_choose_file(Widget w, XtPointer choice, XtPointer) {
  const BusyCursor busy(w);
  show(look(*static_cast<const Choice*>(choice)));
}

void versions_do_select(Widget, XtPointer, XtPointer) { show_lines(versions_dialog[TEXT], {}); }

void versions_do_show(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  const Version* version = selected_version();
  if (!version) return;
  TintedLines lines = lines_of(*version);
  lines.insert(lines.begin(), {Tint::heading, words_of(*version)});
  show_lines(versions_dialog[TEXT], lines);
}

void versions_do_restore(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  const Version* version = selected_version();
  if (!version) return;
  auto text = all_versions().text(*version);
  if (!text) return say("versions_gone");
  shown.choice ? restore_file(*version, std::move(*text)) : restore_document(*version, *text);
}

void versions_do_hide(Widget, XtPointer, XtPointer) {
  hide_dialog(versions_dialog[FORM]);
  shown = {shown.choice, {}, {}, {}, {}};
}

}  // namespace vqc::editors
