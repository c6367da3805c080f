// The section on the class records of the widgets.

#include <iterator>

#include "vqc/cmd/generate/code_file.h"
#include "vqc/cmd/generate/includes.h"

namespace vqc {

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

constexpr std::string_view kNoText = "(char *) 0";
constexpr std::string_view kNoNameProcedure = "(char * (*)()) 0";
constexpr std::string_view kNoWidgetProcedure = "(Widget (*)()) 0";
constexpr std::string_view kNoBooleanProcedure = "(Boolean (*)()) 0";

/// The pages of a document beyond those that come first, for which the builder has room of its own.
class FurtherPages {
 public:
  explicit FurtherPages(const Document& document) {
    constexpr std::size_t kPredefinedPages = std::size(predefined_pages);
    std::size_t place = 0;
    for (const PageDef& page : document.pages) {
      if (place++ >= kPredefinedPages) pages_.add(page.name);
    }
  }

  /// How many of them the resources of a widget stand on.
  int count(const WidgetDef& widget) const {
    NameSet counted;
    int count = 0;
    for (const ResourceDef& resource : widget.resource_definitions) {
      if (resource.page && pages_.contains(resource.page)) count += counted.add(resource.page) ? 1 : 0;
    }
    return count;
  }

 private:
  NameSet pages_;
};

/// The resource array of a widget and its page count.
struct ResourcesFields {
  const WidgetDef& widget;
  const FurtherPages& pages;
};

void put(Sink& out, const ResourcesFields& fields) {
  if (fields.widget.resource_definitions.empty()) return out.write("(Resource_p) 0, 0");
  emit<"xr_@NAME@_resources, @PAGE_COUNT@">(out, bind<"NAME">(printed(fields.widget.name)),
                                            bind<"PAGE_COUNT">(fields.pages.count(fields.widget)));
}

void write_icon_includes(Sink& out, const WidgetDef& widget) {
  for (const Text header : {widget.largeiconheader, widget.smalliconheader}) {
    if (header) emit<include_line>(out, bind<"FILE">(printed(header)));
  }
  if (widget.largeiconheader || widget.smalliconheader) out.write("\n");
}

void write_record(Sink& out, const WidgetDef& widget, int family_index, const FurtherPages& pages) {
  write_icon_includes(out, widget);
  if (!widget.resource_definitions.empty()) emit<resources_declaration>(out, bind<"NAME">(printed(widget.name)));
  // clang-format off
  emit<class_record>(out,
       bind<"NAME">(printed(widget.name)),
       bind<"INCLUDE">(quoted(widget.include_filename, "0")),
       bind<"FAMILY_INDEX">(family_index),
       bind<"DEFINED_NAME">(printed(widget.defined_name, kNoNameProcedure)),
       bind<"REALISE">(printed(widget.realise, kNoWidgetProcedure)),
       bind<"ABSTRACT">(printed(widget.abstract, kNoBooleanProcedure)),
       bind<"CAN_ADD_CHILD">(printed(widget.can_add_child, kNoBooleanProcedure)),
       bind<"APPROPRIATE_PARENT">(printed(widget.appropriate_parent, kNoBooleanProcedure)),
       bind<"DISABLEGOTO">(widget.disablegoto),
       bind<"DISABLEFGSWAP">(widget.disablefgswap),
       bind<"CAN_CREATE">(widget.can_create),
       bind<"CAN_MANAGE">(widget.can_manage),
       bind<"CAN_EDIT_ABSTRACT">(widget.can_edit_abstract),
       bind<"GENERATE_INITIALISE">(widget.generate_initialise),
       bind<"LARGE_BITS">(verbatim(widget.largeicon, "_bits")),
       bind<"LARGE_WIDTH">(verbatim(widget.largeicon, "_width")),
       bind<"LARGE_HEIGHT">(verbatim(widget.largeicon, "_height")),
       bind<"SMALL_BITS">(verbatim(widget.smallicon, "_bits")),
       bind<"SMALL_WIDTH">(verbatim(widget.smallicon, "_width")),
       bind<"SMALL_HEIGHT">(verbatim(widget.smallicon, "_height")),
       bind<"PIXMAP_RESOURCE">(quoted(widget.pixmap_resource, kNoText)),
       bind<"RESOURCES">(ResourcesFields{widget, pages}),
       bind<"WIDGET_DOC">(quoted(widget.widget_doc, kNoText)),
       bind<"WIDGET_TAG">(quoted(widget.widget_tag, kNoText)),
       bind<"DIALOGUE_DOC">(quoted(widget.dialogue_doc, kNoText)),
       bind<"DIALOGUE_TAG">(quoted(widget.dialogue_tag, kNoText)));
  // clang-format on
}

}  // namespace

void write_class_records(Run& run) {
  const FurtherPages pages(run.document);
  Done done;
  int family_index = 0;
  bool written = false;
  for (const Family* family : run.families) {
    Heading heading(run, *family, "Xwidget class records", "\n");
    for (const auto& reference : family->widgets) {
      const WidgetDef& widget = *reference.record;
      const bool repeat = done.has(&widget);
      if (repeat && !run.switches.verbose) continue;
      heading.show();
      write_around(run.out, around_block, repeat, [&] { write_record(run.out, widget, family_index, pages); });
      run.out.write(reference.next ? "\n\n" : "\n");
      done.add(&widget);
      written = true;
    }
    run.out.write("\n");
    ++family_index;
  }
  if (written) run.out.write("\n");
}

}  // namespace vqc
