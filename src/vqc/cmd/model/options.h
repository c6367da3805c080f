#ifndef VQC_CMD_MODEL_OPTIONS_H
#define VQC_CMD_MODEL_OPTIONS_H

#include "libkel/text.h"

// The names of the generated tables, the names of the generated files, and the switches of the program.

/// The name of one generated table or variable, in three layers: what the document says, else what the user's
/// resources say, else what is built in.
struct NameOption {
  const char* builtin;
  const char* resource = nullptr;  // the resource database owns it
  Text document = {};              // null while the document does not set it

  /// Never null.
  const char* resource_or_builtin() const { return resource && *resource ? resource : builtin; }
  const char* value() const { return document ? document.c_str() : resource_or_builtin(); }
};

/// The ten names, in the order in which a document states them.
struct NameOptions {
  NameOption family_table{"xw_families"};
  NameOption family_names{"xw_family_names"};
  NameOption xwidgets{"xwidgets"};
  NameOption stop_list{"vq_config_stop_list"};
  NameOption popups{"popups"};
  NameOption page_names{"xw_page_names"};
  NameOption family_count{"xw_family_count"};
  NameOption enumerations{"enumerations"};
  NameOption converters{"converters"};
  NameOption aliases{"aliases"};
};
inline NameOptions name_options;

/// Where they stand, in that order.
inline constexpr NameOption NameOptions::*all_name_options[] = {
    &NameOptions::family_table, &NameOptions::family_names, &NameOptions::xwidgets,     &NameOptions::stop_list,
    &NameOptions::popups,       &NameOptions::page_names,   &NameOptions::family_count, &NameOptions::enumerations,
    &NameOptions::converters,   &NameOptions::aliases,
};

/// What the user's resource files say about the whole program. A batch run reads none, so that all are off.
struct ApplicationResources {
  bool verbose_code = false;
  bool comment_code = false;
  bool generate_options = false;
  bool java_compatible_widgets = false;
  bool mfc_compatible_widgets = false;
};
inline ApplicationResources application_resources;

/// Forced on by the command line.
inline bool java_compatible_widgets = false;
inline bool mfc_compatible_widgets = false;

inline bool vqc_verbose_code() { return application_resources.verbose_code; }
inline bool vqc_comment_code() { return application_resources.comment_code; }
inline bool vqc_generate_options() { return application_resources.generate_options; }
inline bool vqc_java_compatible_widgets() {
  return java_compatible_widgets || application_resources.java_compatible_widgets;
}
inline bool vqc_mfc_compatible_widgets() {
  return mfc_compatible_widgets || application_resources.mfc_compatible_widgets;
}

/// What the options dialog edits. The generators take the two switches from the resources, not from here.
struct DocumentSwitches {
  bool verbose_code = false;
  bool comment_code = false;
  bool dialog_exists = false;  // once it does, its toggles start from the resources
};
inline DocumentSwitches document_switches;

inline void vqc_set_verbose_code(bool on) { document_switches.verbose_code = on; }
inline void vqc_set_comment_code(bool on) { document_switches.comment_code = on; }
inline bool vqc_get_verbose_code() {
  return document_switches.dialog_exists ? vqc_verbose_code() : document_switches.verbose_code;
}
inline bool vqc_get_comment_code() {
  return document_switches.dialog_exists ? vqc_comment_code() : document_switches.comment_code;
}

// What the resources, or the built-in defaults, say. Never null.

inline const char* vqc_family_table_string() { return name_options.family_table.resource_or_builtin(); }
inline const char* vqc_family_names_string() { return name_options.family_names.resource_or_builtin(); }
inline const char* vqc_xwidget_array_string() { return name_options.xwidgets.resource_or_builtin(); }
inline const char* vqc_stop_list_array_string() { return name_options.stop_list.resource_or_builtin(); }
inline const char* vqc_popup_array_string() { return name_options.popups.resource_or_builtin(); }
inline const char* vqc_page_names_string() { return name_options.page_names.resource_or_builtin(); }
inline const char* vqc_family_count_string() { return name_options.family_count.resource_or_builtin(); }
inline const char* vqc_enumeration_array_string() { return name_options.enumerations.resource_or_builtin(); }
inline const char* vqc_converter_array_string() { return name_options.converters.resource_or_builtin(); }
inline const char* vqc_alias_array_string() { return name_options.aliases.resource_or_builtin(); }

// What holds for the document. Never null.

inline const char* vqc_get_family_table_variable() { return name_options.family_table.value(); }
inline const char* vqc_get_family_names_variable() { return name_options.family_names.value(); }
inline const char* vqc_get_xwidgets_variable() { return name_options.xwidgets.value(); }
inline const char* vqc_get_stop_list_variable() { return name_options.stop_list.value(); }
inline const char* vqc_get_popups_variable() { return name_options.popups.value(); }
inline const char* vqc_get_page_names_variable() { return name_options.page_names.value(); }
inline const char* vqc_get_family_count_variable() { return name_options.family_count.value(); }
inline const char* vqc_get_enumerations_variable() { return name_options.enumerations.value(); }
inline const char* vqc_get_converters_variable() { return name_options.converters.value(); }
inline const char* vqc_get_aliases_variable() { return name_options.aliases.value(); }

// What the document itself says; null takes it back.

inline void vqc_set_family_table_variable(const Text& name) { name_options.family_table.document = name; }
inline void vqc_set_family_names_variable(const Text& name) { name_options.family_names.document = name; }
inline void vqc_set_xwidgets_variable(const Text& name) { name_options.xwidgets.document = name; }
inline void vqc_set_stop_list_variable(const Text& name) { name_options.stop_list.document = name; }
inline void vqc_set_popups_variable(const Text& name) { name_options.popups.document = name; }
inline void vqc_set_page_names_variable(const Text& name) { name_options.page_names.document = name; }
inline void vqc_set_family_count_variable(const Text& name) { name_options.family_count.document = name; }
inline void vqc_set_enumerations_variable(const Text& name) { name_options.enumerations.document = name; }
inline void vqc_set_converters_variable(const Text& name) { name_options.converters.document = name; }
inline void vqc_set_aliases_variable(const Text& name) { name_options.aliases.document = name; }

/// The files last generated from the document; null while there are none.
struct OutputNames {
  Text config;
  Text code;
  Text stubs;
};
inline OutputNames output_names;

inline void set_config_file(const Text& name) { output_names.config = name; }
inline void set_code_file(const Text& name) { output_names.code = name; }
inline void set_stubs_file(const Text& name) { output_names.stubs = name; }
inline const char* config_generate_name() { return output_names.config; }
inline const char* code_generate_name() { return output_names.code; }
inline const char* stubs_generate_name() { return output_names.stubs; }

/// Leaves the document without names of its own.
inline void clear_options() {
  for (auto option : all_name_options) (name_options.*option).document = nullptr;
  output_names = {};
}

#endif
