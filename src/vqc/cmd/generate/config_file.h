#ifndef VQC_CMD_GENERATE_CONFIG_FILE_H
#define VQC_CMD_GENERATE_CONFIG_FILE_H

#include "vqc/cmd/generate/walk.h"

/// Writes the widget configuration code: the tables through which the builder learns the widget set.
void write_config_file(Run& run);

// Its sections, a group to a file. Those on popups and pages come before those on resources and converters, which
// refer to the places that the former have given them.

void write_stop_list(Run& run);

void write_popup_declarations(Run& run);
void write_popups(Run& run);
void write_page_names(Run& run);
/// The popup of that name, if it stands in the table; else null.
const PopupDef* written_popup(const Text& name);
/// A reference to a popup in the table, for templates.
struct PopupReference {
  const PopupDef* popup;
};
void put(Stream& out, const PopupReference& reference);
/// The place of the page of that name in its table, or -1.
int written_page(const Text& name);

void write_resources(Run& run);

void write_class_declarations(Run& run);
void write_class_pointers(Run& run);

void write_enumerations(Run& run);
void write_aliases(Run& run);
void write_converter_declarations(Run& run);
void write_converters(Run& run);

void write_family_names(Run& run);
void write_families(Run& run);

#endif
