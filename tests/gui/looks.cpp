#include "gui/looks.h"

#include <Xm/List.h>
#include <Xm/MessageB.h>
#include <Xm/RowColumn.h>
#include <Xm/SelectioB.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include <algorithm>
#include <stdexcept>

#include "gui/parts.h"

using namespace vqc;

namespace {

std::string taken(char* text) {
  std::string copy = text ? text : "";
  XtFree(text);
  return copy;
}

template <class Value>
Value value_of(Widget w, const char* resource) {
  Value value{};
  XtVaGetValues(w, resource, &value, nullptr);
  return value;
}

Items texts(XmStringTable table, int count) {
  Items all;
  for (int i = 0; i < count; ++i) all.push_back(plain_text(table[i]));
  return all;
}

std::string label_resource(Widget w, const char* resource) {
  auto compound = value_of<XmString>(w, resource);
  std::string all = plain_text(compound);
  XmStringFree(compound);
  return all;
}

}  // namespace

std::string plain_text(XmString compound) {
  std::string all;
  XmStringContext context = nullptr;
  if (!compound || !XmStringInitContext(&context, compound)) return all;
  unsigned length = 0;
  XtPointer value = nullptr;
  XmStringComponentType component = XmSTRING_COMPONENT_END;
  while ((component = XmStringGetNextTriple(context, &length, &value)) != XmSTRING_COMPONENT_END) {
    if (component == XmSTRING_COMPONENT_SEPARATOR) {
      all += '\n';
    } else if (component == XmSTRING_COMPONENT_TEXT || component == XmSTRING_COMPONENT_LOCALE_TEXT) {
      all.append(static_cast<const char*>(value), length);
    }
    XtFree(static_cast<char*>(value));
  }
  XmStringFreeContext(context);
  return all;
}

Items items(const std::string& list_or_box) {
  Widget list = list_in(list_or_box);
  return texts(value_of<XmStringTable>(list, XmNitems), value_of<int>(list, XmNitemCount));
}

Items selected(const std::string& list_or_box) {
  Widget list = list_in(list_or_box);
  return texts(value_of<XmStringTable>(list, XmNselectedItems), value_of<int>(list, XmNselectedItemCount));
}

int first_row(const std::string& list_or_box) { return value_of<int>(list_in(list_or_box), XmNtopItemPosition); }

int rows(const std::string& list_or_box) { return value_of<int>(list_in(list_or_box), XmNvisibleItemCount); }

bool is_in_view(const std::string& list_or_box, const std::string& item) {
  const Items all = items(list_or_box);
  const auto place = static_cast<int>(std::ranges::find(all, item) - all.begin()) + 1;
  return place >= first_row(list_or_box) && place < first_row(list_or_box) + rows(list_or_box);
}

std::string text(const std::string& field_or_box) {
  Widget field = field_in(field_or_box);
  return taken(XmIsTextField(field) ? XmTextFieldGetString(field) : XmTextGetString(field));
}

std::string label(Widget w) { return label_resource(w, XmNlabelString); }

std::string label(const std::string& name) { return label(widget(name)); }

std::string message(const std::string& box) { return label_resource(widget(box), XmNmessageString); }

std::string error_shown() { return is_shown("error_dialog") ? message("error_messageb") : ""; }

std::string said(const std::string& window) { return label(window + "*status_said"); }

std::string so(const std::string& window) { return label(window + "*status_so"); }

std::string title(const std::string& shell) { return value_of<char*>(widget(shell), XmNtitle); }

std::string title() { return value_of<char*>(main_shell(), XmNtitle); }

std::string resource_text(const std::string& name) {
  char* value = nullptr;
  XtResource resource = {
      const_cast<char*>(name.c_str()), const_cast<char*>(XtCString), const_cast<char*>(XtRString), sizeof value, 0,
      const_cast<char*>(XtRString),    const_cast<char*>("")};
  XtGetApplicationResources(main_shell(), &value, &resource, 1, nullptr, 0);
  return value;
}

std::string filled(const std::string& name, const char* argument) {
  std::string all = resource_text(name);
  const std::size_t place = all.find("%s");
  if (place == std::string::npos) throw std::runtime_error(name + " has no place for its argument");
  return all.replace(place, 2, argument ? argument : resource_text("none"));
}

bool is_set(const std::string& toggle) { return XmToggleButtonGetState(widget(toggle)); }

bool is_sensitive(const std::string& name) { return XtIsSensitive(widget(name)); }

std::vector<bool> buttons_sensitive(const std::string& box) {
  return {is_sensitive(box + ".OK"), is_sensitive(box + ".Apply"), is_sensitive(box + ".Cancel")};
}

bool is_viewable(Widget w) {
  if (!w) return false;
  if (!XtIsWidget(w)) return XtIsManaged(w) && is_viewable(XtParent(w));
  return XtIsRealized(w) && is_window_viewable(w);
}

bool is_shown(const std::string& shell) {
  settle();
  Widget w = find_widget(shell);
  if (!w) return false;
  const auto children = children_of(w);
  if (children.empty() || !XtIsManaged(children.front())) return false;
  return wait_for([w] { return is_viewable(w); });
}

bool has_keyboard(const std::string& shell) { return is_shown(shell) && has_keyboard(widget(shell)); }

bool has_keyboard(Widget shell) {
  return wait_for([shell] {
    Window window = None;
    int revert = 0;
    XGetInputFocus(display, &window, &revert);
    Widget focused = window > PointerRoot ? XtWindowToWidget(display, window) : nullptr;
    return focused && shell_around(focused) == shell;
  });
}

std::vector<std::string> left_to_right(std::vector<std::string> names) {
  std::ranges::sort(names, {}, [](const std::string& name) { return value_of<Position>(widget(name), XmNx); });
  return names;
}

std::vector<std::string> top_to_bottom(std::vector<std::string> names) {
  std::ranges::sort(names, {}, [](const std::string& name) { return value_of<Position>(widget(name), XmNy); });
  return names;
}

std::string chosen(const std::string& option_menu) {
  return label(value_of<Widget>(widget(option_menu), XmNmenuHistory));
}

std::string focus(const std::string& inside) {
  Widget w = XmGetFocusWidget(widget(inside));
  return w ? XtName(w) : "";
}
