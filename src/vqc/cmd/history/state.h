#ifndef VQC_CMD_HISTORY_STATE_H
#define VQC_CMD_HISTORY_STATE_H

#include <array>
#include <memory>
#include <set>
#include <vector>

#include "vqc/cmd/model/document.h"

namespace vqc {

struct WidgetState : WidgetFields {
  std::vector<ResourceFields> resources;

  bool operator==(const WidgetState&) const = default;
};

struct EnumState : EnumFields {
  std::vector<EnumEntryFields> entries;

  bool operator==(const EnumState&) const = default;
};

struct FamilyState : FamilyInit {
  Text name;
  std::array<std::vector<Text>, std::size(family_list_parts)> lists;  // of names, in the order of each_family_list()

  bool operator==(const FamilyState&) const = default;
};

/// What a document says at a moment. It never changes. States of one document share the records that are the same in
/// both, so that keeping one more costs what has changed.
struct State {
  template <class Record>
  using Records = std::vector<std::shared_ptr<const Record>>;
  using Names = std::vector<Text>;

  // In the order of the document.
  Records<WidgetState> widgets;
  Records<EnumState> enumerations;
  Records<AliasFields> aliases;
  Records<ConverterFields> converters;
  Records<PopupFields> popups;
  Records<FamilyState> families;
  Names pages;
  Names code_headers;
  Names family_headers;
  Names config_headers;

  std::array<Text, std::size(all_name_options)> names;
  OutputNames output_names;
  Text excluded_classes;

  std::set<std::shared_ptr<const void>> texts;  // in which all of these stand

  /// Whether both say the same.
  bool operator==(const State& other) const;
};

/// The fields that a record, or its state, has among other things.
template <class Fields>
Fields& part(Fields& whole) {
  return whole;
}

/// The state of a document. It shares what it can with `before`, an earlier one of the same document or null, and is
/// `before` itself where nothing has changed.
std::shared_ptr<const State> capture(const Document& document, const std::shared_ptr<const State>& before);

/// Brings a document from the state in which it is to another one. Records that are in both stay where they are, and so
/// does whatever points to them. The texts are those of `to`, which has to be kept. `dirty` is left for the caller to
/// say.
void restore(Document& document, const State& from, const State& to);

}  // namespace vqc

#endif
