#ifndef VQC_CMD_EDITORS_KIT_SEARCH_FIELD_H
#define VQC_CMD_EDITORS_KIT_SEARCH_FIELD_H

// The search field of a list of names. Typing shows the names that match in a list of its own, Return goes to the one
// that is selected there, and Escape clears the field.

#include <Xm/Xm.h>

#include <functional>
#include <string>
#include <vector>

#include "vqc/cmd/editors/kit/list_editor.h"

namespace vqc::editors {

/// Lets a text field search names, which are asked for each time, and go to one of them.
void search_in(Widget field, std::function<std::vector<std::string>()> names,
               std::function<void(const std::string& name)> go_to);

/// Lets it search the list of an editor, which may be another one each time; null for none.
void search_in(Widget field, const std::function<const ListEditor*()>& editor);

}  // namespace vqc::editors

#endif
