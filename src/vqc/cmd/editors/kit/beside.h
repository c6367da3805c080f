#ifndef VQC_CMD_EDITORS_KIT_BESIDE_H
#define VQC_CMD_EDITORS_KIT_BESIDE_H

#include <vector>

#include "vqc/cmd/editors/kit/area.h"

/// A window on the screen, as one that opens beside it sees it.
struct Neighbour {
  Area frame;
  Area title;  // of no size where the window manager gives it none
  Area list;   // of no size where it has none
};

/// Where a window of that size hides least of `owner`, of its title and its list above all, and then of the others.
Area area_beside(const Area& size, const Neighbour& owner, const std::vector<Area>& others, const Area& screen);

/// Where a window of that size lies in the middle of `owner`.
Area area_over(const Area& size, const Area& owner, const Area& screen);

#endif
