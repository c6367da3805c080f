#include "vqc/cmd/editors/kit/file_box.h"

#include <Xm/FileSB.h>

#include "libkel/message.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/dialog.h"

void show_file_box(Widget box) {
  XmFileSelectionDoSearch(box, nullptr);
  show_dialog(box);
}

Text chosen_path(XtPointer call) {
  return non_empty(text_of(static_cast<XmFileSelectionBoxCallbackStruct*>(call)->value));
}

void title_file_box(Widget box, const char* resource_name) {
  XtVaSetValues(XtParent(box), XmNtitle, text_or_name(resource_name), nullptr);
}
