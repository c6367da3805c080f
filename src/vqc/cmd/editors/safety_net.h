#ifndef VQC_CMD_EDITORS_SAFETY_NET_H
#define VQC_CMD_EDITORS_SAFETY_NET_H

// What is kept in the user's state folder so that nothing is gone for good: what files held before the session replaced
// them, and the state of the session itself. Where there is no such folder, or nothing can be written there, the
// session goes on without.

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "vqc/cmd/history/state.h"
#include "vqc/cmd/history/versions.h"
#include "vqc/cmd/savefile/load_result.h"

namespace vqc::editors {

/// Begins with the session, on the document of that path.
void begin_safety_net(const std::optional<std::string>& path);
/// Says if there is another session on the document that is open.
void warn_of_other_session();
/// The session ends well: nothing of it is left but what it has not saved.
void end_safety_net();

/// The document says something else now.
void keep_state(std::shared_ptr<const State> state, const std::optional<std::string>& path);
/// Keeps what a file holds before it is replaced.
void keep_before(const std::filesystem::path& path, Reason reason);
/// Keeps a text as a version of a file; an empty path is that of documents without a file.
void keep_version(const std::filesystem::path& path, std::string_view text, Reason reason);
/// Keeps that a document has been opened or saved. Those of last, the newest first, are recent_documents().
void keep_recent(const std::string& path);
std::vector<std::filesystem::path> recent_documents();

/// Keeps the document if it says anything else than its file.
void keep_unsaved();

/// Reads a text that has been kept for that reason into an empty document: what a session has written of itself is
/// there whole.
LoadResult load_kept(std::string_view text, Reason reason, Document& document);

/// What a document's file says, which is nothing where it cannot be read.
std::shared_ptr<const State> state_of_file(const std::filesystem::path& path);

/// Where earlier contents of files are, and the states of sessions; empty paths where there is no place for them.
std::filesystem::path versions_folder();
std::filesystem::path journals_folder();

}  // namespace vqc::editors

#endif
