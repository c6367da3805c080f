// What all formats of findings share.

#include "vqc/tool/findings_writer.h"

namespace vqc {

std::unique_ptr<FindingsWriter> writer_for(std::string_view format, Sink& out, bool in_colour) {
  if (format == "text") return text_writer(out, in_colour);
  if (format == "json") return json_writer(out);
  if (format == "sarif") return sarif_writer(out);
  if (format == "github") return github_writer(out);
  return nullptr;
}

}  // namespace vqc
