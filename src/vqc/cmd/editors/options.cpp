// The dialog of the document's names for the generated tables.

#include "vqc/cmd/editors/options.h"

#include <Xm/DialogS.h>
#include <Xm/Frame.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/Separator.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include <algorithm>
#include <string>

#include "libkel/nextwhite.h"
#include "libkel/overwhite.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/given_options.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/savefile/fields.h"

namespace vqc::editors {

namespace {

enum Slot {
  SHELL,
  FORM,
  FAMILY_TABLE,
  FAMILY_NAMES,
  XWIDGETS,
  ENUMERATIONS,
  ALIASES,
  CONVERTERS,
  POPUPS,
  STOP_LIST,
  FAMILY_COUNT,
  PAGE_NAMES,
  COMMENT,
  VERBOSE,
  SLOTS,
};

// clang-format off
const WidgetRow frame_rows[] = {
    {"options_shell", XmCreateDialogShell, nullptr,         {}, SHELL},
    {"options_form",  create_form,         "options_shell", {{{XmNhelpCallback, options_help_callback}}}, FORM},
};

const WidgetRow rows[] = {
    {"options_ok",              XmCreatePushButton,   "options_form",      on_press(options_ok_callback)},
    {"options_reset",           XmCreatePushButton,   "options_form",      on_press(options_reset_callback)},
    {"options_cancel",          XmCreatePushButton,   "options_form",      on_press(options_cancel_callback)},
    {"options_help",            XmCreatePushButton,   "options_form",      on_press(options_help_callback)},
    {"options_separator_2",     XmCreateSeparator,    "options_form"},
    {"options_verbose_code",    XmCreateToggleButton, "options_form",      on_change(options_verbose_changed_callback), VERBOSE},
    {"options_comment_code",    XmCreateToggleButton, "options_form",      on_change(options_comment_changed_callback), COMMENT},
    {"options_data_frame",      XmCreateFrame,        "options_form"},
    {"options_data_label",      XmCreateLabel,        "options_data_frame"},
    {"options_data_form",       create_form,          "options_data_frame"},
    {"family_table_text",       XmCreateTextField,    "options_data_form", {}, FAMILY_TABLE},
    {"family_table_label",      XmCreateLabel,        "options_data_form"},
    {"family_names_text",       XmCreateTextField,    "options_data_form", {}, FAMILY_NAMES},
    {"family_names_label",      XmCreateLabel,        "options_data_form"},
    {"xwidget_array_text",      XmCreateTextField,    "options_data_form", {}, XWIDGETS},
    {"xwidget_array_label",     XmCreateLabel,        "options_data_form"},
    {"enumeration_array_text",  XmCreateTextField,    "options_data_form", {}, ENUMERATIONS},
    {"enumeration_array_label", XmCreateLabel,        "options_data_form"},
    {"alias_array_text",        XmCreateTextField,    "options_data_form", {}, ALIASES},
    {"alias_array_label",       XmCreateLabel,        "options_data_form"},
    {"converter_array_text",    XmCreateTextField,    "options_data_form", {}, CONVERTERS},
    {"converter_array_label",   XmCreateLabel,        "options_data_form"},
    {"popup_array_text",        XmCreateTextField,    "options_data_form", {}, POPUPS},
    {"popup_array_label",       XmCreateLabel,        "options_data_form"},
    {"stop_list_array_text",    XmCreateTextField,    "options_data_form", {}, STOP_LIST},
    {"stop_list_array_label",   XmCreateLabel,        "options_data_form"},
    {"family_count_text",       XmCreateTextField,    "options_data_form", {}, FAMILY_COUNT},
    {"family_count_label",      XmCreateLabel,        "options_data_form"},
    {"page_names_text",         XmCreateTextField,    "options_data_form", {}, PAGE_NAMES},
    {"page_names_label",        XmCreateLabel,        "options_data_form"},
    {"options_separator_1",     XmCreateSeparator,    "options_data_form"},
};

const WidgetLink links[] = {
    {"options_form", XmNdefaultButton, "options_ok"},
    {"options_form", XmNcancelButton,  "options_cancel"},
    {"options_form", XmNinitialFocus,  "family_table_text"},
};
// clang-format on

struct OptionField {
  Slot field;
  NameOption NameOptions::*option;
};
constexpr OptionField option_fields[] = {
    {FAMILY_TABLE, &NameOptions::family_table},
    {FAMILY_NAMES, &NameOptions::family_names},
    {XWIDGETS, &NameOptions::xwidgets},
    {ENUMERATIONS, &NameOptions::enumerations},
    {ALIASES, &NameOptions::aliases},
    {CONVERTERS, &NameOptions::converters},
    {POPUPS, &NameOptions::popups},
    {STOP_LIST, &NameOptions::stop_list},
    {FAMILY_COUNT, &NameOptions::family_count},
    {PAGE_NAMES, &NameOptions::page_names},
};

/// The first word of a text, for the document; null when it has none.
Text first_word(std::string text) {
  char* word = overwhite(text.data());
  *nextwhite(word) = '\0';
  return edited_document.keep(non_empty(word));
}

}  // namespace

Widget* create_options_shell(Widget parent) {
  return build_dialog(parent, {part(frame_rows), status_line("options_form"), part(rows, links)}, SLOTS);
}

void genopt_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  options_popup(main_shell());
}

void options_popup(Widget parent) {
  if (!ensure_dialog(options_shell, create_options_shell, parent)) return;
  document_switches.dialog_exists = true;
  options_dialog_load();
  show_dialog(options_shell[FORM]);
}

void options_dialog_load() {
  if (!options_shell) return;
  for (const auto& [field, option] : option_fields)
    settextf(options_shell[field], (edited_document.names.*option).value());
  XmToggleButtonSetState(options_shell[COMMENT], vqc_comment_code() ? True : False, True);
  XmToggleButtonSetState(options_shell[VERBOSE], vqc_verbose_code() ? True : False, True);
}

void options_dialog_reset() {
  for (const auto& [field, option] : option_fields) (edited_document.names.*option).document = nullptr;
  options_dialog_load();
}

Widget options_field(Kw word) {
  const auto key = std::ranges::find(header_keys, word, &HeaderKey::word);
  if (key == std::end(header_keys)) return nullptr;
  for (const auto& [field, option] : option_fields) {
    if (const auto* member = std::get_if<NameOption NameOptions::*>(&key->member); member && *member == option)
      return options_shell[field];
  }
  return nullptr;
}

void options_ok_callback(Widget, XtPointer, XtPointer) {
  for (const auto& [field, option] : option_fields) {
    (edited_document.names.*option).document = first_word(gettextf(options_shell[field]));
  }
  hide_dialog(options_shell[FORM]);
}

void options_reset_callback(Widget, XtPointer, XtPointer) { options_dialog_reset(); }

void options_cancel_callback(Widget, XtPointer, XtPointer) { hide_dialog(options_shell[FORM]); }

void options_help_callback(Widget w, XtPointer, XtPointer call) {
  vqc_do_help(w, const_cast<char*>("vqc_gen_options"), call);
}

void options_comment_changed_callback(Widget w, XtPointer, XtPointer) { vqc_set_comment_code(gettoggle(w)); }

void options_verbose_changed_callback(Widget w, XtPointer, XtPointer) { vqc_set_verbose_code(gettoggle(w)); }

}  // namespace vqc::editors
