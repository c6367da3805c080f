#include "vqc/cmd/editors/kit/font_units.h"

#include <Xm/Label.h>

#include "vqc/cmd/editors/kit/compound.h"

void measure_font(Widget shell) {
  Widget label = XmCreateLabel(shell, const_cast<char*>("font"), nullptr, 0);
  XmRenderTable font = nullptr;
  XtVaGetValues(label, XmNrenderTable, &font, nullptr);
  const int height = XmStringHeight(font, CompoundString("font"));
  XmSetFontUnits(XtDisplay(shell), height, height);
  XtDestroyWidget(label);
}
