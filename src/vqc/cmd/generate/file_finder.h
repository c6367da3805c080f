#ifndef VQC_CMD_GENERATE_FILE_FINDER_H
#define VQC_CMD_GENERATE_FILE_FINDER_H

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

/// Tells which paths are those of files, for as long as one generation takes. Asking the system for each of very many
/// headers costs more than writing them; most can be ruled out because their folder does not list them.
class FileFinder {
 public:
  /// Whether something of that name can be reached.
  bool exists(const char* path);

 private:
  struct Folder {
    int asked = 0;                          // names so far
    bool listed = false;                    // all that is in it is in `names`; otherwise every name is asked for
    std::unordered_set<std::string> names;  // in lower case, which some file systems do not tell from upper case
  };

  using Folders = std::unordered_map<std::string, Folder>;

  Folders::value_type& folder_named(std::string_view name);
  static void list(Folder& folder, const char* path);

  Folders folders_;
  Folders::value_type* last_ = nullptr;
};

#endif
