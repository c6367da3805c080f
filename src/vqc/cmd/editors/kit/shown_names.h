#ifndef VQC_CMD_EDITORS_KIT_SHOWN_NAMES_H
#define VQC_CMD_EDITORS_KIT_SHOWN_NAMES_H

// The names that a list shows. Not all that is in a name can be displayed, and two names may look the same, so the
// place of an item tells its name, never what is displayed. Places are counted from 1.

#include <Xm/List.h>

#include <vector>

#include "vqc/cmd/editors/kit/edited_document.h"

namespace vqc::editors {

/// Shows `names`, and nothing else, in a list.
void list_show(Widget list, const std::vector<std::string>& names);
/// Puts a name at a place, or at the end for 0, and scrolls so that it is seen.
void list_insert(Widget list, Name name, int position);
/// Takes a name out if it is there.
void list_delete(Widget list, Name name);
/// Takes the name at one place out and puts it in at another.
void list_move(Widget list, int from, int to);

const std::vector<std::string>& list_names(Widget list);
/// The place of a name; 0 when it is absent.
int list_position(Widget list, Name name);
/// The place of what is selected; 0 for none.
int list_selected_place(Widget list);
/// The name that is selected; empty for none, and where there is no list.
std::string list_selected(Widget list);
/// Selects a name and scrolls so that it is seen; calls nobody.
void list_select(Widget list, Name name);
/// The same of a place; the nearest one where the list has no such place.
void list_select_place(Widget list, int place);
/// The name that a click on a list means.
std::string clicked_name(Widget list, const XmListCallbackStruct& call);

}  // namespace vqc::editors

#endif
