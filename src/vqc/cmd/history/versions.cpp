// What files held before they were replaced.
//
// The folder has the index, a line of JSON for each version with the newest last, a file for each content, named by its
// hash, and a file that who writes has locked. A content is there before the index names it, and goes after that.

#include "vqc/cmd/history/versions.h"

#include <nettle/base16.h>
#include <nettle/sha2.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <iterator>
#include <set>
#include <tuple>

#include "libkel/source.h"
#include "vqc/cmd/history/json_line.h"
#include "vqc/cmd/history/private_folder.h"

namespace vqc {

namespace {

namespace fs = std::filesystem;

using std::chrono::hours;

constexpr const char* kIndex = "index";
constexpr const char* kLock = "lock";

/// The words for Reason, by its number.
constexpr std::string_view kReasons[] = {"before_save", "before_generation", "crash", "changed_outside", "not_saved"};

/// A line of the index.
struct Entry {
  fs::path path;
  Versions::Time time;
  Reason reason;
  std::string content;
};

using Entries = std::vector<Entry>;

constexpr std::size_t kHashSize = BASE16_ENCODE_LENGTH(SHA256_DIGEST_SIZE);

/// The name of the file that has a content.
std::string hash_of(std::string_view text) {
  sha256_ctx context;
  sha256_init(&context);
  sha256_update(&context, text.size(), reinterpret_cast<const std::uint8_t*>(text.data()));
  std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest;
  sha256_digest(&context, digest.size(), digest.data());
  std::string hash(kHashSize, '\0');
  base16_encode_update(hash.data(), digest.size(), digest.data());
  return hash;
}

bool is_hash(std::string_view name) {
  return name.size() == kHashSize && name.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

std::optional<Reason> reason_of(std::string_view word) {
  const auto* found = std::ranges::find(kReasons, word);
  if (found == std::end(kReasons)) return std::nullopt;
  return static_cast<Reason>(found - kReasons);
}

// The index.

std::optional<Entry> entry_of(std::string_view line) {
  const Json object = object_in(line);
  const auto path = path_in(object, "path");
  const auto time = time_in(object, "time");
  const auto reason = reason_of(text_in(object, "reason").value_or(""));
  const auto content = text_in(object, "content");
  if (!path || !time || !reason || !content || !is_hash(*content)) return std::nullopt;
  return Entry{*path, *time, *reason, *content};
}

std::string line_of(const Entry& entry) {
  const Json object = {{"time", kept_time(entry.time)},
                       {"reason", kReasons[static_cast<std::size_t>(entry.reason)]},
                       {"path", text_of_path(entry.path)},
                       {"content", entry.content}};
  return object.dump() + '\n';
}

/// What its lines say, as far as they can be read.
Entries entries_in(std::string_view index) {
  Entries entries;
  while (!index.empty()) {
    const std::string_view line = index.substr(0, index.find('\n'));
    if (auto entry = entry_of(line)) entries.push_back(std::move(*entry));
    index.remove_prefix(std::min(line.size() + 1, index.size()));
  }
  return entries;
}

/// Nothing when there is an index that cannot be read, and so must not be replaced; errno says why.
std::optional<Entries> read_index(const PrivateFolder& folder) {
  const std::optional<std::string> index = folder.text(kIndex);
  if (!index && errno != ENOENT) return std::nullopt;
  return entries_in(index.value_or(""));
}

bool write_index(const PrivateFolder& folder, const Entries& entries) {
  std::string text;
  for (const Entry& entry : entries) text += line_of(entry);
  return folder.put(kIndex, text);
}

// Contents.

std::optional<std::string> content_of(const PrivateFolder& folder, const std::string& hash) {
  std::optional<std::string> text = is_hash(hash) ? folder.text(hash) : std::nullopt;
  return text && hash_of(*text) == hash ? text : std::nullopt;
}

/// Adds an entry. It takes the place of the newest one of its file if that has the same content, so that the content is
/// as old as it was last seen.
void add(Entries& entries, const Entry& entry) {
  const auto newest =
      std::find_if(entries.rbegin(), entries.rend(), [&](const Entry& each) { return each.path == entry.path; });
  if (newest != entries.rend() && newest->content == entry.content) entries.erase(std::next(newest).base());
  entries.push_back(entry);
}

bool keep_content(const PrivateFolder& folder, const std::string& hash, std::string_view text) {
  return content_of(folder, hash) || folder.put(hash, text);
}

// Thinning.

/// A day of the user's clock, by a number, and an hour of it.
std::pair<int, int> day_and_hour(Versions::Time time) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
  std::tm parts{};
  localtime_r(&seconds, &parts);
  return {parts.tm_year * 366 + parts.tm_yday, parts.tm_hour};
}

/// Says of versions, newest first, which of them stay for their age.
class Sieve {
 public:
  explicit Sieve(Versions::Time now) : now_(now) {}

  bool keeps(const Entry& entry) {
    const auto [day, hour] = day_and_hour(entry.time);
    const bool ends_hour = hours_.emplace(entry.path, day, hour).second;
    const bool ends_day = days_.emplace(entry.path, day).second;
    const auto age = now_ - entry.time;
    return age <= hours(1) || (age <= hours(24) && ends_hour) || (age <= hours(31 * 24) && ends_day);
  }

 private:
  Versions::Time now_;
  std::set<std::tuple<fs::path, int, int>> hours_;
  std::set<std::pair<fs::path, int>> days_;
};

/// Takes the oldest out until the contents of the others fit. The newest comes first.
void make_fit(Entries& entries, const PrivateFolder& folder, std::uintmax_t most_bytes) {
  std::set<std::string> contents;
  std::uintmax_t bytes = 0;
  const auto fits = [&](const Entry& entry) {
    if (contents.insert(entry.content).second) bytes += folder.size(entry.content).value_or(0);
    return bytes <= most_bytes;
  };
  entries.erase(std::ranges::find_if_not(entries, fits), entries.end());
}

Entries thinned(Entries entries, const PrivateFolder& folder, Versions::Time now, std::uintmax_t most_bytes) {
  std::ranges::reverse(entries);
  Sieve sieve(now);
  std::erase_if(entries, [&](const Entry& entry) { return !sieve.keeps(entry); });
  make_fit(entries, folder, most_bytes);
  std::ranges::reverse(entries);
  return entries;
}

/// Removes contents that no entry names, and what killed writers have left of any.
void remove_unnamed(const PrivateFolder& folder, const Entries& entries) {
  std::set<std::string> named;
  for (const Entry& entry : entries) named.insert(entry.content);
  for (const std::string& name : folder.names()) {
    if (is_hash(std::string_view(name).substr(0, kHashSize)) && !named.contains(name)) folder.remove(name);
  }
}

}  // namespace

std::error_code Versions::keep(const fs::path& path, Reason reason, Time now) const {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::none) return error;
  if (!fs::is_regular_file(status)) return {};
  if (fs::file_size(path, error) > most_bytes_) return make_error_code(std::errc::file_too_large);
  const auto source = Source::read(path.c_str());
  return source ? keep_text(path, source->text(), reason, now) : last_error();
}

std::error_code Versions::keep_text(const fs::path& path, std::string_view text, Reason reason, Time now) const {
  if (text.size() > most_bytes_) return make_error_code(std::errc::file_too_large);
  const Entry entry = {kept_path(path), now, reason, hash_of(text)};
  const PrivateFolder folder = PrivateFolder::make(folder_);
  const Descriptor lock = folder.lock(kLock);
  if (!lock || !keep_content(folder, entry.content, text)) return last_error();
  std::optional<Entries> entries = read_index(folder);
  if (!entries) return last_error();
  add(*entries, entry);
  return write_index(folder, *entries) ? std::error_code() : last_error();
}

std::vector<Version> Versions::of(const fs::path& path) const {
  std::vector<Version> versions;
  const PrivateFolder folder = PrivateFolder::open(folder_);
  if (!folder) return versions;
  Entries entries = read_index(folder).value_or(Entries());
  std::ranges::reverse(entries);
  std::erase_if(entries, [wanted = kept_path(path)](const Entry& entry) { return entry.path != wanted; });
  for (const Entry& entry : entries) {
    if (const auto size = folder.size(entry.content)) {
      versions.push_back({entry.time, entry.reason, *size, entry.content});
    }
  }
  return versions;
}

std::optional<std::string> Versions::text(const Version& version) const {
  const PrivateFolder folder = PrivateFolder::open(folder_);
  return folder ? content_of(folder, version.id) : std::nullopt;
}

std::error_code Versions::thin(Time now) const {
  const PrivateFolder folder = PrivateFolder::open(folder_);
  if (!folder) return errno == ENOENT ? std::error_code() : last_error();
  const Descriptor lock = folder.lock(kLock);
  if (!lock) return last_error();
  const std::optional<Entries> all = read_index(folder);
  if (!all) return last_error();
  const Entries entries = thinned(*all, folder, now, most_bytes_);
  if (entries.size() < all->size() && !write_index(folder, entries)) return last_error();
  remove_unnamed(folder, entries);
  return {};
}

}  // namespace vqc
