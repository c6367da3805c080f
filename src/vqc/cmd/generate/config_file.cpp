// The config file: its sections in their order, and the stop list.

#include "vqc/cmd/generate/config_file.h"

#include "vqc/cmd/generate/includes.h"

namespace vqc {

namespace {

// Each is one formatted print, whose arguments pass through no other: per-cent signs of the name and of the text stay.
constexpr Template stop_list_array = "char @NAME@[] = \"@TEXT@\";\n\n";
constexpr Template no_stop_list = "char *@NAME@ = (char *) 0;\n\n";

constexpr void (*sections[])(Run&) = {
    write_config_includes,
    write_stop_list,
    write_popup_declarations,
    write_popups,
    write_page_names,
    write_resources,
    write_class_declarations,
    write_family_names,
    write_class_pointers,
    write_enumerations,
    write_aliases,
    write_converter_declarations,
    write_converters,
    write_families,
};

}  // namespace

void write_config_file(Run& run) {
  for (auto write_section : sections) write_section(run);
}

void write_stop_list(Run& run) {
  const Text classes = run.document.excluded_classes;
  const auto name = bind<"NAME">(verbatim(run.document.names.stop_list.value()));
  classes ? emit<stop_list_array>(run.out, name, bind<"TEXT">(verbatim(classes))) : emit<no_stop_list>(run.out, name);
}

}  // namespace vqc
