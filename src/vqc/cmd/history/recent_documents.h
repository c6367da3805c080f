#ifndef VQC_CMD_HISTORY_RECENT_DOCUMENTS_H
#define VQC_CMD_HISTORY_RECENT_DOCUMENTS_H

#include <cstddef>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

namespace vqc {

/// The documents that a user has opened or saved last, in a file of a folder of his own that all his sessions share.
class RecentDocuments {
 public:
  static constexpr std::size_t kMost = 10;

  explicit RecentDocuments(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// Their paths from the root, the one of last first. None where the file cannot be read.
  std::vector<std::filesystem::path> paths() const;

  /// Makes a document the one of last. The reason when that cannot be kept.
  std::error_code add(const std::filesystem::path& document) const;

 private:
  std::filesystem::path folder_;
};

}  // namespace vqc

#endif
