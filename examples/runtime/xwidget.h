/*
 * The widget-set header: the types of the tables that vqconfig generates.
 *
 * The generated config, code and stubs files include this header as "xwidget.h" and fill the records below row by row,
 * so the order of the members is the order of the values in a row.  The X headers come first: the generated files
 * include X11/X.h, X11/Xatom.h, X11/IntrinsicP.h and X11/StringDefs.h before this one.
 *
 * The generated text is C up to C17.  It declares procedures as "extern void name();" and casts null pointers as
 * "(void (*)()) 0", where empty parentheses say nothing about the parameters; in later C they mean that there are none.
 * Until then they agree with the full prototypes given here, and calls through these members are checked.
 */
#ifndef XWIDGET_H
#define XWIDGET_H

#include <X11/Intrinsic.h>

/* Who frees a resource's value after it has been fetched, or given to the widget. */
typedef enum {
  vqc_free_default, /* as is usual for the type of the resource */
  vqc_free,         /* the caller frees it */
  vqc_dont_free     /* the caller leaves it alone */
} Free_mode_t;

/* What Resource_t.access is made of; vqc_access_any (nothing given) allows everything. */
enum { vqc_access_any = -1, vqc_access_create = 1, vqc_access_get = 2, vqc_access_set = 4 };

/* A dialogue in which the value of a resource is edited.  Ends with a row whose create is null. */
typedef struct Popup {
  void (*create)(Widget parent);                                               /* makes the dialogue, once */
  void (*initialise)(Widget source_text, Widget current, char* resource_name); /* before it is shown */
  void (*update)(Widget current);                                              /* the current widget changed */
  Boolean created;                                                             /* kept by the run-time */
} Popup_t, *Popup_p;

/* A resource of a widget class.  Ends with a row whose name is null. */
typedef struct Resource {
  char* name;              /* as XtSetValues wants it */
  XrmQuark quark;          /* of the name; kept by the run-time */
  Popup_p popup;           /* a row of the popup table, or null: edited as text */
  int page;                /* index into the table of page names, or -1: on no page */
  Boolean visible;         /* shown in the resource panel */
  Free_mode_t free_get;    /* of a value that XtGetValues gave */
  Free_mode_t free_set;    /* of a value that XtSetValues was given */
  int access;              /* vqc_access_any, or a mask of the other three */
  Boolean mfc_compatible;  /* also in a widget that has to work as an MFC control */
  Boolean java_compatible; /* also in a widget that has to work as a Java component */
  char* counter;           /* the resource that holds the number of elements in this one, or null */
} Resource_t, *Resource_p;

/* One value of an enumerated type.  Ends with a row whose name is null. */
typedef struct Enum {
  char* name; /* shown to the user */
  long value;
  char* code_symbol;    /* the value in C source */
  char* resfile_symbol; /* the value in a resource file, as the type's converter from a string reads it */
} Enum_t, *Enum_p;

/* An enumerated type.  Ends with a row whose entries are null. */
typedef struct Enum_def {
  char* type_name; /* the representation type of the resources, or null */
  XrmQuark quark;  /* of the type name; kept by the run-time */
  Enum_p entries;
} Enum_def_t, *Enum_def_p;

/* A type that is edited as another one is.  Ends with a row whose name is null. */
typedef struct Type_alias {
  char* name;
  XrmQuark quark; /* of the name; kept by the run-time */
  char* to_name;
  XrmQuark to_quark; /* likewise */
} Type_alias_t, *Type_alias_p;

/* How text becomes a value of a type.  Ends with a row whose name is null. */
typedef struct Converter {
  char* name;           /* the representation type that is converted to */
  XrmQuark quark;       /* of the name; kept by the run-time */
  char* code_name;      /* the type's name in C source: the text of the expression that gives name */
  XtTypeConverter proc; /* to be registered by the run-time, or null */
  char* proc_name;      /* to be registered by the source code that is written for the user, or null */
  Boolean registered;   /* kept by the run-time */
  Popup_p popup;        /* edits values of this type, unless the resource has a popup of its own; or null */
} Converter_t, *Converter_p;

/* What an application's source has to include for a family.  Ends with a row whose name is null. */
typedef struct XFamilyHeader {
  char* name;
} XFamilyHeader_t, *XFamilyHeader_p;

typedef struct XWidget XWidget_t, *XWidget_p;
typedef struct XWidgetClass XWidgetClass_t, *XWidgetClass_p;
typedef struct Dialog* Dialog_p; /* a dialogue of the run-time's own */

/* A widget family.  Ends with a row whose name is null. */
typedef struct XFamily {
  char* name;
  XWidgetClass_p* widgets; /* up to a null pointer; null when the family has none */
  XFamilyHeader_p headers; /* null when the family has none */
  char* init_name;         /* the initialisation procedure in C source, or null */
  void (*init)(Widget shell);
  Boolean init_in_vq;     /* the run-time calls init */
  Boolean init_in_code;   /* the source code that is written for the user calls it */
  Boolean initialised;    /* kept by the run-time */
  Boolean init_pre_shell; /* called before there is a shell, with a null widget */
} XFamily_t, *XFamily_p;

/* How a class is shown in the palette. */
typedef struct XWidgetIcon {
  Pixmap large; /* this and the other members that have no comment are kept by the run-time */
  unsigned char* large_bits;
  int large_width, large_height;
  unsigned char* small_bits;
  int small_width, small_height;
  char* pixmap_resource; /* the name of the resource that takes a pixmap, or null */
  Pixmap small, large_insensitive, small_insensitive, mask;
  Boolean made;
} XWidgetIcon_t;

/* A slot that no description fills; null until the run-time puts a procedure of its own there. */
typedef int (*Reserved_proc)();

/* A widget class. */
struct XWidgetClass {
  WidgetClass* widget_class; /* the variable: the class is known when the program runs */
  char* name;                /* that variable's name */
  char* include_filename;    /* for applications that use the class, or null */

  int family;                        /* index into the table of families */
  char* (*defined_name)(char* name); /* the name to give to a new widget; null: as it is */
  Reserved_proc reserved_1, reserved_2;

  /* Creates a widget; null: XtCreateWidget. */
  Widget (*realise)(char* name, WidgetClass widget_class, Widget parent, ArgList args, Cardinal arg_count);
  /* May a child that the widget made by itself be entered, and edited? */
  Boolean (*abstract)(XWidget_p xwidget, Widget abstract_child, Boolean* recurse, Boolean* editable);
  Reserved_proc reserved_3, reserved_4, reserved_5, reserved_6;

  Boolean (*can_add_child)(XWidget_p parent_xwidget, WidgetClass child_class); /* null: as Xt allows */
  Boolean (*appropriate_parent)(Widget parent, WidgetClass child_class);       /* null: any */
  Reserved_proc reserved_7, reserved_8, reserved_9;
  Dialog_p dialogue, core_dialogue; /* kept by the run-time */

  Boolean disablegoto;         /* no "go to" from the widget to its place in the hierarchy */
  Boolean disablefgswap;       /* not to be marked by exchanging foreground and background */
  Boolean can_create;          /* offered in the palette */
  Boolean can_manage;          /* its widgets are managed by their parents */
  Boolean can_edit_abstract;   /* children that it makes by itself can be edited */
  Boolean generate_initialise; /* written source gives the class an initialise procedure */
  Boolean reserved_flag_1, reserved_flag_2;
  int reserved_count;

  XWidgetIcon_t icon;

  Widget palette_button;             /* kept by the run-time */
  Resource_p resources;              /* null when the class has none of its own */
  int page_count;                    /* how many pages beside the five predefined ones these resources use */
  char *widget_doc, *widget_tag;     /* help on the class, or null */
  char *dialogue_doc, *dialogue_tag; /* help on its dialogue, or null */
  Boolean reserved_flag_3;
  int reserved_number;
};

/* A widget as the run-time knows it; what the per-widget procedures are told about. */
struct XWidget {
  XWidgetClass_p xclass;
  char* name;
  Widget widget;
  XWidget_p parent;
};

#endif
