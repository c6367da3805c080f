#ifndef VQC_CMD_HISTORY_PRIVATE_FOLDER_H
#define VQC_CMD_HISTORY_PRIVATE_FOLDER_H

#include <cerrno>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "libkel/descriptor.h"
#include "libkel/sink.h"

namespace vqc {

/// The failure of the last call of the system.
inline std::error_code last_error() { return {errno, std::generic_category()}; }

/// An open folder whose files are for the user alone. They are reached through the open folder, so that they are those
/// of this folder whatever is moved, and no link is followed.
class PrivateFolder {
 public:
  /// A folder that is there. None where it is not, or a link; errno says why.
  static PrivateFolder open(const std::filesystem::path& path);
  /// The same, made first if it is missing.
  static PrivateFolder make(const std::filesystem::path& path);

  explicit operator bool() const { return static_cast<bool>(folder_); }

  /// Opens a file as open() does. None when it cannot be opened; errno says why.
  Descriptor file(const std::string& name, int flags) const;
  /// What is in a file; nothing when it cannot be read.
  std::optional<std::string> text(const std::string& name) const;
  /// How many bytes a file has; nothing when there is none.
  std::optional<std::size_t> size(const std::string& name) const;
  /// A file that only one at a time has, made if it is missing: waits for who has it. None when it cannot be opened;
  /// errno says why.
  Descriptor lock(const std::string& name) const;
  bool is_at(const Descriptor& file, const std::string& name) const { return file.is_at(name.c_str(), folder_.get()); }
  /// The names of its files, in no order.
  std::vector<std::string> names() const;

  /// Makes or replaces a file that holds a text. Whoever looks, and whenever this is killed, finds it whole, as it was
  /// or as it is to be; once this is done, it is on the disk. Not for two writers of one file at once. False when it
  /// cannot be done; errno says why.
  bool put(const std::string& name, const WriteText& write) const;
  bool put(const std::string& name, std::string_view text) const {
    return put(name, [text](Sink& out) { out.write(text); });
  }
  /// Removes a file, if it is there, and what a killed writer of it has left.
  void remove(const std::string& name) const;

 private:
  explicit PrivateFolder(Descriptor folder) : folder_(std::move(folder)) {}
  bool write_beside(const std::string& temporary, const WriteText& write) const;

  Descriptor folder_;
};

}  // namespace vqc

#endif
