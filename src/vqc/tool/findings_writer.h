#ifndef VQC_TOOL_FINDINGS_WRITER_H
#define VQC_TOOL_FINDINGS_WRITER_H

#include <memory>
#include <string_view>
#include <vector>

#include "libkel/diagnostics.h"
#include "libkel/sink.h"
#include "libkel/source.h"

namespace vqc {

/// A finding as it is shown: where it stands, and how severe it is for this run.
struct ShownFinding {
  const Source& source;
  const Finding& finding;
  Severity severity;
};

/// Shows findings in one of the formats.
class FindingsWriter {
 public:
  FindingsWriter() = default;
  FindingsWriter(const FindingsWriter&) = delete;
  FindingsWriter& operator=(const FindingsWriter&) = delete;
  virtual ~FindingsWriter() = default;

  virtual void write(const ShownFinding& shown) = 0;
  /// Call once, when there are no more.
  virtual void finish() {}
};

// The writers write to a sink, which must outlive them.

/// For people: the line and a caret under the range, notes and suggestions.
std::unique_ptr<FindingsWriter> text_writer(Sink& out, bool in_colour);
/// For programs: an object a line.
std::unique_ptr<FindingsWriter> json_writer(Sink& out);
/// For services that collect what tools find: one object of SARIF 2.1.0.
std::unique_ptr<FindingsWriter> sarif_writer(Sink& out);
/// For a continuous integration that marks lines: workflow commands.
std::unique_ptr<FindingsWriter> github_writer(Sink& out);

/// The writer for a format's name, or null.
std::unique_ptr<FindingsWriter> writer_for(std::string_view format, Sink& out, bool in_colour);

}  // namespace vqc

#endif
