#ifndef VQC_CMD_MODEL_PART_H
#define VQC_CMD_MODEL_PART_H

#include <cstdint>
#include <string>

namespace vqc {

/// A kind of thing that a document consists of.
enum class Part : std::uint8_t {
  family,
  widget,
  enumeration,
  alias,
  converter,
  popup,
  page,
  code_header,
  family_header,
  config_header,
  resource,
  entry,
  families,  // their order
  stop_list,
  table_names,   // of the generated tables
  output_names,  // of the generated files
  procedure,     // is no more than the name that fields give
};

/// A place in a document, by the names that lead to it.
struct Spot {
  Part part;
  std::string name = {};   // empty for a part that has none
  std::string of = {};     // the widget of a resource, the enumeration of an entry; of others the family that has them,
                           // where one is meant; else empty
  std::string field = {};  // the word of the field as documents have it; empty for the record as a whole

  bool operator==(const Spot&) const = default;
};

}  // namespace vqc

#endif
