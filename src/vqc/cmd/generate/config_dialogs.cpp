// The sections on what edits resources: the popup dialogs and the pages of the resource panel.

#include "vqc/cmd/generate/config_file.h"
#include "vqc/cmd/model/options.h"

namespace {

constexpr Template procedure_declaration = "extern void @PROCEDURE@();\n";

constexpr Template popups_head = "Popup_t @POPUPS@[] = {\n";
constexpr Template popup_row = "\t{@NAME@,@INIT@,@UPDATE@, False},";
constexpr Template popups_end =
    "\t{(void (*)()) 0, (void (*)()) 0, (void (*)()) 0, False}\n"
    "};\n\n";
constexpr const char* kNoProcedure = "(void (*)()) 0";

constexpr Template page_names_head = "char *@PAGE_NAMES@[] = {\n";
constexpr Template page_row = "\t\"@NAME@\",";
constexpr Template page_comment = "\t/* Page @N@ */\t";
constexpr Template repeated_page_comment = "\t(Page @N@)\t";
constexpr Template page_names_end =
    "\t(char *) 0\n"
    "};\n\n";

void declare_procedures(Run& run, const PopupDef& popup) {
  for (const Text& procedure : {popup.name, popup.dialog_init, popup.dialog_update}) {
    if (procedure) emit<procedure_declaration>(run.out, procedure);
  }
}

void write_popup(Run& run, const PopupDef& popup) {
  emit<popup_row>(run.out, Or{popup.name, kNoProcedure}, Or{popup.dialog_init, kNoProcedure},
                  Or{popup.dialog_update, kNoProcedure});
}

void write_page_name(Run& run, const PageDef& page, bool repeat) {
  emit<page_row>(run.out, page.name);
  if (!run.comment) return;
  repeat ? emit<repeated_page_comment>(run.out, page.index) : emit<page_comment>(run.out, page.index);
}

}  // namespace

void write_popup_declarations(Run& run) {
  clear_done_and_index(popup_pool);
  bool written = false;
  each_family([&](Family& family) {
    const Heading heading(run, family, "Externally defined functions");
    each_once(family.popups, run.verbose, heading, [&](const PopupDef& popup, bool repeat) {
      write_around(run.out, around_block, repeat, [&] { declare_procedures(run, popup); });
      written = true;
    });
  });
  if (written) charout(&run.out, "\n");
}

void write_popups(Run& run) {
  clear_done_and_index(popup_pool);
  write_title(run, "Popup definitions");
  emit<popups_head>(run.out, vqc_get_popups_variable());
  int next_index = 0;
  each_family([&](Family& family) {
    each_once(family.popups, run.verbose, Heading(run, family, nullptr), [&](PopupDef& popup, bool repeat) {
      if (!repeat) popup.index = next_index++;
      write_around(run.out, around_row, repeat, [&] { write_popup(run, popup); });
    });
  });
  emit<popups_end>(run.out);
}

const PopupDef* written_popup(const Text& name) {
  PopupDef* popup = name ? popup_pool.list.find(name) : nullptr;
  return popup && done(*popup) ? popup : nullptr;
}

void put(Stream& out, const PopupReference& reference) {
  if (reference.popup) {
    emit<"&(@POPUPS@[@INDEX@])">(out, vqc_get_popups_variable(), reference.popup->index);
  } else {
    rawout(&out, "(Popup_p) 0");
  }
}

/// Repeats of pages are a comment for the reader, and so are written with the comments.
void write_page_names(Run& run) {
  clear_done_and_index(page_pool);
  write_title(run, "Page names");
  emit<page_names_head>(run.out, vqc_get_page_names_variable());
  int next_index = 0;
  each_family([&](Family& family) {
    each_once(family.pages, run.comment, Heading(run, family, nullptr), [&](PageDef& page, bool repeat) {
      if (!repeat) page.index = next_index++;
      write_around(run.out, around_row, repeat, [&] { write_page_name(run, page, repeat); });
    });
  });
  emit<page_names_end>(run.out);
}

int written_page(const Text& name) {
  PageDef* page = name ? page_pool.list.find(name) : nullptr;
  return page && done(*page) ? page->index : -1;
}
