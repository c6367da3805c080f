// The state of a session on the disk.
//
// A session has two files. ID.session says which document it is on; the session has it locked from when it begins.
// ID.journal has its last state: a line of JSON, and behind it the text. Once the session is gone, who has ID.journal
// locked is the only one to offer it.

#include "vqc/cmd/history/journal.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>

#include "libkel/source.h"
#include "vqc/cmd/history/json_line.h"
#include "vqc/cmd/history/kept_path.h"
#include "vqc/cmd/history/private_folder.h"

namespace vqc {

namespace {

namespace fs = std::filesystem;

using std::chrono::system_clock;

constexpr int kFormat = 1;
constexpr std::string_view kSession = ".session";
constexpr std::string_view kJournal = ".journal";

std::string session_file(const std::string& id) { return id + std::string(kSession); }
std::string journal_file(const std::string& id) { return id + std::string(kJournal); }

/// The id of the session whose file of that kind has a name; nothing for another name.
std::optional<std::string> id_of(std::string_view name, std::string_view kind) {
  if (!name.ends_with(kind)) return std::nullopt;
  return std::string(name.substr(0, name.size() - kind.size()));
}

std::string new_id() {
  return std::to_string(system_clock::now().time_since_epoch().count()) + "-" + std::to_string(getpid());
}

/// The line that says whose file it is.
std::string head_of(const fs::path& document) {
  Json head = {{"format", kFormat}, {"time", kept_time(system_clock::now())}, {"process", getpid()}};
  if (!document.empty()) head["document"] = text_of_path(document);
  return head.dump() + '\n';
}

std::string_view first_line(std::string_view text) { return text.substr(0, text.find('\n')); }

/// Takes a journal apart. False for what is none.
bool take_apart(std::string_view journal, AbandonedJournal& parts) {
  const Json head = object_in(first_line(journal));
  const auto time = time_in(head, "time");
  if (!time || integer_in(head, "format") != kFormat) return false;
  parts.document = path_in(head, "document").value_or(fs::path());
  parts.time = *time;
  parts.text = journal.substr(std::min(first_line(journal).size() + 1, journal.size()));
  return true;
}

bool lives(const PrivateFolder& folder, const std::string& id) {
  const Descriptor session = folder.file(session_file(id), O_RDONLY);
  return session && session.is_locked();
}

void remove_files(const PrivateFolder& folder, const std::string& id) {
  folder.remove(journal_file(id));
  folder.remove(session_file(id));
}

/// The journal of a session, unless that lives or another has claimed it.
std::optional<AbandonedJournal> claimed(const PrivateFolder& folder, const std::string& id) {
  if (lives(folder, id)) return std::nullopt;
  AbandonedJournal journal{.id = id, .claim = folder.file(journal_file(id), O_RDWR)};
  const bool is_ours = journal.claim && journal.claim.try_lock() && folder.is_at(journal.claim, journal_file(id));
  const auto source = is_ours ? Source::read(journal.claim.get(), id) : nullptr;
  if (!source || !take_apart(source->text(), journal)) return std::nullopt;
  return journal;
}

/// Removes what a session has left that is gone and has no journal.
void tidy_up(const PrivateFolder& folder, const std::string& id) {
  const Descriptor session = folder.file(session_file(id), O_RDWR);
  if (session && session.try_lock() && !folder.size(journal_file(id))) remove_files(folder, id);
}

}  // namespace

void AbandonedJournal::remove() const {
  if (const PrivateFolder opened = PrivateFolder::open(folder)) remove_files(opened, id);
}

Journal::Journal(fs::path folder, const fs::path& document) : folder_(std::move(folder)) { set_document(document); }

/// Makes the session's file, unless it is there.
bool Journal::begin(const PrivateFolder& folder) {
  while (!session_ || !folder.is_at(session_, session_file(id_))) {
    id_ = new_id();
    session_ = folder.file(session_file(id_), O_RDWR | O_CREAT | O_EXCL);
    if (!session_ && errno != EEXIST) return false;
    if (!session_) continue;
    session_.lock();  // until then it may be taken for that of a session that is gone
    announce();
  }
  return true;
}

/// Who reads the file meanwhile finds the one line or the other.
bool Journal::announce() const {
  const std::string head = head_of(document_);
  return lseek(session_.get(), 0, SEEK_SET) == 0 && session_.write(head) &&
         ftruncate(session_.get(), static_cast<off_t>(head.size())) == 0;
}

std::error_code Journal::set_document(const fs::path& document) {
  document_ = kept_path(document);
  const PrivateFolder folder = PrivateFolder::make(folder_);
  return folder && begin(folder) && announce() ? std::error_code() : last_error();
}

std::error_code Journal::write(const WriteText& write_state) {
  const PrivateFolder folder = PrivateFolder::make(folder_);
  const bool written = folder && begin(folder) && folder.put(journal_file(id_), [&](Sink& out) {
    out.write(head_of(document_));
    write_state(out);
  });
  return written ? std::error_code() : last_error();
}

void Journal::end() {
  if (!session_) return;
  if (const PrivateFolder folder = PrivateFolder::open(folder_)) remove_files(folder, id_);
  session_.close();
}

bool Journal::others_on(const fs::path& document) const {
  const fs::path wanted = kept_path(document);
  const PrivateFolder folder = PrivateFolder::open(folder_);
  if (wanted.empty() || !folder) return false;
  return std::ranges::any_of(folder.names(), [&](const std::string& name) {
    const auto id = id_of(name, kSession);
    if (!id || *id == id_ || !lives(folder, *id)) return false;
    const std::string text = folder.text(name).value_or("");
    return path_in(object_in(first_line(text)), "document") == wanted;
  });
}

std::vector<AbandonedJournal> Journal::abandoned(const fs::path& folder) {
  std::vector<AbandonedJournal> journals;
  const PrivateFolder opened = PrivateFolder::open(folder);
  if (!opened) return journals;
  for (const std::string& name : opened.names()) {
    if (const auto id = id_of(name, kSession)) tidy_up(opened, *id);
    const auto id = id_of(name, kJournal);
    if (auto journal = id ? claimed(opened, *id) : std::nullopt) {
      journal->folder = folder;
      journals.push_back(std::move(*journal));
    }
  }
  std::ranges::sort(journals, std::ranges::greater(), &AbandonedJournal::time);
  return journals;
}

}  // namespace vqc
