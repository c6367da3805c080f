#ifndef VQC_CMD_HISTORY_VERSIONS_H
#define VQC_CMD_HISTORY_VERSIONS_H

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace vqc {

/// Why a content of a file was kept.
enum class Reason {
  before_save,
  before_generation,
  crash,            // a session that ended badly had it
  changed_outside,  // somebody else has written it
  not_saved,        // a session ended without saving it
};

/// A content that a file had.
struct Version {
  std::chrono::system_clock::time_point time;
  Reason reason;
  std::uintmax_t size;
  std::string id;  // of the content: equal contents have the same

  bool operator==(const Version&) const = default;
};

/// What files held before they were replaced, in a folder of their own. Each content is there once, under its hash; an
/// index says of which file it was, when, and why it was kept. Any number of processes may use a folder at once.
///
/// Nothing is thrown where the folder is missing, read-only or full: calls give the reason. What is damaged in the
/// folder is taken for absent.
class Versions {
 public:
  static constexpr std::uintmax_t kMostBytes = 200'000'000;

  using Time = std::chrono::system_clock::time_point;

  /// The folder is made when it is first needed. It keeps no more than `most_bytes` when it has been thinned.
  explicit Versions(std::filesystem::path folder, std::uintmax_t most_bytes = kMostBytes)
      : folder_(std::move(folder)), most_bytes_(most_bytes) {}

  /// Keeps what a file holds now, if it is there and a regular one. Where the newest version of that file has the same
  /// content, there is still one, with this time and reason.
  std::error_code keep(const std::filesystem::path& path, Reason reason, Time now) const;
  /// The same with a text that the file has not, or no longer.
  std::error_code keep_text(const std::filesystem::path& path, std::string_view text, Reason reason, Time now) const;

  /// The versions of a file, newest first. An empty path is that of what was never saved.
  std::vector<Version> of(const std::filesystem::path& path) const;
  /// The content of a version; nothing if it is gone.
  std::optional<std::string> text(const Version& version) const;

  /// Leaves, of each file, all versions of the last hour, the newest of each hour of the last day and the newest of
  /// each day of the last 31, as the user's clock counts hours and days; then takes out the oldest until what is left
  /// fits. Removes what no version names.
  std::error_code thin(Time now) const;

 private:
  std::filesystem::path folder_;
  std::uintmax_t most_bytes_;
};

}  // namespace vqc

#endif
