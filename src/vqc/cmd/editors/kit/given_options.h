#ifndef VQC_CMD_EDITORS_KIT_GIVEN_OPTIONS_H
#define VQC_CMD_EDITORS_KIT_GIVEN_OPTIONS_H

#include "vqc/cmd/editors/kit/edited_document.h"

// The names of the generated tables, the names of the generated files, and the switches of the program, under the names
// by which they are known.

namespace vqc::editors {

/// What the user's resource files say about the whole program.
struct ApplicationResources {
  bool verbose_code = false;
  bool comment_code = false;
  bool generate_options = false;
  bool java_compatible_widgets = false;
  bool mfc_compatible_widgets = false;
};
inline ApplicationResources application_resources;

/// Forced on by the command line.
inline Compatibility forced_compatibility;

inline bool vqc_verbose_code() { return application_resources.verbose_code; }
inline bool vqc_comment_code() { return application_resources.comment_code; }
inline bool vqc_generate_options() { return application_resources.generate_options; }
inline bool vqc_java_compatible_widgets() {
  return forced_compatibility.java || application_resources.java_compatible_widgets;
}
inline bool vqc_mfc_compatible_widgets() {
  return forced_compatibility.mfc || application_resources.mfc_compatible_widgets;
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

// Of each name: what the resources, or the built-in defaults, say; what holds for the document; and what the document
// itself says, which null takes back. Only that is ever null.

// clang-format off
#define NAME_OPTION(option, of_program, of_document)                                                            \
  inline const char* vqc_##of_program()     { return edited_document.names.option.resource_or_builtin(); }      \
  inline Text vqc_get_##of_document()       { return edited_document.names.option.value(); }                    \
  inline void vqc_set_##of_document(Name name) {                                                                \
    edited_document.names.option.document = edited_document.keep(name);                                         \
  }
NAME_OPTION(family_table, family_table_string,      family_table_variable)
NAME_OPTION(family_names, family_names_string,      family_names_variable)
NAME_OPTION(xwidgets,     xwidget_array_string,     xwidgets_variable)
NAME_OPTION(stop_list,    stop_list_array_string,   stop_list_variable)
NAME_OPTION(popups,       popup_array_string,       popups_variable)
NAME_OPTION(page_names,   page_names_string,        page_names_variable)
NAME_OPTION(family_count, family_count_string,      family_count_variable)
NAME_OPTION(enumerations, enumeration_array_string, enumerations_variable)
NAME_OPTION(converters,   converter_array_string,   converters_variable)
NAME_OPTION(aliases,      alias_array_string,       aliases_variable)
#undef NAME_OPTION

// The names of the generated files; null while there are none.
#define GENERATED_FILE(file)                                                                                    \
  inline void set_##file##_file(Name name)    { edited_document.output_names.file = edited_document.keep(name); } \
  inline Text file##_generate_name()          { return edited_document.output_names.file; }
GENERATED_FILE(config)
GENERATED_FILE(code)
GENERATED_FILE(stubs)
#undef GENERATED_FILE
// clang-format on

}  // namespace vqc::editors

#endif
