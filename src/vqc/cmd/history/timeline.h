#ifndef VQC_CMD_HISTORY_TIMELINE_H
#define VQC_CMD_HISTORY_TIMELINE_H

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "vqc/cmd/history/state.h"

namespace vqc {

/// What stands beside a document in a session: the file that it belongs to and what that says, and what is selected, in
/// words of whoever keeps the history.
struct Surroundings {
  std::optional<std::string> path = {};
  std::vector<std::string> selection = {};
  std::shared_ptr<const State> in_file = {};  // null where that is unknown
};

/// What has been typed and is in no record, by the names of fields.
using Typed = std::vector<std::pair<std::string, std::string>>;

/// Where a document stands in its history: what it says, what was beside it last, whether it counts as changed, and
/// what was typed when it was left.
struct Moment : Surroundings {
  std::shared_ptr<const State> state;
  bool dirty = false;
  Typed typed = {};
  std::string step = {};  // what the step that led here is called, where that does not follow from what has changed
};

/// What has become of a document in a session, one moment for each step, and which of them is now. Going back forgets
/// nothing until something else is done from there.
class Timeline {
 public:
  /// Begins with what there is.
  Timeline(const Document& document, Surroundings surroundings);

  /// Takes note of what has been done, and what has been `left` with it that was typed. True when it was a step, which
  /// the document now is behind; what was undone before can be redone no more then. Other surroundings or a mark of
  /// change alone are no step.
  bool note(const Document& document, Surroundings surroundings, Typed left = {});
  /// Remembers what is typed now, for who comes back here.
  void note_typed(Typed typed) { moments_[now_].typed = std::move(typed); }
  /// Says what the step that led here is called.
  void name_step(std::string name) { moments_[now_].step = std::move(name); }
  /// The document has been saved as it is now: every other moment differs from its file. Those that had the same path
  /// before get the new one, and the file.
  void saved(const Document& document, const std::optional<std::string>& path);

  /// The file of the document says that now; who has just read it knows.
  void note_file(std::shared_ptr<const State> state) { moments_[now_].in_file = std::move(state); }

  bool can_undo() const { return now_ > 0; }
  bool can_redo() const { return now_ + 1 < moments_.size(); }
  /// The moments before and behind the step that would be undone or redone.
  const Moment& now() const { return moments_[now_]; }
  const Moment& previous() const { return moments_[now_ - 1]; }
  const Moment& next() const { return moments_[now_ + 1]; }

  /// Brings the document back by a step, or on again. It must be as it was at the last note.
  void undo(Document& document) { go_to(document, now_ - 1); }
  void redo(Document& document) { go_to(document, now_ + 1); }

 private:
  void go_to(Document& document, std::size_t moment);

  std::vector<Moment> moments_;
  std::size_t now_ = 0;
};

}  // namespace vqc

#endif
