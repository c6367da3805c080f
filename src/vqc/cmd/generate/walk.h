#ifndef VQC_CMD_GENERATE_WALK_H
#define VQC_CMD_GENERATE_WALK_H

#include "vqc/cmd/generate/emit.h"
#include "vqc/cmd/model/kinds.h"

/// What one generation goes by.
struct Run {
  Stream& out;
  bool comment;  // write titles and banners
  bool verbose;  // write repeats of shared records too, commented out
};

// Families share records, and every table holds each record once: a flag in the record says that the section being
// written has it already.

inline bool& done(WidgetDef& widget) { return widget.generated; }
template <class Record>
bool& done(Record& record) {
  return record.used;
}

template <class Pool>
void clear_done(Pool& pool) {
  for (auto& record : pool.list) done(record) = false;
}

/// Where popups and pages stand in their tables is unknown until they are written there.
template <class Pool>
void clear_done_and_index(Pool& pool) {
  for (auto& record : pool.list) {
    done(record) = false;
    record.index = -1;
  }
}

/// Calls `visit` with each family that takes part.
template <class Visit>
void each_family(Visit visit) {
  for (Family& family : family_pool.list) {
    if (family.generate_selected) visit(family);
  }
}

inline void write_banner(const Run& run, const Family& family) {
  if (run.comment) emit<"/* Family: @FAMILY@ */\n">(run.out, family.name);
}

/// The title of a section, or of a family's share of one. Null for none.
inline void write_title(const Run& run, const char* title) {
  if (!run.comment || !title) return;
  emit<"/*\n** @TITLE@\n*/\n\n">(run.out, title);
}

/// What stands before the first thing that a family writes in a section.
class Heading {
 public:
  /// A null title leaves the banner alone; `after` follows the banner.
  Heading(const Run& run, const Family& family, const char* title, const char* after = "")
      : run_(run), family_(family), title_(title), after_(after) {}

  /// Call before each thing that is written.
  void show() {
    if (shown_) return;
    shown_ = true;
    write_title(run_, title_);
    write_banner(run_, family_);
    if (run_.comment) charout(&run_.out, after_);
  }

  /// Leaves the heading out after all.
  void suppress() { shown_ = true; }

 private:
  const Run& run_;
  const Family& family_;
  const char* title_;
  const char* after_;
  bool shown_ = false;
};

/// What stands around a repeat that is written commented out, and what follows repeats and first records alike.
struct Around {
  const char* open;
  const char* close;
  const char* after;
};
inline constexpr Around around_row{"/*", "*/", "\n"};
inline constexpr Around around_block{"/*\n", "*/\n", ""};

/// Visits the records that a family uses: each once over all families or, where repeats are written, every time.
/// The heading comes before the first visit, even if that writes nothing. `visit(record, repeat)` marks nothing.
template <class List, class Visit>
void each_once(const List& list, bool write_repeats, Heading heading, Visit visit) {
  for (auto& reference : list) {
    auto& record = *reference.record;
    const bool repeat = done(record);
    if (repeat && !write_repeats) continue;
    heading.show();
    visit(record, repeat);
    done(record) = true;
  }
}

/// Writes something that is commented out if it is a repeat.
template <class Write>
void write_around(Stream& out, const Around& around, bool repeat, Write write) {
  if (repeat) charout(&out, around.open);
  write();
  if (repeat) charout(&out, around.close);
  charout(&out, around.after);
}

#endif
