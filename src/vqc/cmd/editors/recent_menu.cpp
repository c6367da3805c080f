// The menu of the documents that were opened or saved last.

#include "vqc/cmd/editors/recent_menu.h"

#include <Xm/PushB.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "vqc/cmd/editors/familylist.h"
#include "vqc/cmd/editors/file_commands.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/edited_document.h"
#include "vqc/cmd/editors/kit/widgets.h"
#include "vqc/cmd/editors/safety_net.h"
#include "vqc/cmd/history/kept_path.h"

namespace vqc::editors {

namespace {

namespace fs = std::filesystem;

/// The documents of the menu, in its order.
std::vector<fs::path> offered;

void open_offered(Widget w, XtPointer path, XtPointer) {
  open_document(w, static_cast<const fs::path*>(path)->string());
}

/// A path as people write it: with "~" for the home folder, and without the first folders where it is long.
std::string short_path(const fs::path& path) {
  constexpr std::size_t kMost = 60;
  std::string text = path.string();
  const char* home = std::getenv("HOME");
  const std::string inside_home = home && *home ? home + std::string("/") : "";
  if (!inside_home.empty() && text.starts_with(inside_home)) text.replace(0, inside_home.size() - 1, "~");
  if (text.size() <= kMost) return text;
  const std::size_t slash = std::min(text.find('/', text.size() - kMost), text.rfind('/'));
  return "..." + text.substr(slash);
}

/// One of the menu's items, which begin with the digits that choose them.
Widget make_item(Widget menu, std::size_t place) {
  std::error_code unknown;
  const char digit = static_cast<char>('0' + (place + 1) % 10);
  const std::string label = digit + ("  " + short_path(offered[place]));
  Widget item = XtVaCreateWidget("recentb", xmPushButtonWidgetClass, menu, XmNlabelString,
                                 CompoundString(displayable(label).c_str()).get(), XmNmnemonic, KeySym(digit),
                                 XmNsensitive, fs::is_regular_file(offered[place], unknown), nullptr);
  add_callback(item, XmNactivateCallback, open_offered, &offered[place]);
  return item;
}

void remove_items(Widget menu) {
  const std::vector<Widget> items(children_of(menu).begin(), children_of(menu).end());
  XtUnmanageChildren(const_cast<Widget*>(items.data()), static_cast<Cardinal>(items.size()));
  for (Widget item : items) XtDestroyWidget(item);
}

}  // namespace

void fill_recent_menu(Widget, XtPointer, XtPointer) {
  Widget menu = family_dialog[FAMILY_RECENT_MENU];
  remove_items(menu);
  offered = recent_documents();
  if (save_file) std::erase(offered, kept_path(*save_file));
  std::vector<Widget> items;
  for (std::size_t place = 0; place < offered.size(); ++place) items.push_back(make_item(menu, place));
  XtManageChildren(items.data(), static_cast<Cardinal>(items.size()));
  XtSetSensitive(family_dialog[FAMILY_RECENT_CASCADE], items.empty() ? False : True);
}

}  // namespace vqc::editors
