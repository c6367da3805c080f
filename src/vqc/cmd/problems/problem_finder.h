#ifndef VQC_CMD_PROBLEMS_PROBLEM_FINDER_H
#define VQC_CMD_PROBLEMS_PROBLEM_FINDER_H

#include <memory>
#include <mutex>

#include "libkel/background.h"
#include "libkel/descriptor.h"
#include "vqc/cmd/problems/find_problems.h"

namespace vqc {

/// Finds the problems of a document while it is edited, in a thread of its own that lets others go first.
class ProblemFinder {
 public:
  ProblemFinder();

  /// Has the document looked at as it is now. What was being done for an earlier one is given up.
  void take(DocumentToCheck document) { background_.take(std::move(document)); }

  /// Can be read from when something has been found, until found() is called. Negative where there can be no pipe.
  int descriptor() const { return out_.get(); }
  /// What has been found since the last call; null for nothing.
  std::shared_ptr<const Problems> found();

 private:
  void work(const DocumentToCheck& document, const std::stop_token& outdated);

  Descriptor out_;
  Descriptor in_;
  std::mutex mutex_;
  std::shared_ptr<const Problems> found_;
  Background<DocumentToCheck> background_{
      [this](const DocumentToCheck& document, const std::stop_token& outdated) { work(document, outdated); }};
};

}  // namespace vqc

#endif
