// The page of a family's initialisation.

#include "vqc/cmd/editors/familyinit.h"

#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include "vqc/cmd/editors/completion.h"
#include "vqc/cmd/editors/entity_dialog.h"
#include "vqc/cmd/editors/field_words.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/part_names.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/kit/unapplied.h"

namespace vqc::editors {

namespace {

// clang-format off
const WidgetRow rows[] = {
    {"familyinit_form",        create_plain_box,     "entity_view_form",     on_help("vqc_family_init"), FAMILYINIT_FORM},
    {"familyinit_work_area",   create_form,          "familyinit_form"},
    {"familyinit_init_text",   XmCreateTextField,    "familyinit_work_area", {}, FAMILYINIT_INIT},
    {"familyinit_init_l",      XmCreateLabel,        "familyinit_work_area"},
    {"familyinit_add_vq_t",    XmCreateToggleButton, "familyinit_work_area", {}, FAMILYINIT_ADD_VQ},
    {"familyinit_add_code_t",  XmCreateToggleButton, "familyinit_work_area", {}, FAMILYINIT_ADD_CODE},
    {"familyinit_add_stub_t",  XmCreateToggleButton, "familyinit_work_area", {}, FAMILYINIT_ADD_STUB},
    {"familyinit_pre_shell_t", XmCreateToggleButton, "familyinit_work_area", {}, FAMILYINIT_PRE_SHELL},
    {"familyinit_not_applied", create_unapplied_note,        "familyinit_work_area", {}, FAMILYINIT_NOT_APPLIED},
    {"familyinit_applyb",      XmCreatePushButton,   "familyinit_form",      on_press(family_init_do_update)},
    {"familyinit_cancelb",     XmCreatePushButton,   "familyinit_form",      on_press(entity_do_hide)},
    {"familyinit_helpb",       XmCreatePushButton,   "familyinit_form",      on_press(vqc_do_help, "vqc_family_init")},
};

const WidgetLink links[] = {
    {"entity_view_form", XmNcancelButton,  "familyinit_cancelb"},  // of its own, the box would put it last
    {"familyinit_form",  XmNdefaultButton, "familyinit_applyb"},
};
// clang-format on

struct InitFlag {
  EntitySlot toggle;
  bool FamilyInit::*flag;
};
constexpr InitFlag init_flags[] = {
    {FAMILYINIT_ADD_VQ, &FamilyInit::generate_family_init_vq},
    {FAMILYINIT_ADD_CODE, &FamilyInit::generate_family_init_code},
    {FAMILYINIT_ADD_STUB, &FamilyInit::generate_family_init_stub},
    {FAMILYINIT_PRE_SHELL, &FamilyInit::generate_family_init_pre_shell},
};

constexpr FieldOfWord fields[] = {
    {Kw::family_init, FAMILYINIT_INIT},
    {Kw::generate_family_init_vq, FAMILYINIT_ADD_VQ},
    {Kw::generate_family_init_code, FAMILYINIT_ADD_CODE},
    {Kw::generate_family_init_stub, FAMILYINIT_ADD_STUB},
    {Kw::generate_family_init_pre_shell, FAMILYINIT_PRE_SHELL},
};

}  // namespace

DialogPart familyinit_page() { return part(rows, links); }

void complete_familyinit(Widget* record) { complete_value(record[FAMILYINIT_INIT], ValueKind::family_procedure); }

void watch_familyinit(Widget* record) {
  watch_fields({XtParent(record[FAMILYINIT_INIT])}, record[FAMILYINIT_NOT_APPLIED]);
}

void familyinit_setfamily(const Family* family) {
  if (!entity_dialog) return;
  settextf(entity_dialog[FAMILYINIT_INIT], family ? family->family_init : Text());
  for (const auto& [toggle, flag] : init_flags) settoggle(entity_dialog[toggle], family && family->*flag);
}

Widget familyinit_field(Kw word) { return field_of_word(entity_dialog, fields, word); }

void family_init_do_update(Widget, XtPointer, XtPointer) {
  Family* family = family_getcurrent();
  if (!entity_dialog || !family) return;
  const std::string init = gettextf(entity_dialog[FAMILYINIT_INIT]);
  family->family_init = edited_document.keep(Name(init));  // an empty text is a text here
  for (const auto& [toggle, flag] : init_flags) gettoggle(entity_dialog[toggle], &(family->*flag));
  note_applied(entity_dialog[FAMILYINIT_INIT]);
  say_unless_changed("nothing_changed", {part_name(Part::family, family->name).c_str()});
}

}  // namespace vqc::editors
