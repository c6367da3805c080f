/* Questions to the generated tables. */
#include <string.h>

#include "host.h"

/* Class records are linked to their superclasses when the program is, so this works before any class is initialised. */
Boolean is_a(WidgetClass descendant, WidgetClass ancestor) {
  while (descendant && descendant != ancestor) descendant = descendant->core_class.superclass;
  return descendant != NULL;
}

Resource_p own_resource(XWidgetClass_p xclass, const char* name) {
  for (Resource_p r = xclass->resources; r && r->name; r++)
    if (strcmp(r->name, name) == 0) return r;
  return NULL;
}

/* The resource of that name in the class or in one that it inherits from. */
Resource_p any_resource(XWidgetClass_p xclass, const char* name) {
  for (XWidgetClass_p* x = xwidgets; *x; x++) {
    Resource_p found = is_a(*xclass->widget_class, *(*x)->widget_class) ? own_resource(*x, name) : NULL;
    if (found) return found;
  }
  return NULL;
}

static Enum_p direct_enumeration_of(const char* type_name) {
  for (Enum_def_p e = enumerations; e->entries; e++)
    if (e->type_name && strcmp(e->type_name, type_name) == 0) return e->entries;
  return NULL;
}

/* The values of a type: its own enumeration, or that of the type which it is an alias of. */
Enum_p enumeration_of(const char* type_name) {
  Enum_p entries = direct_enumeration_of(type_name);

  for (Type_alias_p a = aliases; !entries && a->name; a++)
    if (strcmp(a->name, type_name) == 0) entries = direct_enumeration_of(a->to_name);
  return entries;
}

int page_named(const char* name) {
  for (int i = 0; xw_page_names[i]; i++)
    if (strcmp(xw_page_names[i], name) == 0) return i;
  return -1;
}
