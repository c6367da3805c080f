// Puts together the widgets around a list that is edited by name.

#include "vqc/cmd/editors/kit/list_page.h"

#include <X11/Xresource.h>
#include <Xm/ArrowB.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>

#include <algorithm>
#include <string>

#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/status_line.h"

namespace vqc::editors {

namespace {

/// The name of a widget of a page. It is kept for good, as the toolkit keeps the names of all widgets.
const char* name_on(const ListPage& page, const char* widget) {
  return XrmQuarkToString(XrmStringToQuark((std::string(page.name) + "_" + widget).c_str()));
}

Callbacks callbacks_of_box(const ListPage& page) {
  return {{{XmNokCallback, page.ok},
           {XmNapplyCallback, page.apply},
           {XmNcancelCallback, page.cancel},
           {XmNhelpCallback, vqc_do_help, page.topic}}};
}

}  // namespace

DialogPart list_page(const ListPage& page) {
  const char* box = name_on(page, "selection");
  const char* arrows = name_on(page, "arrowbox");
  const char* quit = name_on(page, "quitb");
  DialogPart all = part({}, page.links);
  auto add = [&all](const WidgetRow& row) { all.rows.push_back(row); };

  // clang-format off
  add({box,          create_editor_box, page.parent, callbacks_of_box(page), page.slot});
  add({"Help",       find_button,       box,         on_press(vqc_do_help, page.topic)});
  if (page.type) add({"Text", find_child, box, on_change(page.type)});
  add({"*ItemsList", find_child,        box,         on_select(page.select)});
  if (!page.ok)    add({"OK",      unmanage_child, box});
  if (!page.apply) add({"Apply",   unmanage_child, box});
  if (page.form)   add({page.form, create_form,    box});
  if (page.has_status_line) std::ranges::for_each(status_line(page.form).rows, add);
  if (page.up) {
    add({arrows,                     XmCreateRowColumn,   page.form ? page.form : box});
    add({name_on(page, "uparrow"),   XmCreateArrowButton, arrows, on_press(page.up)});
    add({name_on(page, "downarrow"), XmCreateArrowButton, arrows, on_press(page.down)});
  }
  for (const WidgetRow& row : page.rows) add(row);
  if (page.quit) add({quit, XmCreatePushButton, box, on_press(page.quit)});
  // clang-format on

  if (page.quit) all.links.push_back({box, XmNcancelButton, quit});  // Escape must not press the button that deletes
  return all;
}

}  // namespace vqc::editors
