// Keeps what would otherwise be gone: earlier contents of files, and the state of the session.

#include "vqc/cmd/editors/safety_net.h"

#include <chrono>
#include <string>
#include <system_error>
#include <utility>

#include "libkel/message.h"
#include "libkel/state_folder.h"
#include "vqc/cmd/editors/kit/edited_document.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/history/journal_writer.h"
#include "vqc/cmd/history/recent_documents.h"
#include "vqc/cmd/savefile/load.h"
#include "vqc/cmd/savefile/save.h"

namespace vqc::editors {

namespace {

namespace fs = std::filesystem;

std::optional<JournalWriter> journal;

fs::path in_state_folder(const char* name) {
  const fs::path folder = state_folder();
  return folder.empty() ? folder : folder / name;
}

/// Once a session, since the next action would meet the same.
void say_once(const std::error_code& failure) {
  static bool said = false;
  if (!failure || std::exchange(said, true)) return;
  const std::string reason = failure.message();
  say_above_all(filled(text_or_name("nothing_kept"), {state_folder().c_str(), reason.c_str()}));
}

/// Does something with the versions, if there is a place for them.
template <class Action>
void with_versions(Action action) {
  const fs::path folder = versions_folder();
  if (!folder.empty()) say_once(action(Versions(folder), std::chrono::system_clock::now()));
}

std::string text_of_document() {
  StringSink text;
  save_whole(edited_document, text);
  text.finish();
  return text.text();
}

}  // namespace

LoadResult load_kept(std::string_view text, Reason reason, Document& document) {
  const bool is_of_session = reason == Reason::crash || reason == Reason::not_saved;
  const auto source = Source::from_text(text);
  Diagnostics findings;
  return is_of_session ? load_whole(source, document, findings) : load(source, document, findings);
}

std::shared_ptr<const State> state_of_file(const fs::path& path) {
  Document document;
  Diagnostics findings;
  if (const auto source = Source::read_regular(path.c_str())) load(source, document, findings);
  return capture(document, nullptr);
}

fs::path versions_folder() { return in_state_folder("versions"); }

fs::path journals_folder() { return in_state_folder("journals"); }

void begin_safety_net(const std::optional<std::string>& path) {
  const fs::path folder = journals_folder();
  if (folder.empty()) return;
  journal.emplace(Journal(folder, path.value_or("")));
  warn_of_other_session();
  with_versions([](const Versions& versions, Versions::Time now) { return versions.thin(now); });
}

void warn_of_other_session() {
  if (!journal || !save_file || !journal->journal().others_on(*save_file)) return;
  error_show_1s("other_session", save_file_path());
}

void end_safety_net() {
  keep_unsaved();
  if (journal) journal->end();
}

void keep_state(std::shared_ptr<const State> state, const std::optional<std::string>& path) {
  if (!journal) return;
  say_once(journal->failure());
  journal->take(std::move(state), path.value_or(""));
}

void keep_before(const fs::path& path, Reason reason) {
  with_versions([&](const Versions& versions, Versions::Time now) { return versions.keep(path, reason, now); });
}

void keep_version(const fs::path& path, std::string_view text, Reason reason) {
  with_versions(
      [&](const Versions& versions, Versions::Time now) { return versions.keep_text(path, text, reason, now); });
}

void keep_recent(const std::string& path) {
  const fs::path folder = state_folder();
  if (!folder.empty()) say_once(RecentDocuments(folder).add(path));
}

std::vector<fs::path> recent_documents() {
  const fs::path folder = state_folder();
  return folder.empty() ? std::vector<fs::path>() : RecentDocuments(folder).paths();
}

void keep_unsaved() {
  const bool is_saved = *capture(edited_document, nullptr) == *state_of_file(save_file.value_or(""));
  if (!is_saved) keep_version(save_file.value_or(""), text_of_document(), Reason::not_saved);
}

}  // namespace vqc::editors
