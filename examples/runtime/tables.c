/*
 * Checks the generated tables against each other.
 *
 * A table ends with a row of nothing.  A walk stops at the member that tells, and then the rest of that row has to be
 * empty too: a row that only lacks its name would otherwise pass for the end.
 */
#include <stdio.h>
#include <string.h>

#include "host.h"

void vq_font_dialog_create(Widget);
void vq_colour_dialog_create(Widget);
void vq_pixmap_dialog_create(Widget);
void vq_string_dialog_create(Widget);
void vq_fsb_dialog_create(Widget);

/* The pages that every family has. */
static const char* const predefined_pages[] = {"display", "margins", "settings", "callbacks", "misc"};

static Boolean is_text(const char* text) { return text && *text; }

static Boolean is_flag(Boolean flag) { return flag == True || flag == False; }

static void expect(Boolean held, const char* where, const char* what) {
  if (!held) fail("%s: %s", where, what);
}

static int popup_count(void) {
  int n = 0;
  while (popups[n].create) n++;
  return n;
}

static int page_count(void) {
  int n = 0;
  while (xw_page_names[n]) n++;
  return n;
}

/* Null, or a row of the popup table (not just somewhere in it, and not its end). */
static Boolean is_popup(Popup_p popup) {
  if (!popup) return True;
  for (int i = 0, n = popup_count(); i < n; i++)
    if (popup == &popups[i]) return True;
  return False;
}

static Boolean has_popup(void (*create)(Widget)) {
  for (Popup_p p = popups; p->create; p++)
    if (p->create == create) return True;
  return False;
}

static void check_predefined_popups(void) {
  expect(has_popup(vq_font_dialog_create), "popups", "no font dialogue");
  expect(has_popup(vq_colour_dialog_create), "popups", "no colour dialogue");
  expect(has_popup(vq_pixmap_dialog_create), "popups", "no pixmap dialogue");
  expect(has_popup(vq_string_dialog_create), "popups", "no string dialogue");
  expect(has_popup(vq_fsb_dialog_create), "popups", "no file selection dialogue");
}

static void check_popups(void) {
  Popup_p p;

  for (p = popups; p->create; p++) {
    expect(!p->created, "popups", "a dialogue is created from the start");
    for (Popup_p q = popups; q < p; q++) expect(q->create != p->create, "popups", "a dialogue stands there twice");
  }
  expect(!p->initialise && !p->update && !p->created, "popups", "the last row is not empty");
  check_predefined_popups();
  count((int)(p - popups), "popups");
}

static void check_pages(void) {
  int n = page_count();

  for (int i = 0; i < n; i++) {
    expect(is_text(xw_page_names[i]), "pages", "a page without a name");
    expect(page_named(xw_page_names[i]) == i, xw_page_names[i], "the page stands there twice");
  }
  for (size_t i = 0; i < XtNumber(predefined_pages); i++)
    expect(page_named(predefined_pages[i]) == (int)i, predefined_pages[i], "the predefined page is not in its place");
  count(n, "pages");
}

static void check_resource(const char* where, XWidgetClass_p xclass, Resource_p r) {
  expect(is_text(r->name), where, "the name is empty");
  expect(own_resource(xclass, r->name) == r, where, "the resource stands there twice");
  expect(is_popup(r->popup), where, "the popup is no row of the popup table");
  expect(r->page >= -1 && r->page < page_count(), where, "the page is out of range");
  expect(is_flag(r->visible) && is_flag(r->mfc_compatible) && is_flag(r->java_compatible), where, "a flag is no flag");
  expect(r->free_get <= vqc_dont_free && r->free_set <= vqc_dont_free, where, "a free mode is out of range");
  expect(r->access >= vqc_access_any && r->access <= 7 && r->access != 0, where, "the access is out of range");
  expect(!r->counter || own_resource(xclass, r->counter), where, "the counter is no resource of the class");
}

static Boolean is_end_of_resources(Resource_p r) {
  return !r->quark && !r->popup && !r->page && !r->visible && r->free_get == vqc_free_default &&
         r->free_set == vqc_free_default && !r->access && !r->mfc_compatible && !r->java_compatible && !r->counter;
}

static Boolean is_predefined_page(int page) {
  for (size_t i = 0; i < XtNumber(predefined_pages); i++)
    if (page == page_named(predefined_pages[i])) return True;
  return False;
}

/* How many pages beside the predefined ones the resources are on. */
static int extra_pages(Resource_p resources) {
  int n = 0;

  for (Resource_p r = resources; r && r->name; r++) {
    Boolean counted = r->page < 0 || is_predefined_page(r->page);
    for (Resource_p s = resources; s < r; s++) counted |= s->page == r->page;
    n += !counted;
  }
  return n;
}

static int check_resources(XWidgetClass_p xclass) {
  Resource_p r = xclass->resources;
  char where[256];

  if (!r) return 0;
  for (; r->name; r++) {
    snprintf(where, sizeof where, "%s, %s", xclass->name, r->name);
    check_resource(where, xclass, r);
  }
  expect(is_end_of_resources(r), xclass->name, "the last row of the resources is not empty");
  expect(r != xclass->resources, xclass->name, "a table of resources that has none");
  return (int)(r - xclass->resources);
}

static void check_icon(XWidgetClass_p x) {
  XWidgetIcon_t* i = &x->icon;

  expect(!i->large_bits == !(i->large_width && i->large_height), x->name, "the large icon is not complete");
  expect(!i->small_bits == !(i->small_width && i->small_height), x->name, "the small icon is not complete");
  expect(!i->pixmap_resource || any_resource(x, i->pixmap_resource), x->name, "the pixmap resource is unknown");
}

static Boolean family_has(XFamily_p family, XWidgetClass_p xclass) {
  for (XWidgetClass_p* x = family->widgets; x && *x; x++)
    if (*x == xclass) return True;
  return False;
}

static void check_class(XWidgetClass_p x) {
  expect(x->widget_class && *x->widget_class, x->name, "there is no such class");
  expect(x->family >= 0 && x->family < xw_family_count, x->name, "the family is out of range");
  if (x->family >= 0 && x->family < xw_family_count)
    expect(family_has(&xw_families[x->family], x), x->name, "its family does not list it");
  expect(!x->include_filename || *x->include_filename, x->name, "the include file has no name");
  expect(is_flag(x->can_create) && is_flag(x->can_manage) && is_flag(x->can_edit_abstract), x->name,
         "a flag is no flag");
  expect(x->page_count == extra_pages(x->resources), x->name, "the page count is wrong");
  expect(!x->widget_tag || x->widget_doc, x->name, "a help tag without a document");
  check_icon(x);
}

static void check_classes(void) {
  int classes = 0, creatable = 0, resources = 0;

  for (XWidgetClass_p* x = xwidgets; *x; x++, classes++) {
    for (XWidgetClass_p* y = xwidgets; y < x; y++) expect(*y != *x, (*x)->name, "the class stands there twice");
    check_class(*x);
    resources += check_resources(*x);
    creatable += (*x)->can_create;
  }
  count(classes, "widget classes");
  count(creatable, "of them can be created");
  count(resources, "resources");
}

static int check_entries(Enum_def_p e) {
  Enum_p i;

  for (i = e->entries; i->name; i++) {
    expect(is_text(i->name) && is_text(i->code_symbol) && is_text(i->resfile_symbol), e->type_name,
           "an entry without a name or a symbol");
    for (Enum_p j = e->entries; j < i; j++) expect(strcmp(i->name, j->name) != 0, i->name, "the entry is there twice");
  }
  expect(!i->value && !i->code_symbol && !i->resfile_symbol, e->type_name, "the last row of the entries is not empty");
  return (int)(i - e->entries);
}

static void check_enumerations(void) {
  int entries = 0;
  Enum_def_p e;

  for (e = enumerations; e->entries; e++) {
    int n = is_text(e->type_name) ? check_entries(e) : 0;
    expect(n > 0, "enumerations", "one without a type or without entries");
    entries += n;
  }
  expect(!e->type_name && !e->quark, "enumerations", "the last row is not empty");
  count((int)(e - enumerations), "enumerations");
  count(entries, "enumeration entries");
}

static void check_aliases(void) {
  Type_alias_p a;

  for (a = aliases; a->name; a++) {
    expect(is_text(a->name) && is_text(a->to_name), "aliases", "a type without a name");
    expect(!a->to_name || strcmp(a->name, a->to_name) != 0, a->name, "an alias of itself");
  }
  expect(!a->to_name && !a->quark && !a->to_quark, "aliases", "the last row is not empty");
  count((int)(a - aliases), "type aliases");
}

static void check_converters(void) {
  Converter_p c;

  for (c = converters; c->name; c++) {
    expect(is_text(c->name) && is_text(c->code_name), "converters", "a type without a name");
    expect(!c->proc_name || *c->proc_name, c->name, "the procedure's name is empty");
    expect(!c->registered, c->name, "registered from the start");
    expect(is_popup(c->popup), c->name, "the popup is no row of the popup table");
  }
  expect(!c->code_name && !c->proc && !c->proc_name && !c->popup, "converters", "the last row is not empty");
  count((int)(c - converters), "converters");
}

static int check_family_headers(XFamily_p f) {
  int n = 0;

  for (XFamilyHeader_p h = f->headers; h && h->name; h++, n++)
    expect(*h->name != '\0', f->name, "a header has no name");
  expect(!f->headers || n > 0, f->name, "a table of headers that has none");
  return n;
}

static void check_family(XFamily_p f, const char* listed_name) {
  expect(is_text(f->name) && listed_name && strcmp(f->name, listed_name) == 0, "families", "the names do not agree");
  expect(!f->init == !f->init_name, f->name, "the initialisation procedure and its name do not go together");
  expect(!f->initialised, f->name, "initialised from the start");
  expect(!f->widgets || *f->widgets, f->name, "a table of widgets that has none");
  for (XWidgetClass_p* x = f->widgets; x && *x; x++) {
    XWidgetClass_p* y = xwidgets;
    while (*y && *y != *x) y++;
    expect(*y != NULL, (*x)->name, "not among all classes");
  }
}

static void check_families(void) {
  int n = 0, headers = 0;
  XFamily_p f;

  for (f = xw_families; f->name; f++, n++) {
    check_family(f, n < xw_family_count ? xw_family_names[n] : NULL);
    headers += check_family_headers(f);
  }
  expect(!f->widgets && !f->headers && !f->init_name && !f->init, "families", "the last row is not empty");
  expect(n == xw_family_count && !xw_family_names[n], "families", "the count, the names and the table do not agree");
  count(n, "families");
  count(headers, "family headers");
}

static void check_stop_list(void) {
  int n = is_text(vq_config_stop_list);

  for (const char* s = vq_config_stop_list; *s; s++) n += *s == ',';
  expect(!strstr(vq_config_stop_list, ",,"), "stop list", "a class without a name");
  count(n, "classes on the stop list");
}

void check_tables(void) {
  section("Tables");
  check_families();
  check_classes();
  check_popups();
  check_pages();
  check_enumerations();
  check_aliases();
  check_converters();
  check_stop_list();
}
