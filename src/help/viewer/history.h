#ifndef HELP_VIEWER_HISTORY_H
#define HELP_VIEWER_HISTORY_H

// The pages that have been looked at, in their order.

#include <cstddef>
#include <string>
#include <vector>

namespace help {

/// A page that has been looked at, and how far down.
struct Visit {
  std::string file;
  int scrolled = 0;

  bool operator==(const Visit&) const = default;
};

/// The visits that Back and Forward lead to.
class History {
 public:
  /// Goes on to a new page. What Forward would have led to is forgotten.
  void go_to(const std::string& file) {
    if (!visits_.empty()) visits_.resize(++at_);
    visits_.push_back({file});
  }

  bool can_go_back() const { return at_ > 0; }
  bool can_go_forward() const { return at_ + 1 < visits_.size(); }
  void go_back() { --at_; }
  void go_forward() { ++at_; }

  bool empty() const { return visits_.empty(); }
  /// Where the reader is; to be asked only once he has gone somewhere.
  Visit& here() { return visits_[at_]; }

 private:
  std::vector<Visit> visits_;
  std::size_t at_ = 0;
};

}  // namespace help

#endif
