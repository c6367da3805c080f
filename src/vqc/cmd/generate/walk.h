#ifndef VQC_CMD_GENERATE_WALK_H
#define VQC_CMD_GENERATE_WALK_H

#include <cstddef>
#include <span>

#include "vqc/cmd/generate/emit.h"
#include "vqc/cmd/generate/name_set.h"
#include "vqc/cmd/generate/switches.h"
#include "vqc/cmd/model/document.h"

namespace vqc {

/// One generation: what it goes by, and what its sections leave for later ones.
struct Run {
  const Document& document;
  std::span<const Family* const> families;  // those that take part
  Switches switches;
  Sink& out;

  // Where popups and pages stand in their tables is unknown until they are written there.
  Numbering popups = {};
  Numbering pages = {};

  NameSet kept_stubs = {};  // that an earlier stubs file has brought along
};

/// The records that a section has written already. Families share records, and every table holds each record once.
class Done {
 public:
  bool has(const void* record) const { return records_.contains(record); }
  void add(const void* record) { records_.insert(record); }

 private:
  struct Hash {
    std::size_t operator()(const void* record) const { return hash_of_address(record); }
  };
  HashSet<const void*, Hash> records_;
};

inline void write_banner(const Run& run, const Family& family) {
  if (run.switches.comment) emit<"/* Family: @FAMILY@ */\n">(run.out, bind<"FAMILY">(printed(family.name)));
}

/// The title of a section, or of a family's share of one. Empty for none.
inline void write_title(const Run& run, std::string_view title) {
  if (!run.switches.comment || title.empty()) return;
  emit<"/*\n** @TITLE@\n*/\n\n">(run.out, bind<"TITLE">(ours(title)));
}

/// What stands before the first thing that a family writes in a section.
class Heading {
 public:
  /// An empty title leaves the banner alone; `after` follows the banner.
  Heading(const Run& run, const Family& family, std::string_view title, std::string_view after = {})
      : run_(run), family_(family), title_(title), after_(after) {}

  /// Call before each thing that is written.
  void show() {
    if (shown_) return;
    shown_ = true;
    write_title(run_, title_);
    write_banner(run_, family_);
    if (run_.switches.comment) run_.out.write(after_);
  }

  /// Leaves the heading out after all.
  void suppress() { shown_ = true; }

 private:
  const Run& run_;
  const Family& family_;
  std::string_view title_;
  std::string_view after_;
  bool shown_ = false;
};

/// What stands around a repeat that is written commented out, and what follows repeats and first records alike.
struct Around {
  std::string_view open;
  std::string_view close;
  std::string_view after;
};
inline constexpr Around around_row{"/*", "*/", "\n"};
inline constexpr Around around_block{"/*\n", "*/\n", ""};

/// Visits the records that a family uses: each once over all families or, where repeats are written, every time.
/// The heading comes before the first visit, even if that writes nothing. `visit(record, repeat)` marks nothing.
template <class List, class Visit>
void each_once(const List& list, Done& done, bool write_repeats, Heading heading, Visit visit) {
  for (const auto& reference : list) {
    const auto& record = *reference.record;
    const bool repeat = done.has(&record);
    if (repeat && !write_repeats) continue;
    heading.show();
    visit(record, repeat);
    done.add(&record);
  }
}

/// Writes something that is commented out if it is a repeat.
template <class Write>
void write_around(Sink& out, const Around& around, bool repeat, Write write) {
  if (repeat) out.write(around.open);
  write();
  if (repeat) out.write(around.close);
  out.write(around.after);
}

}  // namespace vqc

#endif
