// What all formats of findings share.

#include "vqc/tool/findings_writer.h"

namespace vqc {

const char* severity_name(Severity severity) {
  constexpr const char* kNames[] = {"error", "warning", "note"};
  return kNames[static_cast<std::size_t>(severity)];
}

std::string suggestion_words(const Finding& finding) { return "did you mean '" + finding.suggestion + "'?"; }

std::unique_ptr<FindingsWriter> writer_for(std::string_view format, Sink& out, bool in_colour) {
  if (format == "text") return text_writer(out, in_colour);
  if (format == "json") return json_writer(out);
  if (format == "sarif") return sarif_writer(out);
  if (format == "github") return github_writer(out);
  return nullptr;
}

}  // namespace vqc
