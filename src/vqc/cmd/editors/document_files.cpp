// Loads the document that is being edited, and saves it.

#include "vqc/cmd/editors/document_files.h"

#include <memory>
#include <utility>

#include "libkel/leafnm.h"
#include "libkel/message.h"
#include "vqc/cmd/editors/kit/edited_document.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/outside_changes.h"
#include "vqc/cmd/editors/safety_net.h"
#include "vqc/cmd/savefile/load.h"
#include "vqc/cmd/savefile/save.h"
#include "vqc/cmd/savefile/util.h"

namespace vqc::editors {

namespace {

/// Of the file that has been read last, whatever the document's is now; without a file where nothing is left.
UnreadRest unread;

/// Shows what has ended a reading early: of the syntax errors, the first of the process.
void show_errors(const LoadResult& result, const Diagnostics& findings) {
  if (result.out_of_memory) error_show("out_of_memory");
  if (result.first_error && parse_errors++ == 0) {
    vq_syntax_error(result.first_error->line, result.first_error->message.c_str());
  }
  const bool no_document = !findings.empty() && findings.findings().front().id == FindingId::no_document;
  if (no_document) error_show("bad_save_file");
}

void note_fresh(std::shared_ptr<const Source> source, int unread_from) {
  note_file_known(source->name());
  unread = {unread_from, unread_from > 0 ? std::move(source) : nullptr};
}

void say_what_was_read(const std::string& path, bool fresh, int unread_from) {
  const char* name = leafnm(path.c_str());
  if (fresh) {
    say("opened", {name});
  } else if (unread_from > 0) {
    say("read_into_in_part", {name, unread_from});
  } else {
    say("read_into", {name});
  }
}

}  // namespace

int parseit(std::optional<std::string>& path, int fresh) {
  if (!path) return 0;
  const auto source = Source::read(path->c_str());
  if (!source) {
    error_show_2s("file_open_fail", path->c_str(), system_errmsg());
    path = std::nullopt;
    return 0;
  }
  if (fresh) edited_document.clear();
  Diagnostics findings;
  const LoadResult result = load(source, edited_document, findings);
  show_errors(result, findings);
  const int unread_from = result.first_error ? result.first_error->line : 0;
  if (fresh) note_fresh(source, unread_from);
  if (result.has_header) {
    say_what_was_read(*path, fresh != 0, unread_from);
    return 1;
  }
  if (!fresh) return 0;
  edited_document.clear();  // of what the header said before it went wrong
  path = std::nullopt;
  return 0;
}

const UnreadRest* unread_rest() { return unread.file && save_file == unread.file->name() ? &unread : nullptr; }

bool write_save_file(const char* path) {
  const bool is_foreign = is_changed_outside(path);
  keep_before(path, is_foreign ? Reason::changed_outside : Reason::before_save);
  const std::unique_ptr<FileSink> out = openfile(path);
  if (!out) return false;
  save(edited_document, *out);
  closefile(*out);
  dirty = false;
  note_file_known(path);
  unread = {};
  say(is_foreign ? "kept_outside" : "saved_as", {leafnm(path)});
  return true;
}

}  // namespace vqc::editors
