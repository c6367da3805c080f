#ifndef VQC_CMD_EDITORS_KIT_BESIDE_H
#define VQC_CMD_EDITORS_KIT_BESIDE_H

// Chooses the place of a window by what it would hide. Nothing of X is asked here.

#include <vector>

#include "vqc/cmd/editors/kit/screen_area.h"

namespace vqc::editors {

/// A window on the screen, as one that opens beside it sees it.
struct Neighbour {
  ScreenArea frame;
  ScreenArea title;  // of no size where the window manager gives it none
  ScreenArea list;   // of no size where it has none
};

/// Where a window of that size hides least of `owner`, of its title and its list above all, and then of the others.
ScreenArea area_beside(const ScreenArea& size, const Neighbour& owner, const std::vector<ScreenArea>& others,
                       const ScreenArea& screen);

/// Where a window of that size lies in the middle of `owner`.
ScreenArea area_over(const ScreenArea& size, const ScreenArea& owner, const ScreenArea& screen);

}  // namespace vqc::editors

#endif
