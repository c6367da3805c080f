/* A run-time in miniature: what its source files share. */
#ifndef HOST_H
#define HOST_H

#include <X11/IntrinsicP.h>
#include <X11/StringDefs.h>

#include "xwidget.h"

/*
 * The generated tables, under the names that vqconfig gives them unless the description has its own.
 * A description without a stop list has "char *vq_config_stop_list = (char *) 0" in place of the array: its zero bytes
 * read as an empty text here.
 */
extern XFamily_t xw_families[];
extern char* xw_family_names[];
extern int xw_family_count;
extern XWidgetClass_p xwidgets[];
extern Popup_t popups[];
extern char* xw_page_names[];
extern Enum_def_t enumerations[];
extern Type_alias_t aliases[];
extern Converter_t converters[];
extern char vq_config_stop_list[];

/* report.c: what was counted, and what was wrong. */
void fail(const char* format, ...) __attribute__((format(printf, 1, 2)));
int failures(void);
void section(const char* title);
void count(int number, const char* what);

/* tables.c: checks every table, whether or not there is a display. */
void check_tables(void);

/* lookup.c: questions to the tables. */
Boolean is_a(WidgetClass descendant, WidgetClass ancestor);
Resource_p own_resource(XWidgetClass_p xclass, const char* name);
Resource_p any_resource(XWidgetClass_p xclass, const char* name);
Enum_p enumeration_of(const char* type_name);
int page_named(const char* name);

/* values.c: reading and setting the resources of one widget. */
typedef struct {
  int read, set;
} Value_counts;

Boolean may(Resource_p resource, int access);
Boolean fetch(Widget w, const char* name, XtArgVal* value, int* size);
const char* type_of(Widget w, const char* name);
void read_resource(Widget w, Resource_p resource, Value_counts* counts);
void set_resource(Widget w, Resource_p resource, Value_counts* counts);

/* widgets.c: a widget of each class that can be created.  Without a display it says so and returns False. */
Boolean check_widgets(int* argc, char** argv);

#endif
