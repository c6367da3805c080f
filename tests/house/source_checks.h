#ifndef HOUSE_SOURCE_CHECKS_H
#define HOUSE_SOURCE_CHECKS_H

#include <algorithm>
#include <array>
#include <cctype>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

// What every source must keep to. A path is spelled from src/, as includes are.

/// A layer, by what the paths of its files begin with, and the layers whose headers its files may include beside their
/// own. A folder within another comes first.
struct Layer {
  std::string_view folder;
  std::vector<std::string_view> may_include;
};

inline const std::vector<Layer>& layers() {
  static const std::vector<Layer> all = {
      {"libkel/", {}},
      {"desktop/", {"libkel/"}},
      {"help/protocol.", {}},
      {"help/client/", {"libkel/", "help/protocol."}},
      {"help/viewer/", {"libkel/", "desktop/", "help/protocol."}},
      {"vqc/cmd/model/", {"libkel/"}},
      {"vqc/cmd/savefile/", {"libkel/", "vqc/cmd/model/"}},
      {"vqc/cmd/generate/", {"libkel/", "vqc/cmd/model/", "vqc/cmd/savefile/"}},
      {"vqc/cmd/check/", {"libkel/", "vqc/cmd/model/", "vqc/cmd/savefile/"}},
      {"vqc/cmd/history/", {"libkel/", "vqc/cmd/model/", "vqc/cmd/savefile/"}},
      {"vqc/cmd/lookup/", {"libkel/", "vqc/cmd/model/", "vqc/cmd/savefile/", "vqc/cmd/check/"}},
      {"vqc/cmd/problems/", {"libkel/", "vqc/cmd/model/", "vqc/cmd/savefile/", "vqc/cmd/check/", "vqc/cmd/history/"}},
      {"vqc/cmd/table/", {"libkel/", "vqc/cmd/model/", "vqc/cmd/savefile/", "vqc/cmd/lookup/"}},
      {"vqc/tool/", {"libkel/", "vqc/cmd/model/", "vqc/cmd/savefile/", "vqc/cmd/generate/", "vqc/cmd/check/"}},
      {"vqc/cmd/application/", {"libkel/", "vqc/cmd/model/", "vqc/cmd/savefile/", "vqc/cmd/generate/"}},
      {"vqc/cmd/editors/kit/", {"libkel/", "vqc/cmd/model/", "vqc/cmd/lookup/"}},
      {"vqc/cmd/editors/program/",
       {"libkel/", "desktop/", "help/client/", "vqc/cmd/model/", "vqc/cmd/savefile/", "vqc/cmd/generate/",
        "vqc/cmd/history/", "vqc/cmd/lookup/", "vqc/cmd/problems/", "vqc/cmd/application/", "vqc/cmd/editors/"}},
      {"vqc/cmd/editors/",
       {"libkel/", "desktop/", "vqc/cmd/model/", "vqc/cmd/savefile/", "vqc/cmd/generate/", "vqc/cmd/history/",
        "vqc/cmd/lookup/", "vqc/cmd/problems/", "vqc/cmd/table/", "vqc/cmd/editors/kit/"}},
  };
  return all;
}

inline const Layer* layer_of(std::string_view path) {
  const auto found = std::ranges::find_if(layers(), [&](const Layer& each) { return path.starts_with(each.folder); });
  return found == layers().end() ? nullptr : &*found;
}

template <class Folders>
bool in_any(const Folders& folders, std::string_view path) {
  return std::ranges::any_of(folders, [&](std::string_view folder) { return path.starts_with(folder); });
}

/// The next character that ends what begins with `opening`: a comment or a literal.
inline std::size_t end_of(std::string_view source, std::size_t from, std::string_view opening) {
  if (opening == "//") return std::min(source.find('\n', from), source.size());
  if (opening == "/*") return std::min(source.find("*/", from + 2), source.size() - 2) + 2;
  std::size_t i = from + 1;
  while (i < source.size() && source[i] != opening[0]) i += source[i] == '\\' ? 2 : 1;
  return std::min(i + 1, source.size());
}

/// The end of a raw string whose R stands at `from`, or `from` if there is none.
inline std::size_t end_of_raw_string(const std::string& source, std::size_t from) {
  static const std::regex opening("^R\"([^ ()\\\\]{0,16})\\(");
  std::smatch match;
  const auto begin = source.begin() + static_cast<std::ptrdiff_t>(from);
  const auto window = begin + std::min<std::ptrdiff_t>(20, source.end() - begin);
  if (!std::regex_search(begin, window, match, opening)) return from;
  const std::string closing = ")" + match[1].str() + "\"";
  return std::min(source.find(closing, from), source.size() - closing.size()) + closing.size();
}

/// The end of the comment or literal that begins at `from`, or `from` if none does.
inline std::size_t end_of_what_is_not_code(const std::string& source, std::size_t from) {
  for (std::string_view opening : {"//", "/*", "\"", "'"}) {
    if (!std::string_view(source).substr(from).starts_with(opening)) continue;
    const bool separates_digits = opening == "'" && from > 0 && std::isdigit(source[from - 1]);
    return separates_digits ? from : end_of(source, from, opening);
  }
  return source[from] == 'R' ? end_of_raw_string(source, from) : from;
}

/// The source without its comments and literals. The plain strings among them may be kept.
inline std::string code_only(const std::string& source, bool keep_strings = false) {
  std::string code;
  for (std::size_t i = 0; i < source.size();) {
    const std::size_t end = end_of_what_is_not_code(source, i);
    const bool kept = end == i || (keep_strings && source[i] == '"');
    code += kept ? source.substr(i, std::max(end, i + 1) - i) : " ";
    i = std::max(end, i + 1);
  }
  return code;
}

/// What a source includes: with its quotes or angle brackets, in its order.
inline std::vector<std::string> includes_of(const std::string& source) {
  static const std::regex include("(?:^|\n)[ \t]*#[ \t]*include[ \t]*([<\"][^>\"\n]*[>\"])");
  const std::string code = code_only(source, true);
  std::vector<std::string> found;
  for (std::sregex_iterator match(code.begin(), code.end(), include), none; match != none; ++match) {
    found.push_back((*match)[1]);
  }
  return found;
}

inline constexpr std::array motif_users = {std::string_view("desktop/"), std::string_view("vqc/cmd/editors/"),
                                           std::string_view("help/viewer/")};
inline constexpr std::array x_users = {std::string_view("desktop/"), std::string_view("vqc/cmd/editors/"),
                                       std::string_view("help/")};
inline constexpr std::array exit_callers = {
    std::string_view("vqc/cmd/application/"), std::string_view("vqc/tool/vqc.cpp"),
    std::string_view("vqc/cmd/editors/program/"), std::string_view("help/viewer/")};

/// Why the file at `path` may not include `header`, or "".
inline std::string wrong_include(const std::string& path, const std::string& header) {
  const Layer* layer = layer_of(path);
  if (!layer) return path + " is in no layer";
  const std::string name = header.substr(1, header.size() - 2);
  if (name.starts_with("Xm/")) {
    return in_any(motif_users, path) ? "" : path + " includes Motif: " + header;
  }
  if (name.starts_with("X11/")) return in_any(x_users, path) ? "" : path + " includes X: " + header;
  if (header.front() == '<')
    return layer_of(name) ? path + " takes a header of the program's for another's: " + header : "";
  const Layer* other = layer_of(name);
  if (!other) return path + " includes a header that is not spelled from src/: " + header;
  const bool allowed = other == layer || in_any(layer->may_include, other->folder);
  return allowed ? "" : path + " looks to the right: " + header;
}

/// Whether a source calls the function that ends the program, or one of its like.
inline bool calls_exit(const std::string& source) {
  static const std::regex call("(^|[^A-Za-z0-9_])(_?exit|_Exit|quick_exit|abort)[ \t\n]*\\(");
  return std::regex_search(code_only(source), call);
}

/// "libkel/text.h" gives "LIBKEL_TEXT_H".
inline std::string guard_of(std::string_view path) {
  std::string guard(path);
  for (char& c : guard) c = std::isalnum(static_cast<unsigned char>(c)) ? static_cast<char>(std::toupper(c)) : '_';
  return guard;
}

/// Whether a header is within an include guard that is named after its path.
inline bool is_guarded(const std::string& path, const std::string& source) {
  const std::string guard = guard_of(path);
  return source.starts_with("#ifndef " + guard + "\n#define " + guard + "\n") && source.ends_with("\n#endif\n");
}

/// What is wrong with the source at `path`, a complaint each.
inline std::vector<std::string> complaints_about(const std::string& path, const std::string& source) {
  std::vector<std::string> complaints;
  for (const std::string& header : includes_of(source)) {
    if (std::string complaint = wrong_include(path, header); !complaint.empty()) complaints.push_back(complaint);
  }
  if (calls_exit(source) && !in_any(exit_callers, path)) complaints.push_back(path + " ends the program");
  if (path.ends_with(".h") && !is_guarded(path, source)) complaints.push_back(path + " has no guard of its name");
  return complaints;
}

#endif
