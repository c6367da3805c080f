// The sections on the types of resource values: enumerations, aliases and converters.

#include "vqc/cmd/generate/config_file.h"
#include "vqc/cmd/model/options.h"

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
  emit<enum_array_head>(run.out, enumeration.name);
  for (const EnumEntry& entry : enumeration.entries) {
    emit<enum_entry_row>(run.out, entry.name, entry.code_symbol, entry.code_symbol, entry.resfile_symbol);
  }
  emit<enum_array_end>(run.out);
}

void write_enum_arrays(Run& run) {
  clear_done(enum_pool);
  bool written = false;
  each_family([&](Family& family) {
    each_once(family.enumerations, run.verbose, Heading(run, family, nullptr), [&](const EnumDef& each, bool repeat) {
      write_around(run.out, around_block, repeat, [&] { write_enum_array(run, each); });
      written = true;
    });
  });
  if (written) charout(&run.out, "\n");
}

/// The second pass over the families: their banners stand before the arrays already.
void write_enum_table(Run& run) {
  clear_done(enum_pool);
  emit<enumerations_head>(run.out, vqc_get_enumerations_variable());
  each_family([&](Family& family) {
    Heading no_heading(run, family, nullptr);
    no_heading.suppress();
    each_once(family.enumerations, run.verbose, no_heading, [&](const EnumDef& each, bool repeat) {
      write_around(run.out, around_row, repeat,
                   [&] { emit<enumeration_row>(run.out, Verbatim{each.type_name}, each.name); });
    });
  });
  emit<enumerations_end>(run.out);
}

bool declares(const ConverterDef& converter) { return converter.proc_name && converter.add_in_vq; }

/// The procedure itself, for the builder, and its name, for the code that the builder writes.
struct ProcedureFields {
  const ConverterDef& converter;
};

void put(Stream& out, const ProcedureFields& fields) {
  const ConverterDef& converter = fields.converter;
  if (!converter.proc_name) {
    charout(&out, "(Boolean (*)()) 0, (char *) 0 ");
    return;
  }
  static const Text none;
  emit<"@PROCEDURE@,@QUOTED_PROCEDURE@">(out, Or{converter.add_in_vq ? converter.proc_name : none, "(Boolean (*)()) 0"},
                                         Quoted{converter.add_in_code ? converter.proc_name : none, "(char *) 0"});
}

}  // namespace

void write_enumerations(Run& run) {
  write_title(run, "Enumeration definitions");
  write_enum_arrays(run);
  write_enum_table(run);
}

void write_aliases(Run& run) {
  clear_done(alias_pool);
  write_title(run, "Alias definitions");
  emit<aliases_head>(run.out, vqc_get_aliases_variable());
  each_family([&](Family& family) {
    each_once(family.aliases, run.verbose, Heading(run, family, nullptr), [&](const AliasDef& alias, bool repeat) {
      write_around(run.out, around_row, repeat, [&] { emit<alias_row>(run.out, alias.name, alias.to_name); });
    });
  });
  emit<aliases_end>(run.out);
}

void write_converter_declarations(Run& run) {
  clear_done(converter_pool);
  bool visited = false;
  each_family([&](Family& family) {
    const Heading heading(run, family, "Externally defined functions");
    each_once(family.converters, run.verbose, heading, [&](const ConverterDef& converter, bool repeat) {
      visited = true;
      if (!declares(converter)) return;
      write_around(run.out, around_block, repeat, [&] { emit<converter_declaration>(run.out, converter.proc_name); });
    });
    charout(&run.out, "\n");
  });
  if (visited) charout(&run.out, "\n");
}

void write_converters(Run& run) {
  clear_done(converter_pool);
  emit<converters_title>(run.out);
  emit<converters_head>(run.out, vqc_get_converters_variable());
  each_family([&](Family& family) {
    each_once(family.converters, run.verbose, Heading(run, family, nullptr),
              [&](const ConverterDef& each, bool repeat) {
                write_around(run.out, around_row, repeat, [&] {
                  emit<converter_row>(run.out, each.name, each.name, ProcedureFields{each},
                                      PopupReference{written_popup(each.dialog)});
                });
              });
  });
  emit<converters_end>(run.out);
}
