#ifndef VQC_CMD_MODEL_OPTIONS_H
#define VQC_CMD_MODEL_OPTIONS_H

#include "libkel/text.h"

namespace vqc {

/// The name of one generated table or variable, in three layers: what the document says, else what the user's
/// resources say, else what is built in.
struct NameOption {
  const char* builtin;
  const char* resource = nullptr;  // the resource database owns it
  Text document = {};              // null while the document does not set it

  /// Never null.
  const char* resource_or_builtin() const { return resource && *resource ? resource : builtin; }
  /// Never null.
  Text value() const { return document ? document : resource_or_builtin(); }
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

/// Where they stand, in that order.
inline constexpr NameOption NameOptions::*all_name_options[] = {
    &NameOptions::family_table, &NameOptions::family_names, &NameOptions::xwidgets,     &NameOptions::stop_list,
    &NameOptions::popups,       &NameOptions::page_names,   &NameOptions::family_count, &NameOptions::enumerations,
    &NameOptions::converters,   &NameOptions::aliases,
};

/// The files last generated from the document; null while there are none.
struct OutputNames {
  Text config;
  Text code;
  Text stubs;

  bool operator==(const OutputNames&) const = default;
};

/// What a new resource is marked with, which is said for the whole program.
struct Compatibility {
  bool mfc = false;
  bool java = false;
};

}  // namespace vqc

#endif
