#ifndef VQC_CMD_HISTORY_JOURNAL_H
#define VQC_CMD_HISTORY_JOURNAL_H

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "libkel/descriptor.h"
#include "libkel/sink.h"

namespace vqc {

class PrivateFolder;

/// The last state of a session that is gone. It is claimed: nobody else is offered it until this goes.
struct AbandonedJournal {
  std::filesystem::path document = {};  // empty for one that had no file
  std::chrono::system_clock::time_point time = {};
  std::string text = {};

  // Where it is.
  std::filesystem::path folder = {};
  std::string id = {};
  Descriptor claim = {};

  /// Removes it for good. What is not removed is offered again.
  void remove() const;
};

/// The state of a session on the disk, so that nothing is lost when the session ends badly. Any number of sessions have
/// theirs in one folder. Other sessions know this one from when it is made, and see that it lives by a lock that the
/// system takes from it when it ends, however that comes.
///
/// Nothing is thrown where the folder is missing, read-only or full: calls give the reason, and the next one tries
/// again.
class Journal {
 public:
  /// Of a session on that document, or on none that has a file if the path is empty. There is no state yet.
  explicit Journal(std::filesystem::path folder, const std::filesystem::path& document = {});

  /// Says which document the session is on from now on.
  std::error_code set_document(const std::filesystem::path& document);
  /// Takes this text for the session's state. It is on the disk when this is done; until then the former one is.
  std::error_code write(const WriteText& write_state);
  std::error_code write(std::string_view text) {
    return write([text](Sink& out) { out.write(text); });
  }
  /// Ends the session well: nothing is left of it. A journal that goes without this is abandoned.
  void end();

  /// Whether another session that lives is on that document, under whatever path.
  bool others_on(const std::filesystem::path& document) const;

  /// The states of sessions in a folder that did not end well, newest first. What has none is tidied up.
  static std::vector<AbandonedJournal> abandoned(const std::filesystem::path& folder);

 private:
  bool begin(const PrivateFolder& folder);
  bool announce() const;

  std::filesystem::path folder_;
  std::filesystem::path document_;
  std::string id_;
  Descriptor session_;  // locked while the session lives
};

}  // namespace vqc

#endif
