// Names the parts of a document.

#include "vqc/cmd/editors/kit/part_names.h"

#include "libkel/message.h"

namespace vqc::editors {

namespace {

/// The message for each part, in which its name stands if it has one.
constexpr const char* part_messages[] = {
    "part_family",   "part_widget",      "part_enumeration",   "part_alias",         "part_converter", "part_popup",
    "part_page",     "part_code_header", "part_family_header", "part_config_header", "part_resource",  "part_entry",
    "part_families", "part_stop_list",   "part_table_names",   "part_output_names",  "part_procedure",
};

}  // namespace

std::string part_name(Part part, Text name) {
  const std::string text(name.view());
  return filled(text_or_name(part_messages[static_cast<std::size_t>(part)]), {text.c_str()});
}

}  // namespace vqc::editors
