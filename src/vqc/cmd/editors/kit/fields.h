#ifndef VQC_CMD_EDITORS_KIT_FIELDS_H
#define VQC_CMD_EDITORS_KIT_FIELDS_H

// What stands in text fields and toggles, without loss.

#include <Xm/Xm.h>

#include "vqc/cmd/editors/kit/edited_document.h"

namespace vqc::editors {

/// Writes a text into a text field or text widget; null counts as "". 0 when there is no widget, else 1.
int settext(Widget w, Name text);
inline int settextf(Widget w, Name text) { return settext(w, text); }

/// The same, as if the user had typed it: he can take it back.
void type_text(Widget w, Name text);

/// Shows a name in a text field that the user may take as it is, or type over.
void offer_name(Widget field, Name name);
/// Selects what stands in a text field, so that typing replaces it, and gives it the keyboard.
void offer_text(Widget field);
/// Selects it without giving the field the keyboard. What somebody else has selected stays selected until the field
/// gets that.
void mark_text(Widget field);

/// What stands in a text field or text widget; null when there is no widget. What settext() could not show as it is
/// comes back as it was, unless the user has changed it. A `field` gets the text too, as null when it is empty.
std::string gettextf(Widget w, Text* field = nullptr);

/// The text that settext() was given for a field, if what it shows of it is `shown`; otherwise `shown` itself.
std::string undistorted(Widget w, const std::string& shown);

/// Sets a toggle button, or its gadget, without calling its callbacks. 0 when there is no widget, else 1.
int settoggle(Widget w, bool on);

/// Whether a toggle button, or its gadget, is set; false when there is no widget. A `flag` gets it too.
bool gettoggle(Widget w, bool* flag = nullptr);

}  // namespace vqc::editors

#endif
