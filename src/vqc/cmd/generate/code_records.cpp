// The section on the class records of the widgets.

#include <vector>

#include "vqc/cmd/generate/code_file.h"
#include "vqc/cmd/generate/includes.h"

namespace {

constexpr Template resources_declaration = "extern Resource_t xr_@NAME@_resources[];\n\n";

// The first line of members and the one with the flags end in a blank; the second icon stands one blank further in.
constexpr Template class_record =
    "XWidgetClass_t xw_@NAME@={\n"
    "\t&@NAME@, \"@NAME@\", @INCLUDE@, \n"
    "\t@FAMILY_INDEX@, @DEFINED_NAME@, (int (*)()) 0, (int (*)()) 0,\n"
    "\t@REALISE@, @ABSTRACT@, (int (*)()) 0, (int (*)()) 0, (int (*)()) 0, (int (*)()) 0,\n"
    "\t@CAN_ADD_CHILD@, @APPROPRIATE_PARENT@, (int (*)()) 0, (int (*)()) 0, (int (*)()) 0, (Dialog_p) 0, (Dialog_p) 0,\n"
    "\t@DISABLEGOTO@, @DISABLEFGSWAP@, @CAN_CREATE@, @CAN_MANAGE@, @CAN_EDIT_ABSTRACT@, @GENERATE_INITIALISE@, False, False, 0, \n"
    "\t{0, (unsigned char *) @LARGE_BITS@, @LARGE_WIDTH@, @LARGE_HEIGHT@,\n"
    "\t (unsigned char *) @SMALL_BITS@, @SMALL_WIDTH@, @SMALL_HEIGHT@, @PIXMAP_RESOURCE@, 0, 0, 0, 0, False},\n"
    "\t(Widget) 0, @RESOURCES@, @WIDGET_DOC@, @WIDGET_TAG@, @DIALOGUE_DOC@, @DIALOGUE_TAG@, False, 0};\n";

constexpr const char* kNoText = "(char *) 0";
constexpr const char* kNoNameProcedure = "(char * (*)()) 0";
constexpr const char* kNoWidgetProcedure = "(Widget (*)()) 0";
constexpr const char* kNoBooleanProcedure = "(Boolean (*)()) 0";

/// The builder has room of its own for the predefined pages, which are the first of the pool.
constexpr int kPredefinedPages = 5;

/// Gives every page its place in the pool as its index.
void number_pages() {
  int place = 0;
  for (PageDef& page : page_pool.list) {
    page.used = false;
    page.index = place++;
  }
}

/// How many pages beyond the predefined ones the resources of a widget stand on.
int page_count(const WidgetDef& widget) {
  std::vector<PageDef*> counted;
  for (const ResourceDef& resource : widget.resource_definitions) {
    PageDef* page = resource.page ? page_pool.list.find(resource.page) : nullptr;
    if (!page || page->used || page->index < kPredefinedPages) continue;
    page->used = true;
    counted.push_back(page);
  }
  for (PageDef* page : counted) page->used = false;
  return static_cast<int>(counted.size());
}

/// The resource array of a widget and its page count.
struct ResourcesFields {
  const WidgetDef& widget;
};

void put(Stream& out, const ResourcesFields& fields) {
  if (fields.widget.resource_definitions.empty()) {
    charout(&out, "(Resource_p) 0, 0");
  } else {
    emit<"xr_@NAME@_resources, @PAGE_COUNT@">(out, fields.widget.name, page_count(fields.widget));
  }
}

void write_icon_includes(Stream& out, const WidgetDef& widget) {
  for (const Text& header : {widget.largeiconheader, widget.smalliconheader}) {
    if (header) emit<include_line>(out, header);
  }
  if (widget.largeiconheader || widget.smalliconheader) charout(&out, "\n");
}

void write_record(Stream& out, const WidgetDef& widget, int family_index) {
  write_icon_includes(out, widget);
  if (!widget.resource_definitions.empty()) emit<resources_declaration>(out, widget.name);
  emit<class_record>(
      out, widget.name, widget.name, widget.name, Quoted{widget.include_filename, "0"}, family_index,
      Or{widget.defined_name, kNoNameProcedure}, Or{widget.realise, kNoWidgetProcedure},
      Or{widget.abstract, kNoBooleanProcedure}, Or{widget.can_add_child, kNoBooleanProcedure},
      Or{widget.appropriate_parent, kNoBooleanProcedure}, widget.disablegoto, widget.disablefgswap, widget.can_create,
      widget.can_manage, widget.can_edit_abstract, widget.generate_initialise, Suffixed{widget.largeicon, "_bits"},
      Suffixed{widget.largeicon, "_width"}, Suffixed{widget.largeicon, "_height"}, Suffixed{widget.smallicon, "_bits"},
      Suffixed{widget.smallicon, "_width"}, Suffixed{widget.smallicon, "_height"},
      Quoted{widget.pixmap_resource, kNoText}, ResourcesFields{widget}, Quoted{widget.widget_doc, kNoText},
      Quoted{widget.widget_tag, kNoText}, Quoted{widget.dialogue_doc, kNoText}, Quoted{widget.dialogue_tag, kNoText});
}

}  // namespace

void write_class_records(Run& run) {
  clear_done(widget_pool);
  number_pages();
  bool written = false;
  int family_index = 0;
  each_family([&](Family& family) {
    Heading heading(run, family, "Xwidget class records", "\n");
    for (auto& reference : family.widgets) {
      WidgetDef& widget = *reference.record;
      const bool repeat = done(widget);
      if (repeat && !run.verbose) continue;
      heading.show();
      write_around(run.out, around_block, repeat, [&] { write_record(run.out, widget, family_index); });
      charout(&run.out, reference.next ? "\n\n" : "\n");
      done(widget) = written = true;
    }
    charout(&run.out, "\n");
    ++family_index;
  });
  if (written) charout(&run.out, "\n");
}
