// Puts together what is so with the document.

#include "vqc/cmd/editors/facts.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "libkel/leafnm.h"
#include "libkel/message.h"
#include "vqc/cmd/editors/document_files.h"
#include "vqc/cmd/editors/kit/counts.h"
#include "vqc/cmd/editors/kit/edited_document.h"
#include "vqc/cmd/editors/kit/part_names.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/history/difference.h"

namespace vqc::editors {

namespace {

struct Problems {
  int errors = 0;
  int warnings = 0;
};
Problems problems;

std::string unsaved;

std::string name_of_document() { return save_file ? leafnm(save_file_path()) : text_or_name("no_document_name"); }

/// Also where the user could write all the same, being who he is.
bool is_read_only(const char* path) {
  constexpr mode_t kWritable = S_IWUSR | S_IWGRP | S_IWOTH;
  struct stat file {};
  if (stat(path, &file) != 0) return false;
  return (file.st_mode & kWritable) == 0 || access(path, W_OK) != 0;
}

/// What a change of that part is that the mark of change does not tell of.
std::string unsaved_change(const State& now, const State* in_file) {
  if (!in_file || in_file == &now) return {};
  const std::vector<Difference> all = differences(*in_file, now);
  if (all.empty()) return {};
  const bool is_order = std::ranges::all_of(all, [](const Difference& each) { return each.verb == Verb::reordered; });
  if (is_order) return text_or_name("order_not_saved");
  return filled(text_or_name("part_not_saved"), {part_name(all.front().part, all.front().name).c_str()});
}

std::string found_problems() {
  const Count counts[] = {{problems.errors, "one_error", "many_errors"},
                          {problems.warnings, "one_warning", "many_warnings"}};
  return in_words(counts);
}

std::vector<std::string> all_facts() {
  std::string name = name_of_document();
  if (dirty) name += std::string(" ") + text_or_name("changed_mark");
  std::vector<std::string> facts{name, unsaved};
  if (save_file && is_read_only(save_file_path())) facts.emplace_back(text_or_name("read_only"));
  if (const UnreadRest* unread = unread_rest()) {
    facts.push_back(filled(text_or_name("incomplete"), {unread->from_line}));
  }
  facts.push_back(found_problems());
  std::erase(facts, "");
  return facts;
}

void show() {
  std::string text;
  for (const std::string& fact : all_facts()) text += text.empty() ? fact : "   " + fact;
  show_so(text);
}

}  // namespace

void note_problems(int errors, int warnings) {
  problems = {errors, warnings};
  show();
}

void show_facts(const std::shared_ptr<const State>& now, const std::shared_ptr<const State>& in_file) {
  static std::pair<std::shared_ptr<const State>, std::shared_ptr<const State>> compared;  // most actions change neither
  if (dirty) {
    unsaved.clear();
    compared = {};
  } else if (std::pair both{now, in_file}; both != compared) {
    unsaved = unsaved_change(*now, in_file.get());
    compared = std::move(both);
  }
  show();
}

}  // namespace vqc::editors
