#ifndef VQC_CMD_GENERATE_CONFIG_FILE_H
#define VQC_CMD_GENERATE_CONFIG_FILE_H

#include "vqc/cmd/generate/walk.h"

namespace vqc {

/// Writes the widget configuration code: the tables through which the builder learns the widget set.
void write_config_file(Run& run);

// Its sections, a group to a file. Those on popups and pages come before those on resources and converters, which
// refer to the places that the former have given them.

void write_stop_list(Run& run);

void write_popup_declarations(Run& run);
void write_popups(Run& run);
void write_page_names(Run& run);

/// A reference to a popup, for templates: its place in the table, or a null pointer when it has none there.
struct PopupReference {
  Text table;
  int place;  // -1 for none
};
PopupReference reference_to_popup(const Run& run, Text name);
void put(Sink& out, const PopupReference& reference);

void write_resources(Run& run);

void write_class_declarations(Run& run);
void write_class_pointers(Run& run);

void write_enumerations(Run& run);
void write_aliases(Run& run);
void write_converter_declarations(Run& run);
void write_converters(Run& run);

void write_family_names(Run& run);
void write_families(Run& run);

}  // namespace vqc

#endif
