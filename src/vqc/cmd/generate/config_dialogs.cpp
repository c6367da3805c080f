// The sections on what edits resources: the popup dialogs and the pages of the resource panel.

#include "vqc/cmd/generate/config_file.h"

namespace vqc {

namespace {

constexpr Template procedure_declaration = "extern void @PROCEDURE@();\n";

constexpr Template popups_head = "Popup_t @POPUPS@[] = {\n";
constexpr Template popup_row = "\t{@NAME@,@INIT@,@UPDATE@, False},";
constexpr Template popups_end =
    "\t{(void (*)()) 0, (void (*)()) 0, (void (*)()) 0, False}\n"
    "};\n\n";
constexpr std::string_view kNoProcedure = "(void (*)()) 0";

constexpr Template page_names_head = "char *@PAGE_NAMES@[] = {\n";
constexpr Template page_row = "\t\"@NAME@\",";
constexpr Template page_comment = "\t/* Page @N@ */\t";
constexpr Template repeated_page_comment = "\t(Page @N@)\t";
constexpr Template page_names_end =
    "\t(char *) 0\n"
    "};\n\n";

void declare_procedures(Run& run, const PopupDef& popup) {
  for (const Text procedure : {popup.name, popup.dialog_init, popup.dialog_update}) {
    if (procedure) emit<procedure_declaration>(run.out, bind<"PROCEDURE">(printed(procedure)));
  }
}

void write_popup(Run& run, const PopupDef& popup) {
  emit<popup_row>(run.out, bind<"NAME">(printed(popup.name)), bind<"INIT">(printed(popup.dialog_init, kNoProcedure)),
                  bind<"UPDATE">(printed(popup.dialog_update, kNoProcedure)));
}

void write_page_name(Run& run, const PageDef& page, bool repeat) {
  emit<page_row>(run.out, bind<"NAME">(printed(page.name)));
  if (!run.switches.comment) return;
  const auto place = bind<"N">(run.pages.of(page.name));
  repeat ? emit<repeated_page_comment>(run.out, place) : emit<page_comment>(run.out, place);
}

}  // namespace

void write_popup_declarations(Run& run) {
  Done done;
  bool written = false;
  for (const Family* family : run.families) {
    const Heading heading(run, *family, "Externally defined functions");
    each_once(family->popups, done, run.switches.verbose, heading, [&](const PopupDef& popup, bool repeat) {
      write_around(run.out, around_block, repeat, [&] { declare_procedures(run, popup); });
      written = true;
    });
  }
  if (written) run.out.write("\n");
}

void write_popups(Run& run) {
  Done done;
  write_title(run, "Popup definitions");
  emit<popups_head>(run.out, bind<"POPUPS">(printed(run.document.names.popups.value())));
  for (const Family* family : run.families) {
    const Heading heading(run, *family, {});
    each_once(family->popups, done, run.switches.verbose, heading, [&](const PopupDef& popup, bool repeat) {
      if (!repeat) run.popups.add(popup.name);
      write_around(run.out, around_row, repeat, [&] { write_popup(run, popup); });
    });
  }
  emit<popups_end>(run.out);
}

PopupReference reference_to_popup(const Run& run, Text name) {
  return {run.document.names.popups.value(), name ? run.popups.of(name) : -1};
}

void put(Sink& out, const PopupReference& reference) {
  if (reference.place < 0) return out.write("(Popup_p) 0");
  emit<"&(@POPUPS@[@INDEX@])">(out, bind<"POPUPS">(printed(reference.table)), bind<"INDEX">(reference.place));
}

/// Repeats of pages are a comment for the reader, and so are written with the comments.
void write_page_names(Run& run) {
  Done done;
  write_title(run, "Page names");
  emit<page_names_head>(run.out, bind<"PAGE_NAMES">(printed(run.document.names.page_names.value())));
  for (const Family* family : run.families) {
    const Heading heading(run, *family, {});
    each_once(family->pages, done, run.switches.comment, heading, [&](const PageDef& page, bool repeat) {
      if (!repeat) run.pages.add(page.name);
      write_around(run.out, around_row, repeat, [&] { write_page_name(run, page, repeat); });
    });
  }
  emit<page_names_end>(run.out);
}

}  // namespace vqc
