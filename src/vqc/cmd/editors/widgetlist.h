#ifndef VQC_CMD_EDITORS_WIDGETLIST_H
#define VQC_CMD_EDITORS_WIDGETLIST_H

// The page of a family's widget classes. The current one is what the widget editor shows.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/list_editor.h"

namespace vqc::editors {

/// Its part of the family dialog.
DialogPart widgetlist_page();

extern ListEditor widgetlist_editor;
inline constexpr XtCallbackProc widgetlist_do_add = do_add<widgetlist_editor>;
inline constexpr XtCallbackProc widgetlist_do_edit = do_accept<widgetlist_editor>;
inline constexpr XtCallbackProc widgetlist_do_delete = do_delete<widgetlist_editor>;
inline constexpr XtCallbackProc widgetlist_do_select = do_select<widgetlist_editor>;
inline constexpr XtCallbackProc widgetlist_do_up = do_up<widgetlist_editor>;
inline constexpr XtCallbackProc widgetlist_do_down = do_down<widgetlist_editor>;
inline void widgetlist_setfamily(const Family* family) { set_family(widgetlist_editor, family); }

/// Hears that another widget of the family, or none, is current now.
void current_widget_changed(Reference<WidgetDef>* element);

}  // namespace vqc::editors

#endif
