/*
 * Reading and setting the resources of one widget.
 *
 * A table of resources promises two things that only a widget can confirm: that the class knows the resource, and that
 * the value can be read or set where the access says so.  Each kind of value is tried in a way that fits it.
 */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "host.h"

enum { value_room = 32 };

/* Fetches into bytes that were all set to `fill` before. */
static void fetch_over(Widget w, const char* name, unsigned char* bytes, int fill) {
  Arg arg;

  memset(bytes, fill, value_room);
  XtSetArg(arg, (String)name, (XtArgVal)bytes);
  XtGetValues(w, &arg, 1);
}

static XtArgVal as_argument(const unsigned char* bytes, int size) {
  short two;
  int four;
  XtArgVal eight;

  switch (size) {
    case 1:
      return bytes[0];
    case 2:
      return memcpy(&two, bytes, 2), two;
    case 4:
      return memcpy(&four, bytes, 4), four;
    default:
      return memcpy(&eight, bytes, sizeof eight), eight;
  }
}

/*
 * Fetches a value as XtSetValues would take it.  False when the widget wrote nothing, which is how Xt answers for a
 * resource that it does not know.  How much was written shows when it is fetched twice, over different bytes, and what
 * is left of these is cut off; asking the class would miss what a text widget passes on to its source and its sink.
 */
Boolean fetch(Widget w, const char* name, XtArgVal* value, int* size) {
  unsigned char one[value_room], other[value_room];

  fetch_over(w, name, one, 0xAA);
  fetch_over(w, name, other, 0x55);
  for (*size = value_room; *size > 0 && one[*size - 1] == 0xAA && other[*size - 1] == 0x55;) --*size;
  *value = as_argument(other, *size);
  return *size == 1 || *size == 2 || *size == 4 || *size == (int)sizeof(XtArgVal);
}

static const char* type_in(XtResourceList list, Cardinal n, const char* name) {
  const char* type = NULL;

  for (Cardinal i = 0; i < n && !type; i++)
    if (strcmp(list[i].resource_name, name) == 0) type = XrmQuarkToString(XrmStringToQuark(list[i].resource_type));
  XtFree((char*)list);
  return type;
}

static const char* type_in_class(WidgetClass class, const char* name) {
  XtResourceList list;
  Cardinal n;

  XtGetResourceList(class, &list, &n);
  return type_in(list, n, name);
}

static const char* type_in_constraints(WidgetClass class, const char* name) {
  XtResourceList list;
  Cardinal n;

  XtGetConstraintResourceList(class, &list, &n);
  return type_in(list, n, name);
}

/* A text widget passes on what belongs to its source and its sink. */
static const char* type_in_part(Widget w, const char* part, const char* name) {
  XtArgVal object;
  int size;

  if (!type_in_class(XtClass(w), part) || !fetch(w, part, &object, &size) || !object) return NULL;
  return type_in_class(XtClass((Widget)object), name);
}

/* The representation type of a resource of the widget, or of one that its parent keeps for it; "" when nobody knows. */
const char* type_of(Widget w, const char* name) {
  const char* type = type_in_class(XtClass(w), name);

  if (!type && XtParent(w) && XtIsConstraint(XtParent(w))) type = type_in_constraints(XtClass(XtParent(w)), name);
  if (!type) type = type_in_part(w, XtNtextSource, name);
  if (!type) type = type_in_part(w, XtNtextSink, name);
  return type ? type : "";
}

/* Whether the resource has all that the mask asks for. */
Boolean may(Resource_p resource, int access) {
  return resource->access == vqc_access_any || (resource->access & access) == access;
}

void read_resource(Widget w, Resource_p resource, Value_counts* counts) {
  XtArgVal value;
  int size;

  if (!may(resource, vqc_access_get)) return;
  if (fetch(w, resource->name, &value, &size))
    counts->read++;
  else
    fail("%s: %s cannot be read", XtClass(w)->core_class.class_name, resource->name);
}

static void give(Widget w, const char* name, XtArgVal value) {
  Arg arg;

  XtSetArg(arg, (String)name, value);
  XtSetValues(w, &arg, 1);
}

static XtArgVal set_and_read(Widget w, const char* name, XtArgVal value) {
  XtArgVal now = ~value;
  int size;

  give(w, name, value);
  fetch(w, name, &now, &size);
  return now;
}

/* Sets a value and reads it back.  Says so when another one comes back. */
static Boolean takes(Widget w, const char* name, XtArgVal value) {
  XtArgVal now = set_and_read(w, name, value);

  if (now == value) return True;
  fail("%s: %s was set to %ld and reads %ld", XtClass(w)->core_class.class_name, name, (long)value, (long)now);
  return False;
}

static Boolean set_other(Widget w, const char* name, XtArgVal old, XtArgVal other) {
  Boolean taken = takes(w, name, other);

  if (taken) give(w, name, old);
  return taken;
}

static Boolean set_flag(Widget w, Resource_p resource, XtArgVal old) { return set_other(w, resource->name, old, !old); }

/*
 * A number may have bounds (a slider stays on its canvas, and an unset size increment of -1 cannot become 0), so a few
 * ways out of the old value are tried.  None of them makes a number negative: that is where widgets take numbers on
 * trust.  What cannot move at all counts as set when it stays.
 */
static Boolean set_number(Widget w, Resource_p resource, XtArgVal old) {
  static const int steps[] = {1, 2, -1};

  for (size_t i = 0; i < XtNumber(steps); i++) {
    XtArgVal other = old + steps[i];
    if (other < 0 || set_and_read(w, resource->name, other) != other) continue;
    give(w, resource->name, old);
    return True;
  }
  return takes(w, resource->name, old);
}

/* Where a widget stands and how large it is, its parent decides; asking for what it has already changes nothing. */
static Boolean is_geometry(const char* name) {
  static const char* const names[] = {"x", "y", "width", "height", "borderWidth"};

  for (size_t i = 0; i < XtNumber(names); i++)
    if (strcmp(name, names[i]) == 0) return True;
  return False;
}

/* No window may be empty, so a dimension is not made 0, nor does it run over its largest value. */
static Boolean set_dimension(Widget w, Resource_p resource, XtArgVal old) {
  return set_other(w, resource->name, old, (Dimension)(old + 1) ? old + 1 : old - 1);
}

static Boolean set_pixel(Widget w, Resource_p resource, XtArgVal old) {
  Screen* screen = XtScreenOfObject(w);
  XtArgVal black = BlackPixelOfScreen(screen), white = WhitePixelOfScreen(screen);

  return set_other(w, resource->name, old, old == black ? white : black);
}

static Boolean set_same(Widget w, Resource_p resource, XtArgVal old) { return takes(w, resource->name, old); }

/* Text that the widget can make use of, where not any will do. */
static const char* sample_text(const char* name) {
  if (strcmp(name, "geometry") == 0) return "64x64+0+0";
  if (strcmp(name, "cursorName") == 0) return "watch";
  return "sample text";
}

/*
 * Text is given and taken back as the free mode says: where the caller is to free what it gave, the widget has to have
 * copied it, so the text is spoilt before it is freed and must still be there in the widget.
 */
static Boolean set_text(Widget w, Resource_p resource, XtArgVal old) {
  const char* sample = sample_text(resource->name);
  String given = XtNewString((String)sample);
  XtArgVal now = 0;
  int size;

  (void)old;
  give(w, resource->name, (XtArgVal)given);
  if (resource->free_set == vqc_free) {
    memset(given, '#', strlen(given));
    XtFree(given);
  }
  if (fetch(w, resource->name, &now, &size) && now && strcmp((char*)now, sample) == 0) return True;
  fail("%s: %s was set to \"%s\" and reads otherwise", XtClass(w)->core_class.class_name, resource->name, sample);
  return False;
}

static void ignore(Widget w, XtPointer closure, XtPointer call_data) { (void)w, (void)closure, (void)call_data; }

/* A callback list is seen from outside only as being there. */
static Boolean set_callback(Widget w, Resource_p resource, XtArgVal old) {
  XtCallbackRec list[] = {{ignore, NULL}, {NULL, NULL}};

  (void)old;
  give(w, resource->name, (XtArgVal)list);
  if (XtHasCallbacks(w, resource->name) == XtCallbackHasSome) {
    XtRemoveCallback(w, resource->name, ignore, NULL);
    return True;
  }
  fail("%s: %s does not take a callback", XtClass(w)->core_class.class_name, resource->name);
  return False;
}

static Boolean has_value(Enum_p entries, XtArgVal value) {
  while (entries->name && entries->value != (long)value) entries++;
  return entries->name != NULL;
}

/*
 * Every value that the enumeration names.  A class may take the nearest that it can do (Tree knows four gravities), but
 * not a value without a name, and not the same one always.
 */
static Boolean set_each(Widget w, Resource_p resource, XtArgVal old, Enum_p entries) {
  const char* class_name = XtClass(w)->core_class.class_name;
  int taken = 0;

  for (Enum_p e = entries; e->name; e++) {
    XtArgVal now = set_and_read(w, resource->name, (XtArgVal)e->value);
    if (!has_value(entries, now))
      fail("%s: %s was set to %s and reads %ld", class_name, resource->name, e->code_symbol, (long)now);
    taken += (long)now == e->value;
  }
  give(w, resource->name, old);
  if (taken < 2) fail("%s: %s takes none of the values of its enumeration", class_name, resource->name);
  return taken >= 2;
}

/* How a value of each type is tried; of any other type, the value that is there is set again. */
static const struct Trial {
  const char* type;
  Boolean (*set)(Widget w, Resource_p resource, XtArgVal old);
} trials[] = {
    {"Bool", set_flag},           {"Boolean", set_flag}, {"Callback", set_callback}, {"Cardinal", set_number},
    {"Dimension", set_dimension}, {"Int", set_number},   {"Pixel", set_pixel},       {"Position", set_number},
    {"Short", set_number},        {"String", set_text},
};

static Boolean try_value(Widget w, Resource_p resource, XtArgVal old) {
  const char* type = type_of(w, resource->name);
  Enum_p entries = enumeration_of(type);

  if (is_geometry(resource->name)) return set_same(w, resource, old);
  if (entries) return set_each(w, resource, old, entries);
  for (size_t i = 0; i < XtNumber(trials); i++)
    if (strcmp(trials[i].type, type) == 0) return trials[i].set(w, resource, old);
  return set_same(w, resource, old);
}

/* What cannot be read cannot be compared, so it is left alone. */
void set_resource(Widget w, Resource_p resource, Value_counts* counts) {
  XtArgVal old;
  int size;

  if (!may(resource, vqc_access_get | vqc_access_set)) return;
  if (fetch(w, resource->name, &old, &size) && try_value(w, resource, old)) counts->set++;
}
