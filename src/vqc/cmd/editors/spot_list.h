#ifndef VQC_CMD_EDITORS_SPOT_LIST_H
#define VQC_CMD_EDITORS_SPOT_LIST_H

// Lists of places in the document, by their names in the user's language.

#include <Xm/Xm.h>

#include <string>
#include <vector>

#include "vqc/cmd/lookup/uses.h"
#include "vqc/cmd/model/part.h"

namespace vqc::editors {

/// What a place is called, such as "resource label of Dial, page".
std::string spot_name(const Spot& spot);
/// How many use something, such as "42 resources, 1 family".
std::string counts_name(const UseCounts& counts);

/// Shows places in a list, and nothing else.
void list_spots(Widget list, const std::vector<Spot>& spots);
/// The place of a list's selected item, counted from 0; -1 where none is selected.
int selected_place(Widget list);

/// Whether a list calls because an item has been clicked, and not because a key has selected it.
bool is_click(XtPointer call);
/// Acts on an item that is clicked. The arrow keys only select.
template <XtCallbackProc act>
void do_on_click(Widget list, XtPointer, XtPointer call) {
  if (is_click(call)) act(list, nullptr, nullptr);
}

}  // namespace vqc::editors

#endif
