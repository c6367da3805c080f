/*
 * Creates a widget of each class that can be created, goes through its resources, and destroys it again.
 *
 * The widgets stand in a window that is never shown, so that the host can also run where somebody is working.
 */
#include <X11/Shell.h>
#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Box.h>
#include <X11/Xaw/Label.h>
#include <X11/Xaw/SimpleMenu.h>
#include <stdio.h>
#include <string.h>

#include "host.h"

enum { most_args = 64 };

/* Where widgets are put: each kind of class wants another parent. */
static struct {
  XtAppContext context;
  Widget shell, box, menu;
} place;

static int created, copied, destroyed, converted;
static Value_counts totals;
static const char* current = "start"; /* the class that is being gone through */

/* What the toolkit or the server complains about counts as a failure, and stays off standard error. */
static void note_warning(String name, String type, String class, String text, String* params, Cardinal* count) {
  const char* values[4] = {"", "", "", ""};
  char message[512];

  (void)name, (void)type, (void)class;
  for (Cardinal i = 0; params && count && i < *count && i < XtNumber(values); i++) values[i] = params[i];
  snprintf(message, sizeof message, text, values[0], values[1], values[2], values[3]);
  fail("%s: toolkit warning: %s", current, message);
}

static void note_plain_warning(String message) { fail("%s: toolkit warning: %s", current, message); }

static int note_x_error(Display* display, XErrorEvent* event) {
  char text[128];

  XGetErrorText(display, event->error_code, text, sizeof text);
  fail("%s: X error: %s", current, text);
  return 0;
}

static void note_destroyed(Widget w, XtPointer closure, XtPointer call_data) {
  (void)w, (void)closure, (void)call_data;
  destroyed++;
}

static void initialise_families(Widget shell) {
  for (XFamily_p f = xw_families; f->name; f++) {
    if (!f->init || !f->init_in_vq || f->initialised || f->init_pre_shell != !shell) continue;
    f->init(shell);
    f->initialised = True;
  }
}

static void register_converters(void) {
  for (Converter_p c = converters; c->name; c++) {
    if (!c->proc) continue;
    XtAppSetTypeConverter(place.context, XtRString, c->name, c->proc, NULL, 0, XtCacheNone, NULL);
    c->registered = True;
  }
}

static Boolean is_shell(XWidgetClass_p x) { return is_a(*x->widget_class, shellWidgetClass); }

static Boolean is_windowed(XWidgetClass_p x) { return is_a(*x->widget_class, coreWidgetClass); }

/* Entries go into a menu, and what has no geometry at all is part of a text, each of its own. */
static Widget parent_for(XWidgetClass_p x) {
  if (is_shell(x)) return place.shell;
  if (is_windowed(x)) return place.box;
  if (is_a(*x->widget_class, rectObjClass)) return place.menu;
  return XtCreateWidget("text", asciiTextWidgetClass, place.box, NULL, 0);
}

/* A widget that has no size by itself (Simple, Viewport) needs one, since no window may be empty. */
static Cardinal give_room(XWidgetClass_p x, ArgList args) {
  if (!is_windowed(x) || is_shell(x)) return 0;
  XtSetArg(args[0], XtNwidth, 64);
  XtSetArg(args[1], XtNheight, 64);
  return 2;
}

static Widget create(XWidgetClass_p x, Widget parent, ArgList args, Cardinal n) {
  char* name = x->defined_name ? x->defined_name(x->name) : x->name;
  Widget w;

  if (is_shell(x))
    w = XtCreatePopupShell(name, *x->widget_class, parent, args, n);
  else if (x->realise)
    w = x->realise(name, *x->widget_class, parent, args, n);
  else
    w = XtCreateWidget(name, *x->widget_class, parent, args, n);
  if (!w || !XtIsSubclass(w, *x->widget_class)) {
    fail("%s: not created", x->name);
    return NULL;
  }
  if (x->can_manage) XtManageChild(w);
  return w;
}

/*
 * A source that was given a string has become the one that its text shows, and goes with it; other parts of a text go
 * by themselves.
 */
static void destroy_part(Widget part) {
  Widget text = XtParent(part);

  if (XawTextGetSource(text) != part) XtDestroyWidget(part);
  XtDestroyWidget(text);
}

static void destroy(Widget w, const char* name) {
  int before = destroyed;

  XtAddCallback(w, XtNdestroyCallback, note_destroyed, NULL);
  if (XtIsRectObj(w))
    XtDestroyWidget(w);
  else
    destroy_part(w);
  if (destroyed != before + 1) fail("%s: not destroyed", name);
}

/* A resource that the class keeps for its children is seen on a child, not on the widget. */
static Boolean is_constraint(XWidgetClass_p x, const char* name) {
  XtResourceList list;
  Cardinal n;
  Boolean found = False;

  XtGetConstraintResourceList(*x->widget_class, &list, &n);
  for (Cardinal i = 0; i < n; i++) found |= strcmp(list[i].resource_name, name) == 0;
  XtFree((char*)list);
  return found;
}

/* A child to look at constraints with; null where the class takes none. */
static Widget child_of(XWidgetClass_p x, Widget w) {
  XWidget_t known = {x, x->name, w, NULL};

  if (!XtIsConstraint(w) || (x->can_add_child && !x->can_add_child(&known, labelWidgetClass))) return NULL;
  return XtCreateManagedWidget("child", labelWidgetClass, w, NULL, 0);
}

static void go_through_own(XWidgetClass_p x, Widget w, Widget child) {
  for (Resource_p r = x->resources; r && r->name; r++) {
    Widget subject = is_constraint(x, r->name) ? child : w;
    if (!subject) continue;
    read_resource(subject, r, &totals);
    set_resource(subject, r, &totals);
  }
}

static void go_through_inherited(XWidgetClass_p base, Widget w) {
  for (Resource_p r = base->resources; r && r->name; r++) {
    if (!*type_of(w, r->name) || is_constraint(base, r->name)) continue;
    read_resource(w, r, &totals);
    if (!base->can_create) set_resource(w, r, &totals);
  }
}

/*
 * What a class inherits is read as well, through the tables of the classes that it inherits from, and set where no
 * widget of that class itself can be.  A class may also drop a resource by putting another one in its place: Grip has
 * no background.
 */
static void go_through_bases(XWidgetClass_p x, Widget w) {
  for (XWidgetClass_p* base = xwidgets; *base; base++)
    if (*base != x && is_a(*x->widget_class, *(*base)->widget_class)) go_through_inherited(*base, w);
}

/* A plain value can be given to another widget; what a pointer leads to may belong to this one. */
static Boolean is_plain(Widget w, Resource_p r, XtArgVal* value) {
  int size;

  if (!may(r, vqc_access_create | vqc_access_get)) return False;
  return fetch(w, r->name, value, &size) && size < (int)sizeof(XtArgVal) && *type_of(w, r->name);
}

/* Creates a second widget from the values of the first. */
static void copy(XWidgetClass_p x, Widget w) {
  Arg args[most_args];
  XtArgVal value;
  Cardinal room = give_room(x, args), n = room;
  Widget twin;

  for (Resource_p r = x->resources; r && r->name && n < most_args; r++)
    if (!is_constraint(x, r->name) && is_plain(w, r, &value)) XtSetArg(args[n], r->name, value), n++;
  twin = create(x, parent_for(x), args, n);
  if (!twin) return;
  for (Cardinal i = room; i < n; i++) {
    int size;
    if (!fetch(twin, args[i].name, &value, &size) || value != args[i].value)
      fail("%s: %s was created with %ld and reads %ld", x->name, args[i].name, (long)args[i].value, (long)value);
  }
  copied++;
  destroy(twin, x->name);
}

static void check_class(XWidgetClass_p x) {
  Widget parent = parent_for(x), w, child;
  Arg args[2];

  current = x->name;
  if (x->appropriate_parent && !x->appropriate_parent(parent, *x->widget_class))
    fail("%s: does not want the parent that it needs", x->name);
  w = create(x, parent, args, give_room(x, args));
  if (!w) return;
  created++;
  child = child_of(x, w);
  go_through_own(x, w, child);
  go_through_bases(x, w);
  copy(x, w);
  destroy(w, x->name);
  XSync(XtDisplay(place.shell), False);
}

static long integer_at(XPointer address, unsigned size) {
  switch (size) {
    case 1:
      return *(unsigned char*)address;
    case 2:
      return *(short*)address;
    case 4:
      return *(int*)address;
    default:
      return *(long*)address;
  }
}

/* The text of an entry has to give its value when it comes from a resource file. */
static void check_entry(Enum_def_p def, Enum_p entry) {
  XrmValue from = {(unsigned)strlen(entry->resfile_symbol) + 1, entry->resfile_symbol}, to = {0, NULL};

  if (!XtConvertAndStore(place.box, XtRString, &from, def->type_name, &to))
    fail("%s: \"%s\" is not understood", def->type_name, entry->resfile_symbol);
  else if (integer_at(to.addr, to.size) != entry->value)
    fail("%s: \"%s\" gives %ld, not %s", def->type_name, entry->resfile_symbol, integer_at(to.addr, to.size),
         entry->code_symbol);
  else
    converted++;
}

/* Comes after the classes, which register the converters of their types. */
static void check_entries(void) {
  for (Enum_def_p def = enumerations; def->entries; def++)
    for (Enum_p entry = def->entries; entry->name; entry++) check_entry(def, entry);
}

static Display* open_display(int* argc, char** argv) {
  XtToolkitInitialize();
  place.context = XtCreateApplicationContext();
  XtAppSetWarningMsgHandler(place.context, note_warning);
  XtAppSetWarningHandler(place.context, note_plain_warning);
  return XtOpenDisplay(place.context, NULL, "athena-host", "AthenaHost", NULL, 0, argc, argv);
}

/*
 * Nobody types here, so no input method is opened.  It would also be in the way: once there is one, Xaw cannot destroy
 * a shell that has none.
 */
static void prepare(Display* display) {
  XSetErrorHandler(note_x_error);
  register_converters();
  initialise_families(NULL);
  place.shell = XtVaAppCreateShell("athena-host", "AthenaHost", applicationShellWidgetClass, display,
                                   XtNmappedWhenManaged, False, XtNallowShellResize, True, "openIm", False, NULL);
  initialise_families(place.shell);
  place.box = XtCreateManagedWidget("box", boxWidgetClass, place.shell, NULL, 0);
  place.menu = XtCreatePopupShell("menu", simpleMenuWidgetClass, place.shell, NULL, 0);
  XtRealizeWidget(place.shell);
}

Boolean check_widgets(int* argc, char** argv) {
  Display* display = open_display(argc, argv);

  section("Widgets");
  if (!display) {
    section("        no display: none created");
    return False;
  }
  prepare(display);
  for (XWidgetClass_p* x = xwidgets; *x; x++)
    if ((*x)->can_create) check_class(*x);
  check_entries();
  count(created, "classes created");
  count(copied, "created again from the values read");
  count(destroyed, "widgets destroyed");
  count(totals.read, "resources read");
  count(totals.set, "resources set and read back");
  count(converted, "enumeration entries converted from text");
  XtDestroyApplicationContext(place.context);
  return True;
}
