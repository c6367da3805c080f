#include "vqc/cmd/editors/options.h"

#include <Xm/ToggleB.h>

#include <string>

#include "libkel/nextwhite.h"
#include "libkel/overwhite.h"
#include "vqc/cmd/editors/dialogs/family_dialog.h"
#include "vqc/cmd/editors/dialogs/options_shell.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/model/options.h"

namespace {

struct OptionField {
  OptionsSlot field;
  NameOption NameOptions::*option;
};
constexpr OptionField option_fields[] = {
    {OPTIONS_FAMILY_TABLE, &NameOptions::family_table},
    {OPTIONS_FAMILY_NAMES, &NameOptions::family_names},
    {OPTIONS_XWIDGETS, &NameOptions::xwidgets},
    {OPTIONS_ENUMERATIONS, &NameOptions::enumerations},
    {OPTIONS_ALIASES, &NameOptions::aliases},
    {OPTIONS_CONVERTERS, &NameOptions::converters},
    {OPTIONS_POPUPS, &NameOptions::popups},
    {OPTIONS_STOP_LIST, &NameOptions::stop_list},
    {OPTIONS_FAMILY_COUNT, &NameOptions::family_count},
    {OPTIONS_PAGE_NAMES, &NameOptions::page_names},
};

/// The first word of a text; null when it has none.
Text first_word(const Text& text) {
  std::string copy(text.view());
  char* word = overwhite(copy.data());
  *nextwhite(word) = '\0';
  return non_empty(word);
}

}  // namespace

void genopt_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  options_popup(family_dialog[FAMILY_SHELL]);
}

void options_popup(Widget parent) {
  if (!made(options_shell, create_options_shell, parent)) return;
  document_switches.dialog_exists = true;
  options_dialog_load();
  show_dialog(options_shell[OPTIONS_FORM]);
}

void options_dialog_load() {
  if (!options_shell) return;
  for (const auto& [field, option] : option_fields) settextf(options_shell[field], (name_options.*option).value());
  XmToggleButtonSetState(options_shell[OPTIONS_COMMENT], vqc_comment_code() ? True : False, True);
  XmToggleButtonSetState(options_shell[OPTIONS_VERBOSE], vqc_verbose_code() ? True : False, True);
}

void options_dialog_reset() {
  for (const auto& [field, option] : option_fields) (name_options.*option).document = nullptr;
  options_dialog_load();
}

void options_ok_callback(Widget, XtPointer, XtPointer) {
  for (const auto& [field, option] : option_fields) {
    (name_options.*option).document = first_word(gettextf(options_shell[field]));
  }
  hide_dialog(options_shell[OPTIONS_FORM]);
}

void options_reset_callback(Widget, XtPointer, XtPointer) { options_dialog_reset(); }

void options_cancel_callback(Widget, XtPointer, XtPointer) { hide_dialog(options_shell[OPTIONS_FORM]); }

void options_help_callback(Widget w, XtPointer, XtPointer call) {
  vqc_do_help(w, const_cast<char*>("vqc_gen_options"), call);
}

void options_comment_changed_callback(Widget w, XtPointer, XtPointer) { vqc_set_comment_code(gettoggle(w)); }

void options_verbose_changed_callback(Widget w, XtPointer, XtPointer) { vqc_set_verbose_code(gettoggle(w)); }
