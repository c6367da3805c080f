#ifndef VQC_CMD_SAVEFILE_HEADER_KEYS_H
#define VQC_CMD_SAVEFILE_HEADER_KEYS_H

#include "vqc/cmd/model/options.h"
#include "vqc/cmd/model/stop.h"
#include "vqc/cmd/savefile/keywords.h"

/// One key of a document's header and the place its value has in the model.
struct HeaderKey {
  Kw word;
  Text* value;
};

/// In the order in which they are written, which is the only order in which they are read.
inline const HeaderKey header_keys[] = {
    {Kw::code_name, &output_names.code},
    {Kw::config_name, &output_names.config},
    {Kw::stubs_name, &output_names.stubs},
    {Kw::generate_family_table_string, &name_options.family_table.document},
    {Kw::generate_family_name_string, &name_options.family_names.document},
    {Kw::generate_xwidget_string, &name_options.xwidgets.document},
    {Kw::generate_stop_list_string, &name_options.stop_list.document},
    {Kw::generate_popup_string, &name_options.popups.document},
    {Kw::generate_page_name_string, &name_options.page_names.document},
    {Kw::generate_family_count_string, &name_options.family_count.document},
    {Kw::generate_enumeration_string, &name_options.enumerations.document},
    {Kw::generate_converter_string, &name_options.converters.document},
    {Kw::generate_alias_string, &name_options.aliases.document},
};

#endif
