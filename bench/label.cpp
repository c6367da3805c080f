// A Motif program that shows one label, in the kind of font that the editor has, and ends when it has been mapped: the
// least that it takes to start.

#include <Xm/Label.h>
#include <Xm/Xm.h>

int main(int argc, char** argv) {
  XtAppContext context = nullptr;
  XtSetLanguageProc(nullptr, nullptr, nullptr);
  char* resources[] = {const_cast<char*>("*renderTable: plain"), const_cast<char*>("*plain.fontType: FONT_IS_XFT"),
                       const_cast<char*>("*plain.fontName: Sans"), const_cast<char*>("*plain.fontSize: 10"), nullptr};
  Widget shell = XtVaOpenApplication(&context, const_cast<char*>("Label"), nullptr, 0, &argc, argv, resources,
                                     applicationShellWidgetClass, nullptr);
  XtManageChild(XmCreateLabel(shell, const_cast<char*>("label"), nullptr, 0));
  XtRealizeWidget(shell);
  for (bool mapped = false; !mapped;) {
    XEvent event;
    XtAppNextEvent(context, &event);
    mapped = event.type == MapNotify && event.xmap.window == XtWindow(shell);
    XtDispatchEvent(&event);
  }
  XSync(XtDisplay(shell), False);
  while (XtAppPending(context)) XtAppProcessEvent(context, XtIMAll);
}
