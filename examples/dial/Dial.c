#include "Dial.h"

#include <X11/IntrinsicP.h>
#include <X11/StringDefs.h>
#include <math.h>
#include <string.h>

enum { highest = 100, usual_size = 80 };

typedef struct {
  CorePart core;
  struct {
    int value, direction;
    Pixel foreground;
    XtCallbackList callback;
    GC gc;
  } dial;
} DialRec, *DialWidget;

#define AT(member) XtOffsetOf(DialRec, dial.member)

static XtResource resources[] = {
    {DialNvalue, "Value", XtRInt, sizeof(int), AT(value), XtRImmediate, (XtPointer)0},
    {DialNdirection, "Direction", DialRDirection, sizeof(int), AT(direction), XtRImmediate, (XtPointer)DialClockwise},
    {XtNforeground, XtCForeground, XtRPixel, sizeof(Pixel), AT(foreground), XtRString, XtDefaultForeground},
    {XtNcallback, XtCCallback, XtRCallback, sizeof(XtCallbackList), AT(callback), XtRCallback, NULL},
};

/* From a resource file: "clockwise" or "anticlockwise". */
static Boolean string_to_direction(Display* display, XrmValue* args, Cardinal* arg_count, XrmValue* from, XrmValue* to,
                                   XtPointer* data) {
  static int direction;

  (void)args, (void)arg_count, (void)data;
  direction = strcmp(from->addr, "anticlockwise") == 0 ? DialAnticlockwise : DialClockwise;
  if (direction == DialClockwise && strcmp(from->addr, "clockwise") != 0) {
    XtDisplayStringConversionWarning(display, from->addr, DialRDirection);
    return False;
  }
  if (to->addr && to->size < sizeof direction) return False;
  if (to->addr)
    memcpy(to->addr, &direction, sizeof direction);
  else
    to->addr = (XPointer)&direction;
  to->size = sizeof direction;
  return True;
}

static void class_initialize(void) {
  XtSetTypeConverter(XtRString, DialRDirection, string_to_direction, NULL, 0, XtCacheNone, NULL);
}

static void keep_in_range(DialWidget w) {
  if (w->dial.value < 0) w->dial.value = 0;
  if (w->dial.value > highest) w->dial.value = highest;
}

static void make_gc(DialWidget w) {
  XGCValues values = {.foreground = w->dial.foreground};

  w->dial.gc = XtGetGC((Widget)w, GCForeground, &values);
}

static void initialize(Widget request, Widget new_widget, ArgList args, Cardinal* count) {
  DialWidget w = (DialWidget)new_widget;

  (void)request, (void)args, (void)count;
  if (w->core.width == 0) w->core.width = usual_size;
  if (w->core.height == 0) w->core.height = usual_size;
  keep_in_range(w);
  make_gc(w);
}

static void destroy(Widget w) { XtReleaseGC(w, ((DialWidget)w)->dial.gc); }

/* The needle's angle in radians: the scale begins at the bottom and goes once around. */
static double angle(DialWidget w) {
  double turn = 2 * 3.14159265358979 * w->dial.value / highest;

  return w->dial.direction == DialClockwise ? turn : -turn;
}

static void expose(Widget widget, XEvent* event, Region region) {
  DialWidget w = (DialWidget)widget;
  int size = w->core.width < w->core.height ? w->core.width : w->core.height;
  int x = w->core.width / 2, y = w->core.height / 2, radius = size / 2 - 2;

  (void)event, (void)region;
  if (radius <= 0) return;
  XDrawArc(XtDisplay(w), XtWindow(w), w->dial.gc, x - radius, y - radius, 2U * (unsigned)radius, 2U * (unsigned)radius,
           0, 360 * 64);
  XDrawLine(XtDisplay(w), XtWindow(w), w->dial.gc, x, y, x - (int)(radius * sin(angle(w))),
            y + (int)(radius * cos(angle(w))));
}

static Boolean set_values(Widget old, Widget request, Widget new_widget, ArgList args, Cardinal* count) {
  DialWidget before = (DialWidget)old, w = (DialWidget)new_widget;

  (void)request, (void)args, (void)count;
  keep_in_range(w);
  if (before->dial.foreground != w->dial.foreground) {
    XtReleaseGC(old, before->dial.gc);
    make_gc(w);
  }
  return before->dial.value != w->dial.value || before->dial.direction != w->dial.direction ||
         before->dial.foreground != w->dial.foreground;
}

/* Five more, and from the end back to the beginning; tells the application. */
static void turn(Widget widget, XEvent* event, String* params, Cardinal* count) {
  DialWidget w = (DialWidget)widget;

  (void)event, (void)params, (void)count;
  w->dial.value = (w->dial.value + 5) % (highest + 1);
  XClearArea(XtDisplay(w), XtWindow(w), 0, 0, 0, 0, True);
  XtCallCallbackList(widget, w->dial.callback, (XtPointer)(long)w->dial.value);
}

static XtActionsRec actions[] = {{"turn", turn}};

static struct {
  CoreClassPart core_class;
} class_record = {{
    .superclass = &widgetClassRec,
    .class_name = "Dial",
    .widget_size = sizeof(DialRec),
    .class_initialize = class_initialize,
    .initialize = initialize,
    .realize = XtInheritRealize,
    .actions = actions,
    .num_actions = XtNumber(actions),
    .resources = resources,
    .num_resources = XtNumber(resources),
    .xrm_class = NULLQUARK,
    .compress_motion = True,
    .compress_exposure = XtExposeCompressMultiple,
    .compress_enterleave = True,
    .destroy = destroy,
    .expose = expose,
    .set_values = set_values,
    .set_values_almost = XtInheritSetValuesAlmost,
    .version = XtVersion,
    .tm_table = "<Btn1Down>: turn()",
    .query_geometry = XtInheritQueryGeometry,
    .display_accelerator = XtInheritDisplayAccelerator,
}};

WidgetClass dialWidgetClass = (WidgetClass)&class_record;
