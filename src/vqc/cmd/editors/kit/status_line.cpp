// Shows what has been said in all windows, and what is so.

#include "vqc/cmd/editors/kit/status_line.h"

#include <Xm/Label.h>
#include <Xm/List.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/long_list.h"
#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

std::vector<Widget> said_labels;
std::vector<Widget> so_labels;
std::string shown;
std::string so;

/// What is said about an action while it goes on, the weightiest last.
struct Said {
  std::string unless_changed;
  Widget where = nullptr;  // the window that it is said in; null for all
  std::string done;
  std::string above_all;
};
Said said;

/// Shows a text in one line.
void show(Widget label, std::string text) {
  std::ranges::replace(text, '\n', ' ');
  XtVaSetValues(label, XmNlabelString, CompoundString(displayable(text).c_str()).get(), nullptr);
}

void show_in_all(std::string text) {
  shown = std::move(text);
  for (Widget label : said_labels) show(label, shown);
}

/// The list of a window that can be seen; null for none.
Widget list_in(Widget w) {
  if (XmIsList(w)) return w;
  for (Widget child : children_of(w)) {
    Boolean is_mapped = True;
    XtVaGetValues(child, XmNmappedWhenManaged, &is_mapped, nullptr);
    if (!XtIsManaged(child) || !is_mapped) continue;
    if (Widget list = list_in(child)) return list;
  }
  return nullptr;
}

std::string count_in(Widget label) {
  Widget list = list_in(shell_around(label));
  if (!list) return {};
  int items = 0;
  XtVaGetValues(list, XmNitemCount, &items, nullptr);
  const auto rows = count_rows(list);
  return filled(text_or_name("status_count"), {rows ? static_cast<int>(*rows) : items});
}

/// Makes a label as wide as its text, but leaves room for what is said on the left.
void fit(Widget label) {
  XtWidgetGeometry preferred{};
  XtQueryGeometry(label, nullptr, &preferred);
  Dimension line = 0;
  XtVaGetValues(XtParent(label), XmNwidth, &line, nullptr);
  const auto most = static_cast<Dimension>(line * 6 / 10);
  XtVaSetValues(label, XmNwidth, std::min(preferred.width, most), nullptr);
}

void show_so_in(Widget label) {
  const std::string count = count_in(label);
  show(label, so.empty() || count.empty() ? so + count : so + "   " + count);
  fit(label);
}

void forget(Widget label, XtPointer labels, XtPointer) {
  std::erase(*static_cast<std::vector<Widget>*>(labels), label);
}

Widget create_label(Widget parent, char* name, std::vector<Widget>& labels) {
  Widget label = XmCreateLabel(parent, name, nullptr, 0);
  XtAddCallback(label, XmNdestroyCallback, forget, &labels);
  labels.push_back(label);
  return label;
}

Widget create_said(Widget parent, char* name, ArgList, Cardinal) {
  Widget label = create_label(parent, name, said_labels);
  show(label, shown);
  return label;
}

Widget create_so(Widget parent, char* name, ArgList, Cardinal) {
  Widget label = create_label(parent, name, so_labels);
  show(label, so);
  return label;
}

}  // namespace

DialogPart status_line(const char* form) {
  const WidgetRow rows[] = {
      {"status_line", create_form, form},
      {"status_so", create_so, "status_line"},
      {"status_said", create_said, "status_line"},
  };
  return part(rows);
}

void say(const char* message, std::initializer_list<MessageArgument> arguments) {
  say_text(filled(text_or_name(message), arguments));
}

void say_text(std::string text) { said.done = std::move(text); }

void say_unless_changed(const char* message, std::initializer_list<MessageArgument> arguments) {
  said.unless_changed = filled(text_or_name(message), arguments);
}

void say_above_all(std::string text) { said.above_all = std::move(text); }

void hint(Widget w, std::string text) {
  for (Widget label : said_labels) {
    if (shell_around(label) == shell_around(w)) show(label, text);
  }
}

void hint_after_action(Widget w, std::string text) {
  said.unless_changed = std::move(text);
  said.where = w;
}

void end_action(std::string done) {
  Said all = std::exchange(said, {});
  for (std::string* text : {&all.above_all, &all.done, &done}) {
    if (!text->empty()) return show_in_all(std::move(*text));
  }
  if (all.where) return hint(all.where, std::move(all.unless_changed));
  if (!all.unless_changed.empty()) show_in_all(std::move(all.unless_changed));
}

void show_so(std::string text) {
  so = std::move(text);
  recount();
}

void recount() {
  for (Widget label : so_labels) show_so_in(label);
}

}  // namespace vqc::editors
