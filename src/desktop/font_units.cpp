#include "desktop/font_units.h"

#include <Xm/Label.h>

namespace vqc {

void set_font_unit(Widget shell) {
  Widget label = XmCreateLabel(shell, const_cast<char*>("font"), nullptr, 0);
  XmRenderTable font = nullptr;
  XtVaGetValues(label, XmNrenderTable, &font, nullptr);
  XmString line = XmStringCreateLocalized(const_cast<char*>("font"));
  const int height = XmStringHeight(font, line);
  XmStringFree(line);
  XmSetFontUnits(XtDisplay(shell), height, height);
  XtDestroyWidget(label);
}

}  // namespace vqc
