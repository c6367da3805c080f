#include <gtest/gtest.h>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <Xm/ArrowB.h>
#include <Xm/Label.h>
#include <Xm/LabelG.h>
#include <Xm/ScrolledW.h>
#include <Xm/ToggleB.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/pixels.h"
#include "gui/session.h"
#include "gui/widget_tables.h"

using namespace vqc;

// Everything grows with the letters: with the resolution that the X server states, and with that which a user sets for
// letters alone. The tests run once for each resolution of the server; DPI in the environment says which.

namespace {

/// Sets the resolution of letters, as xrdb does, before the program asks for it.
void set_resolution_of_letters(int dots_per_inch) {
  const std::unique_ptr<Display, int (*)(Display*)> server(XOpenDisplay(nullptr), XCloseDisplay);
  const std::string text = "Xft.dpi:\t" + std::to_string(dots_per_inch) + "\n";
  XChangeProperty(server.get(), DefaultRootWindow(server.get()), XA_RESOURCE_MANAGER, XA_STRING, 8, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(text.data()), static_cast<int>(text.size()));
}

/// The resolution of letters; 0 for that of the server.
class FontSize : public EveryDialog, public testing::WithParamInterface<int> {
 protected:
  FontSize() {
    if (GetParam() > 0) set_resolution_of_letters(GetParam());
    open_every_dialog();
  }

  /// How large letters are, compared with those on a screen of 96 dots per inch.
  static double scale() {
    const char* of_server = std::getenv("DPI");
    if (GetParam() > 0) return GetParam() / 96.0;
    return of_server ? std::atoi(of_server) / 96.0 : 1;
  }
};

/// The folder of a language.
class FontSizeIn : public EveryDialog, public testing::WithParamInterface<const char*> {};

/// The width and height that a label needs for its text alone.
std::pair<int, int> size_of_text(Widget w) {
  XmString string = nullptr;
  XmRenderTable font = nullptr;
  XtVaGetValues(w, XmNlabelString, &string, XmNrenderTable, &font, nullptr);
  Dimension width = 0;
  Dimension height = 0;
  XmStringExtent(font, string, &width, &height);
  XmStringFree(string);
  return {width, height};
}

/// The room beside the text for the box of a toggle.
int room_for_box(Widget w) {
  if (!XmIsToggleButton(w)) return 0;
  Dimension size = 0;
  Dimension spacing = 0;
  XtVaGetValues(w, XmNindicatorSize, &size, XmNspacing, &spacing, nullptr);
  return size + spacing;
}

/// A label of text, or what is one, in a window that is up or was.
bool has_text(Widget w) {
  unsigned char type = XmPIXMAP;
  if (XmIsLabel(w) || XmIsLabelGadget(w)) XtVaGetValues(w, XmNlabelType, &type, nullptr);
  return type == XmSTRING && XtIsManaged(w) && XtIsRealized(XtIsWidget(w) ? w : XtParent(w));
}

void expect_no_text_clipped() {
  int seen = 0;
  for (const auto& row : promised_widgets()) {
    Widget w = widget(row.name);
    if (!has_text(w)) continue;
    const auto [width, height] = size_of_text(w);
    EXPECT_GE(area_of(w).width, width + room_for_box(w)) << row.name << ": " << label(w);
    EXPECT_GE(area_of(w).height, height) << row.name << ": " << label(w);
    ++seen;
  }
  EXPECT_GT(seen, 120);
}

TEST_P(FontSize, NoTextIsClipped) { expect_no_text_clipped(); }

TEST_P(FontSizeIn, NoTextIsClipped) {
  set_resolution_of_letters(192);
  setenv("XFILESEARCHPATH", (std::string(RESOURCE_FILES) + "/" + GetParam() + "%T/%N%S").c_str(), 1);
  open_every_dialog();
  expect_no_text_clipped();
}

TEST_P(FontSize, TheStopListShowsWholeNames) {
  Widget clip = nullptr;
  XtVaGetValues(widget("stop_list_scrolled_window"), XmNclipWindow, &clip, nullptr);
  const Area in_sight = area_of(clip);
  for (const auto& row : promised_widgets()) {
    if (std::string(row.class_name) != "XmToggleButton" || !std::string(row.name).starts_with("stop_")) continue;
    EXPECT_LE(area_of(row.name).right(), in_sight.right()) << row.name;
    EXPECT_LE(area_of(row.name).bottom(), in_sight.bottom()) << row.name;
  }
}

TEST_P(FontSize, ArrowsScrollBarsAndDistancesGrowToo) {
  const std::pair<int, int> sizes_at_96[] = {
      {21, area_of("family_uparrow").height},
      {15, area_of("stop_list_scrolled_window*VertScrollBar").width},
      {15, area_of("we_resource_listSW.VertScrollBar").width},
      {25, area_of("widgetedit_popup_t").height},
      {20, room_for_box(widget("widgetedit_can_create"))},
      {76, area_of("family_selection.Help").width},
  };
  for (const auto& [size_at_96, size] : sizes_at_96) EXPECT_NEAR(scale(), 1.0 * size / size_at_96, 0.25) << size_at_96;
  Dimension ring = 0;
  XtVaGetValues(widget("widgetedit_popup_t"), XmNhighlightThickness, &ring, nullptr);
  EXPECT_EQ(static_cast<int>(scale() + 0.1), ring);
}

INSTANTIATE_TEST_SUITE_P(At, FontSize, testing::Values(0, 100, 144, 192), testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Language, FontSizeIn, testing::Values("de/", "fr/", "ja/"),
                         [](const testing::TestParamInfo<const char*>& row) { return std::string(row.param, 2); });

}  // namespace
