// The sections on the types of resource values: enumerations, aliases and converters.

#include "vqc/cmd/generate/config_file.h"

namespace vqc {

namespace {

constexpr Template enum_array_head = "static Enum_t @NAME@_enum[] = {\n";
constexpr Template enum_entry_row = "\t{\"@ENTRY@\", @CODE_SYMBOL@, \"@CODE_SYMBOL@\", \"@RESFILE_SYMBOL@\"},\n";
constexpr Template enum_array_end =
    "\t{(char *) 0, 0, (char *) 0, (char *) 0}\n"
    "};\n\n";

constexpr Template enumerations_head = "Enum_def_t @ENUMERATIONS@[] = {\n";
constexpr Template enumeration_row = "\t{@TYPENAME@, (XrmQuark) 0, @NAME@_enum},";
constexpr Template enumerations_end =
    "\t{(char *) 0, (XrmQuark) 0, (Enum_p) 0}\n"
    "};\n\n";

constexpr Template aliases_head = "Type_alias_t @ALIASES@[] = {\n";
constexpr Template alias_row = "\t{@NAME@, (XrmQuark) 0,@TO_NAME@, (XrmQuark) 0 },";
constexpr Template aliases_end =
    "\t{(char *) 0, (XrmQuark) 0, (char *) 0, (XrmQuark) 0}\n"
    "};\n\n";

constexpr Template converter_declaration = "extern Boolean @PROCEDURE@();\n";

constexpr Template converters_title =
    "/*\n"
    "** Converter definitions\n"
    "*/\n\n";
constexpr Template converters_head = "Converter_t @CONVERTERS@[] = {\n";
constexpr Template converter_row = "\t{@NAME@, (XrmQuark) 0, \"@NAME@\", @PROCEDURES@, False, @POPUP@},";
constexpr Template converters_end =
    "\t{(char *) 0, (XrmQuark) 0, (char *) 0, (Boolean (*)()) 0, (char *) 0, False, (Popup_p) 0}\n"
    "};\n\n";

void write_enum_array(Run& run, const EnumDef& enumeration) {
  emit<enum_array_head>(run.out, bind<"NAME">(printed(enumeration.name)));
  for (const EnumEntry& entry : enumeration.entries) {
    emit<enum_entry_row>(run.out, bind<"ENTRY">(printed(entry.name)), bind<"CODE_SYMBOL">(printed(entry.code_symbol)),
                         bind<"RESFILE_SYMBOL">(printed(entry.resfile_symbol)));
  }
  emit<enum_array_end>(run.out);
}

void write_enum_arrays(Run& run) {
  Done done;
  bool written = false;
  for (const Family* family : run.families) {
    const Heading heading(run, *family, {});
    each_once(family->enumerations, done, run.switches.verbose, heading, [&](const EnumDef& each, bool repeat) {
      write_around(run.out, around_block, repeat, [&] { write_enum_array(run, each); });
      written = true;
    });
  }
  if (written) run.out.write("\n");
}

void write_enumeration_row(Run& run, const EnumDef& enumeration) {
  emit<enumeration_row>(run.out, bind<"TYPENAME">(verbatim(enumeration.type_name)),
                        bind<"NAME">(printed(enumeration.name)));
}

/// The second pass over the families: their banners stand before the arrays already.
void write_enum_table(Run& run) {
  Done done;
  emit<enumerations_head>(run.out, bind<"ENUMERATIONS">(printed(run.document.names.enumerations.value())));
  for (const Family* family : run.families) {
    Heading no_heading(run, *family, {});
    no_heading.suppress();
    each_once(family->enumerations, done, run.switches.verbose, no_heading, [&](const EnumDef& each, bool repeat) {
      write_around(run.out, around_row, repeat, [&] { write_enumeration_row(run, each); });
    });
  }
  emit<enumerations_end>(run.out);
}

void write_alias(Run& run, const AliasDef& alias) {
  emit<alias_row>(run.out, bind<"NAME">(printed(alias.name)), bind<"TO_NAME">(printed(alias.to_name)));
}

bool declares(const ConverterDef& converter) { return converter.proc_name && converter.add_in_vq; }

void declare(Run& run, const ConverterDef& converter) {
  emit<converter_declaration>(run.out, bind<"PROCEDURE">(printed(converter.proc_name)));
}

/// The procedure itself, for the builder, and its name, for the code that the builder writes.
struct ProcedureFields {
  const ConverterDef& converter;
};

void put(Sink& out, const ProcedureFields& fields) {
  const ConverterDef& converter = fields.converter;
  if (!converter.proc_name) return out.write("(Boolean (*)()) 0, (char *) 0 ");
  const Text in_vq = converter.add_in_vq ? converter.proc_name : nullptr;
  const Text in_code = converter.add_in_code ? converter.proc_name : nullptr;
  emit<"@PROCEDURE@,@QUOTED_PROCEDURE@">(out, bind<"PROCEDURE">(printed(in_vq, "(Boolean (*)()) 0")),
                                         bind<"QUOTED_PROCEDURE">(quoted(in_code, "(char *) 0")));
}

void write_converter(Run& run, const ConverterDef& converter) {
  emit<converter_row>(run.out, bind<"NAME">(printed(converter.name)), bind<"PROCEDURES">(ProcedureFields{converter}),
                      bind<"POPUP">(reference_to_popup(run, converter.dialog)));
}

}  // namespace

void write_enumerations(Run& run) {
  write_title(run, "Enumeration definitions");
  write_enum_arrays(run);
  write_enum_table(run);
}

void write_aliases(Run& run) {
  Done done;
  write_title(run, "Alias definitions");
  emit<aliases_head>(run.out, bind<"ALIASES">(printed(run.document.names.aliases.value())));
  for (const Family* family : run.families) {
    const Heading heading(run, *family, {});
    each_once(family->aliases, done, run.switches.verbose, heading, [&](const AliasDef& alias, bool repeat) {
      write_around(run.out, around_row, repeat, [&] { write_alias(run, alias); });
    });
  }
  emit<aliases_end>(run.out);
}

void write_converter_declarations(Run& run) {
  Done done;
  bool visited = false;
  for (const Family* family : run.families) {
    const Heading heading(run, *family, "Externally defined functions");
    each_once(family->converters, done, run.switches.verbose, heading, [&](const ConverterDef& each, bool repeat) {
      visited = true;
      if (declares(each)) write_around(run.out, around_block, repeat, [&] { declare(run, each); });
    });
    run.out.write("\n");
  }
  if (visited) run.out.write("\n");
}

void write_converters(Run& run) {
  Done done;
  emit<converters_title>(run.out);
  emit<converters_head>(run.out, bind<"CONVERTERS">(printed(run.document.names.converters.value())));
  for (const Family* family : run.families) {
    const Heading heading(run, *family, {});
    each_once(family->converters, done, run.switches.verbose, heading, [&](const ConverterDef& each, bool repeat) {
      write_around(run.out, around_row, repeat, [&] { write_converter(run, each); });
    });
  }
  emit<converters_end>(run.out);
}

}  // namespace vqc
