// The frame of the family dialog, and the switching of its pages.

#include "vqc/cmd/editors/entity.h"

#include <Xm/CascadeB.h>
#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/SelectioB.h>
#include <Xm/Separator.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include <algorithm>
#include <iterator>

#include "vqc/cmd/editors/aliaslist.h"
#include "vqc/cmd/editors/convlist.h"
#include "vqc/cmd/editors/enumlist.h"
#include "vqc/cmd/editors/familyinit.h"
#include "vqc/cmd/editors/headerlists.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/search_field.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/title.h"
#include "vqc/cmd/editors/widgetlist.h"

namespace vqc::editors {

namespace {

// clang-format off
const WidgetRow frame_rows[] = {
    {"entity_dialog",               XmCreateDialogShell,   nullptr,         {}, ENTITY_SHELL},
    {"entity_form",                 create_form,           "entity_dialog", {}, ENTITY_FORM},
    {"entity_menubar",              XmCreateMenuBar,       "entity_form"},
    {"view_pulldown",               create_radio_menu,     "entity_menubar"},
    {"entity_opt_aliases_t",        XmCreateToggleButton,  "view_pulldown", {}, ENTITY_VIEW_ALIASES},
    {"entity_opt_converters_t",     XmCreateToggleButton,  "view_pulldown", {}, ENTITY_VIEW_CONVERTERS},
    {"entity_opt_enums_t",          XmCreateToggleButton,  "view_pulldown", {}, ENTITY_VIEW_ENUMS},
    {"entity_opt_code_headers_t",   XmCreateToggleButton,  "view_pulldown", {}, ENTITY_VIEW_CODE_HEADERS},
    {"entity_opt_config_headers_t", XmCreateToggleButton,  "view_pulldown", {}, ENTITY_VIEW_CONFIG_HEADERS},
    {"entity_opt_family_headers_t", XmCreateToggleButton,  "view_pulldown", {}, ENTITY_VIEW_FAMILY_HEADERS},
    {"entity_opt_family_init_t",    XmCreateToggleButton,  "view_pulldown", {}, ENTITY_VIEW_FAMILY_INIT},
    {"entity_opt_widgets_t",        XmCreateToggleButton,  "view_pulldown", {}, ENTITY_VIEW_WIDGETS},
    {"entity_view_separator",       XmCreateSeparator,     "view_pulldown"},
    {"entity_usesb",                XmCreatePushButton,    "view_pulldown", on_press(entity_do_uses)},
    {"entity_problemsb",            XmCreatePushButton,    "view_pulldown", on_press(entity_do_problems)},
    {"entity_resourcesb",           XmCreatePushButton,    "view_pulldown", on_press(entity_do_resources)},
    {"entity_viewb",                XmCreateCascadeButton, "entity_menubar"},
};

const WidgetRow view_rows[] = {
    {"search_row",       create_form,       "entity_form"},
    {"entity_search",    XmCreateTextField, "search_row",    {}, ENTITY_SEARCH},
    {"entity_search_l",  XmCreateLabel,     "search_row"},
    {"entity_view_form", create_form,       "entity_form"},
};

const WidgetLink frame_links[] = {
    {"entity_form",                 XmNcancelButton,         "familyinit_cancelb"},
    {"entity_viewb",                XmNsubMenuId,            "view_pulldown"},
    {"entity_opt_aliases_t",        XmNvalueChangedCallback, "aliaslist_selection",        entity_do_show_page},
    {"entity_opt_converters_t",     XmNvalueChangedCallback, "converter_selection",        entity_do_show_page},
    {"entity_opt_enums_t",          XmNvalueChangedCallback, "enumlist_selection",         entity_do_show_page},
    {"entity_opt_code_headers_t",   XmNvalueChangedCallback, "codeheaderlist_selection",   entity_do_show_page},
    {"entity_opt_config_headers_t", XmNvalueChangedCallback, "confheaderlist_selection",   entity_do_show_page},
    {"entity_opt_family_headers_t", XmNvalueChangedCallback, "familyheaderlist_selection", entity_do_show_page},
    {"entity_opt_family_init_t",    XmNvalueChangedCallback, "familyinit_form",            entity_do_show_page},
    {"entity_opt_widgets_t",        XmNvalueChangedCallback, "widgetlist_selection",       entity_do_show_page},
};
// clang-format on

/// The pages that have a list.
struct ListOnPage {
  EntitySlot page;
  const ListEditor& editor;
};
const ListOnPage lists[] = {
    {ALIASLIST_BOX, aliaslist_editor},
    {CONVERTER_BOX, converterlist_editor},
    {ENUMLIST_BOX, enumlist_editor},
    {CODEHEADERLIST_BOX, codeheaderlist_editor},
    {CONFHEADERLIST_BOX, confheaderlist_editor},
    {FAMILYHEADERLIST_BOX, familyheaderlist_editor},
    {WIDGETLIST_BOX, widgetlist_editor},
};

/// That of the page which is shown; null where that has none.
const ListEditor* shown_list = nullptr;

const ListEditor* list_on(Widget page) {
  const auto found = std::ranges::find_if(lists, [page](const auto& row) { return entity_dialog[row.page] == page; });
  return found == std::end(lists) ? nullptr : &found->editor;
}

/// Tab comes to a page from what stands above it.
void begin_at_list(Widget page) { XtVaSetValues(page, XmNinitialFocus, XtNameToWidget(page, "ItemsListSW"), nullptr); }

void search_page(Widget page) {
  Widget field = entity_dialog[ENTITY_SEARCH];
  shown_list = list_on(page);
  settextf(field, nullptr);
  XtSetMappedWhenManaged(XtParent(field), shown_list ? True : False);
}

/// Where the user begins on a page.
Widget first_field(Widget page) {
  return page == entity_dialog[FAMILYINIT_FORM] ? entity_dialog[FAMILYINIT_INIT]
                                                : XmSelectionBoxGetChild(page, XmDIALOG_TEXT);
}

/// Maps one page, with the focus; the others stay managed, and filled.
void map_page(Widget shown) {
  for (int slot = ALIASLIST_BOX; slot <= WIDGETLIST_BOX; ++slot) {
    Widget page = entity_dialog[slot];
    XtSetMappedWhenManaged(page, page == shown ? True : False);
  }
  search_page(shown);
  XtVaSetValues(entity_dialog[ENTITY_FORM], XmNinitialFocus, first_field(shown), nullptr);
  XmProcessTraversal(first_field(shown), XmTRAVERSE_CURRENT);
}

bool create_on_first_use() {
  if (entity_dialog) return true;
  if (!ensure_dialog(entity_dialog, create_entity_dialog)) return false;
  entity_setfamily(family_getcurrent());
  map_page(entity_dialog[WIDGETLIST_BOX]);
  return true;
}

}  // namespace

Widget* create_entity_dialog(Widget parent) {
  Widget* record =
      build_dialog(parent,
                   {part(frame_rows, frame_links), status_line("entity_form"), part(view_rows), codeheaderlist_page(),
                    confheaderlist_page(), familyheaderlist_page(), aliaslist_page(), enumlist_page(),
                    widgetlist_page(), converterlist_page(), familyinit_page()},
                   ENTITY_SLOTS);
  if (!record) return nullptr;
  settoggle(record[ENTITY_VIEW_WIDGETS], true);
  for (const ListOnPage& row : lists) begin_at_list(record[row.page]);
  complete_converter(record);
  complete_familyinit(record);
  watch_aliaslist(record);
  watch_converter(record);
  watch_familyinit(record);
  search_in(record[ENTITY_SEARCH], entity_shown_list);
  return record;
}

int entity_show() {
  const bool is_new = !entity_dialog;
  if (!create_on_first_use()) return 0;
  show_dialog(entity_dialog[ENTITY_FORM]);
  if (is_new) XmProcessTraversal(first_field(entity_dialog[WIDGETLIST_BOX]), XmTRAVERSE_CURRENT);
  return 1;
}

const ListEditor* entity_shown_list() { return shown_list; }

bool entity_show_page(EntitySlot page) {
  if (entity_show() == 0) return false;
  const int toggle = ENTITY_VIEW_ALIASES + (page - ALIASLIST_BOX);
  XmToggleButtonSetState(entity_dialog[toggle], True, True);
  give_keyboard(first_field(entity_dialog[page]));
  return true;
}

void entity_do_show_page(Widget toggle, XtPointer page, XtPointer call) {
  if (!static_cast<XmToggleButtonCallbackStruct*>(call)->set) return;
  const BusyCursor busy(toggle);
  map_page(static_cast<Widget>(page));
}

void entity_do_uses(Widget item, XtPointer, XtPointer) {
  if (session_hooks.uses) session_hooks.uses(item);
}

void entity_do_problems(Widget item, XtPointer, XtPointer) {
  if (session_hooks.problems) session_hooks.problems(item);
}

void entity_do_resources(Widget item, XtPointer, XtPointer) {
  if (session_hooks.resources) session_hooks.resources(item);
}

int entity_setfamily(Family* family) {
  if (!entity_dialog) return 0;
  vq_set_title(entity_dialog[ENTITY_SHELL], "family_title", family ? family->name : Text());
  enumlist_setfamily(family);
  aliaslist_setfamily(family);
  converterlist_setfamily(family);
  codeheaderlist_setfamily(family);
  confheaderlist_setfamily(family);
  familyheaderlist_setfamily(family);
  familyinit_setfamily(family);
  widgetlist_setfamily(family);
  return 1;
}

}  // namespace vqc::editors
