// Hands each state of the document to who finds its problems, and hears what has been found.

#include "vqc/cmd/editors/document_check.h"

#include <filesystem>
#include <utility>

#include "vqc/cmd/editors/document_files.h"
#include "vqc/cmd/editors/facts.h"
#include "vqc/cmd/editors/kit/main_shell.h"
#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/problems/problem_finder.h"

namespace vqc::editors {

namespace {

std::optional<ProblemFinder> finder;
std::shared_ptr<const Problems> found = std::make_shared<const Problems>();

void take_found(XtPointer, int*, XtInputId*) {
  guarded([] {
    auto problems = finder->found();
    if (!problems) return;
    found = std::move(problems);
    note_problems(static_cast<int>(found->count(Severity::error)), static_cast<int>(found->count(Severity::warning)));
    if (on_problems) on_problems();
  });
}

void begin() {
  finder.emplace();
  if (finder->descriptor() < 0) return;
  // The toolkit keeps a condition where it expects an address.
  const auto when_readable = reinterpret_cast<XtPointer>(XtInputReadMask);  // NOLINT(performance-no-int-to-ptr)
  XtAppAddInput(XtWidgetToApplicationContext(main_shell()), finder->descriptor(), when_readable, take_found, nullptr);
}

}  // namespace

void check_document(std::shared_ptr<const State> state, const std::optional<std::string>& path) {
  if (!finder) begin();
  const std::string folder = std::filesystem::path(path.value_or("")).parent_path();
  const UnreadRest* unread = unread_rest();
  finder->take({std::move(state), folder, unread ? unread->file : nullptr});
}

const std::shared_ptr<const Problems>& problems_found() { return found; }

}  // namespace vqc::editors
