// The rules on what single names and values are in C.

#include <utility>

#include "vqc/cmd/check/given.h"
#include "vqc/cmd/check/rules.h"

namespace vqc {

void texts_in_c(Inspection& inspection) {
  each_given(inspection.document, [&](const Given& given) {
    for (TextFault& each : faults_of_text(given.word, given.kind, given.text)) {
      inspection.add(each.id, place_of(inspection, given), std::move(each.arguments));
    }
  });
}

void entries_without_code_symbol(Inspection& inspection) {
  for (const EnumDef& enumeration : inspection.document.enumerations) {
    for (const EnumEntry& entry : enumeration.entries) {
      if (entry.code_symbol) continue;
      inspection.add(FindingId::missing_code_symbol, inspection.place_of(entry.name), {string_of(entry.name)});
    }
  }
}

void aliases_without_to_name(Inspection& inspection) {
  for (const AliasDef& alias : inspection.document.aliases) {
    if (!alias.to_name)
      inspection.add(FindingId::missing_to_name, inspection.places.of(&alias), {string_of(alias.name)});
  }
}

}  // namespace vqc
