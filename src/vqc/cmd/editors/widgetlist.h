#ifndef VQC_CMD_EDITORS_WIDGETLIST_H
#define VQC_CMD_EDITORS_WIDGETLIST_H

#include "vqc/cmd/editors/kit/list_editor.h"

// The page of a family's widget classes. The current one is what the widget editor shows.

extern ListEditor widget_editor;
inline constexpr XtCallbackProc widgetlist_do_add = do_add<widget_editor>;
inline constexpr XtCallbackProc widgetlist_do_edit = do_accept<widget_editor>;
inline constexpr XtCallbackProc widgetlist_do_delete = do_delete<widget_editor>;
inline constexpr XtCallbackProc widgetlist_do_select = do_select<widget_editor>;
inline constexpr XtCallbackProc widgetlist_do_up = do_up<widget_editor>;
inline constexpr XtCallbackProc widgetlist_do_down = do_down<widget_editor>;
inline void widgetlist_setfamily(const Family* family) { set_family(widget_editor, family); }

/// Hears that another widget of the family, or none, is current now.
void current_widget_changed(Reference<WidgetDef>* element);

#endif
