#ifndef VQC_CMD_LOOKUP_USES_H
#define VQC_CMD_LOOKUP_USES_H

#include <vector>

#include "vqc/cmd/model/document.h"
#include "vqc/cmd/model/part.h"

namespace vqc {

/// How many parts of a document of each kind use a thing.
struct UseCounts {
  int resources = 0;
  int widgets = 0;
  int converters = 0;
  int popups = 0;
  int families = 0;

  int all() const { return resources + widgets + converters + popups + families; }
  bool operator==(const UseCounts&) const = default;
};

/// Who uses a thing, in the order of the document: the places that name it. Families use what their lists name;
/// resources, widgets, converters, popups and the initialisation of families use what their fields name. Nobody uses a
/// family or an entry.
std::vector<Spot> uses_of(const Document& document, const Spot& thing);

/// How many there are. This walks through the document, and makes nothing.
UseCounts count_uses(const Document& document, const Spot& thing);

}  // namespace vqc

#endif
