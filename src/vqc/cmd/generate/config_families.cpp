// The sections on the families themselves.

#include <string>
#include <vector>

#include "vqc/cmd/generate/config_file.h"
#include "vqc/cmd/model/c_names.h"

namespace vqc {

namespace {

constexpr Template names_head = "char *@FAMILY_NAMES@[] = {\n";
constexpr Template name_row = "\t\"@FAMILY@\",\n";
constexpr Template names_end =
    "\t(char *) 0\n"
    "};\n\n";
constexpr Template count_definition = "int @FAMILY_COUNT@ = @N@;\n\n";

constexpr Template init_block = R"(/*
** Family @FAMILY@ external functions
*/

#ifndef   _NO_PROTO
extern void @INIT@(Widget shell) ;
#else  /* _NO_PROTO */
extern void @INIT@() ;
#endif /* _NO_PROTO */
)";

constexpr Template headers_head = R"(/*
** Family @FAMILY@ headers
*/

static XFamilyHeader_t @BASE@_headers[] = {
)";
constexpr Template header_row = "\t{ \"@FILE@\" },\n";
constexpr Template headers_end =
    "\t{ (char *) 0 }\n"
    "} ;\n\n";

constexpr Template widgets_head = R"(/*
** Family @FAMILY@ widgets
*/

static XWidgetClass_p @BASE@_widgets[] = {
)";
constexpr Template widget_row = "\t&xw_@WIDGET@,\n";
constexpr Template widgets_end =
    "\t(XWidgetClass_p) 0\n"
    "} ;\n\n";

constexpr Template table_head = "XFamily_t @FAMILY_TABLE@[] = {\n";
constexpr Template table_row =
    "\t{ \"@FAMILY@\", @WIDGETS@, @HEADERS@, @QUOTED_INIT@, @INIT@, @VQ@, @CODE@, False, @PRE_SHELL@},\n";
constexpr Template table_end =
    "\t{ (char *) 0, (XWidgetClass_p *) 0, (XFamilyHeader_p) 0, (char *) 0, (void (*)()) 0, False, False, False, False }\n"
    "} ;\n\n";

void write_headers_block(Run& run, const Family& family, std::string_view base) {
  emit<headers_head>(run.out, bind<"FAMILY">(printed(family.name)), bind<"BASE">(ours(base)));
  for (const auto& header : family.family_headers) {
    emit<header_row>(run.out, bind<"FILE">(printed(header.record->name)));
  }
  emit<headers_end>(run.out);
}

void write_widgets_block(Run& run, const Family& family, std::string_view base) {
  emit<widgets_head>(run.out, bind<"FAMILY">(printed(family.name)), bind<"BASE">(ours(base)));
  for (const auto& widget : family.widgets) {
    emit<widget_row>(run.out, bind<"WIDGET">(printed(widget.record->name)));
  }
  emit<widgets_end>(run.out);
}

void write_blocks(Run& run, const Family& family, std::string_view base) {
  if (family.family_init) {
    emit<init_block>(run.out, bind<"FAMILY">(printed(family.name)), bind<"INIT">(printed(family.family_init)));
  }
  write_headers_block(run, family, base);
  write_widgets_block(run, family, base);
}

void write_table_row(Run& run, const Family& family, std::string_view base) {
  const std::string widgets = family.widgets.empty() ? "(XWidgetClass_p *) 0" : std::string(base) + "_widgets";
  const std::string headers = family.family_headers.empty() ? "(XFamilyHeader_p) 0" : std::string(base) + "_headers";
  // clang-format off
  emit<table_row>(run.out,
       bind<"FAMILY">(printed(family.name)),
       bind<"WIDGETS">(ours(widgets)),
       bind<"HEADERS">(ours(headers)),
       bind<"QUOTED_INIT">(quoted(family.family_init, "(char *) 0")),
       bind<"INIT">(printed(family.family_init, "(void (*)()) 0")),
       bind<"VQ">(family.generate_family_init_vq),
       bind<"CODE">(family.generate_family_init_code),
       bind<"PRE_SHELL">(family.generate_family_init_pre_shell));
  // clang-format on
}

}  // namespace

void write_family_names(Run& run) {
  write_title(run, "Families");
  emit<names_head>(run.out, bind<"FAMILY_NAMES">(printed(run.document.names.family_names.value())));
  for (const Family* family : run.families) {
    emit<name_row>(run.out, bind<"FAMILY">(verbatim(family->name)));
  }
  emit<names_end>(run.out);
  emit<count_definition>(run.out, bind<"FAMILY_COUNT">(printed(run.document.names.family_count.value())),
                         bind<"N">(static_cast<int>(run.families.size())));
}

void write_families(Run& run) {
  write_title(run, "Family class records");
  std::vector<std::string> bases;
  for (const Family* family : run.families) {
    bases.push_back(identifier_base(*family, bases.size()));
    write_blocks(run, *family, bases.back());
  }
  emit<table_head>(run.out, bind<"FAMILY_TABLE">(printed(run.document.names.family_table.value())));
  for (std::size_t i = 0; i < bases.size(); ++i) write_table_row(run, *run.families[i], bases[i]);
  emit<table_end>(run.out);
}

}  // namespace vqc
