#include "help/desk.h"

#include <Xm/Label.h>
#include <Xm/ScrollBar.h>
#include <Xm/TextF.h>
#include <Xm/Xm.h>
#include <XmHTML/XmHTML.h>

#include "help/viewer/make_window.h"
#include "help/viewer/viewer.h"
#include "help/viewer/window.h"

using namespace help;

namespace {

std::string many_lines() {
  std::string lines;
  for (int i = 0; i < 200; ++i) lines += "<p>Line " + std::to_string(i) + "</p>\n";
  return lines;
}

std::string page(const std::string& title, const std::string& body) {
  return "<html><head><title>" + title + "</title></head><body>" + body + "</body></html>";
}

/// The viewer's window in this process.
class ViewerWindow : public Desk {
 protected:
  ViewerWindow() {
    setenv("VQROOT", folder.path().c_str(), 1);
    folder.with("a.html", page("A",
                               "<p><a href='b.html'>to b</a> <a href='b.html#far'>far</a> <a href='#end'>end</a> "
                               "<a href='http://www.example.org/100%'>web</a> <a href='none.html'>none</a> "
                               "<a href='b.html#nowhere'>nowhere</a></p>" +
                                   many_lines() + "<p><a name=end>The end</a> of it.</p>"));
    folder.with("b.html", page("B", many_lines() + "<h2><a name=far>Far</a></h2>" + many_lines()));
    folder.with("entry.html", page("Contents", "<p>Find <b>bo</b>ld and <a href='a.html'>a bold link</a>.</p>"));
    make_window(display);
  }

  void show(const std::string& name) {
    show_file(folder / name);
    wait_for([] { return is_viewable(XtWindow(window.shell)); });
    settle();
  }
};

std::string title() { return title_of(XtWindow(window.shell)); }

std::string status() {
  XmString label = nullptr;
  XtVaGetValues(window.status, XmNlabelString, &label, nullptr);
  char* text =
      static_cast<char*>(XmStringUnparse(label, nullptr, XmCHARSET_TEXT, XmCHARSET_TEXT, nullptr, 0, XmOUTPUT_ALL));
  std::string result = text;
  XtFree(text);
  XmStringFree(label);
  return result;
}

/// What stands in the field of what is to be found.
std::string typed() {
  char* text = XmTextFieldGetString(window.find);
  std::string result = text;
  XtFree(text);
  return result;
}

int scrolled() {
  Widget bar = nullptr;
  int value = 0;
  XtVaGetValues(window.page, XmNverticalScrollBar, &bar, nullptr);
  XtVaGetValues(bar, XmNvalue, &value, nullptr);
  return value;
}

/// What the page widget has been given.
std::string source() { return XmHTMLTextGetSource(window.page); }

std::string sizes() {
  char* list = nullptr;
  XtVaGetValues(window.page, XmNfontSizeList, &list, nullptr);
  return list;
}

std::string focus() {
  Widget w = XmGetFocusWidget(window.shell);
  return w ? XtName(w) : "";
}

void press(const std::string& name) {
  Widget button = XtNameToWidget(window.shell, ("*" + name).c_str());
  ASSERT_TRUE(button && XtIsSensitive(button)) << name;
  XtCallCallbacks(button, XmNactivateCallback, nullptr);
  settle();
}

/// What happens to the n-th link of the page when its callback list is called.
void call_link(const char* list, const char* number) {
  XmHTMLAnchorCallbackStruct call{};
  call.href = const_cast<char*>(number);
  XtCallCallbacks(window.page, list, &call);
  settle();
}

void follow(int number) { call_link(XmNactivateCallback, std::to_string(number).c_str()); }

std::string repeated(int count, const std::string& text) {
  std::string result;
  while (count-- > 0) result += text;
  return result;
}

enum Links { TO_B, FAR, END, WEB, MISSING, NOWHERE };

TEST_F(ViewerWindow, ShowsAPage) {
  show("a.html");
  EXPECT_EQ("A", title());
  EXPECT_EQ("", status());
  EXPECT_EQ(0, scrolled());
  EXPECT_FALSE(XtIsSensitive(window.back));
  EXPECT_FALSE(XtIsSensitive(window.forward));
}

TEST_F(ViewerWindow, ShowsAPageThatIsAskedForAgainFromItsBeginning) {
  show("a.html");
  key("Page_Down");
  show("a.html");
  EXPECT_EQ(0, scrolled());
  EXPECT_FALSE(XtIsSensitive(window.back));
}

TEST_F(ViewerWindow, FollowsALinkThatIsClickedOn) {
  show("a.html");
  Widget work = nullptr;
  XtVaGetValues(window.page, XmNworkWindow, &work, nullptr);
  for (int y = 0; y < 100 && title() == "A"; y += 8) {
    XmHTMLInfoStructure* info = XmHTMLXYToInfo(window.page, 40, y);
    if (info && info->anchor) click(XtWindow(work), 40, y);
  }
  EXPECT_EQ("B", title());
}

TEST_F(ViewerWindow, GoesBackAndForwardToWhereThePageWas) {
  show("a.html");
  key("Page_Down");
  const int before = scrolled();
  EXPECT_LT(0, before);
  follow(TO_B);
  EXPECT_EQ("B", title());
  EXPECT_EQ(0, scrolled());
  press("help_back");
  EXPECT_EQ("A", title());
  EXPECT_EQ(before, scrolled());
  EXPECT_FALSE(XtIsSensitive(window.back));
  press("help_forward");
  EXPECT_EQ("B", title());
  EXPECT_FALSE(XtIsSensitive(window.forward));
}

TEST_F(ViewerWindow, FollowsALinkToAPlace) {
  show("a.html");
  follow(END);
  EXPECT_EQ("A", title());
  EXPECT_LT(1000, scrolled());
  press("help_back");
  EXPECT_EQ(0, scrolled());
  follow(FAR);
  EXPECT_EQ("B", title());
  EXPECT_LT(1000, scrolled());
}

TEST_F(ViewerWindow, SaysThatAPlaceIsMissing) {
  show("a.html");
  follow(NOWHERE);
  EXPECT_EQ("B", title());
  EXPECT_EQ("This page has no place that is called \"nowhere\"", status());
}

TEST_F(ViewerWindow, OnlyNamesALinkThatLeadsAway) {
  show("a.html");
  follow(WEB);
  EXPECT_EQ("A", title());
  EXPECT_EQ("http://www.example.org/100% leads out of the help pages", status());
  EXPECT_FALSE(XtIsSensitive(window.back));
}

TEST_F(ViewerWindow, NamesTheLinkUnderThePointer) {
  show("a.html");
  call_link(XmNanchorTrackCallback, "1");
  EXPECT_EQ("b.html#far", status());
  call_link(XmNanchorTrackCallback, nullptr);
  EXPECT_EQ("", status());
}

TEST_F(ViewerWindow, SaysThatALinkIsDead) {
  show("a.html");
  follow(MISSING);
  EXPECT_EQ("No help page", title());
  EXPECT_NE(std::string::npos, source().find("The help page " + folder / "none.html" + " cannot be read: "));
  press("help_back");
  EXPECT_EQ("A", title());
}

TEST_F(ViewerWindow, SaysThatAFileIsNotHtml) {
  folder.with("x%s.html", "words");
  show("x%s.html");
  EXPECT_EQ("No help page", title());
  EXPECT_NE(std::string::npos, source().find("x%s.html is not a help page"));
}

TEST_F(ViewerWindow, GoesToTheContents) {
  show("a.html");
  press("help_contents");
  EXPECT_EQ("Contents", title());
  EXPECT_TRUE(XtIsSensitive(window.back));
}

TEST_F(ViewerWindow, FindsWordsAsTheyAreTyped) {
  show("entry.html");
  key("ctrl+f");
  EXPECT_EQ("help_find", focus());
  type("bold");
  EXPECT_NE(std::string::npos, source().find("<a name=\"found\" href=\"#\" target=\"found\">bo</a></b>"));
  key("Return");
  EXPECT_NE(std::string::npos, source().find("<a name=\"found\" href=\"0\" target=\"found\">bold</a>"));
  EXPECT_EQ("", status());
  key("F3");
  EXPECT_NE(std::string::npos, source().find("<a name=\"found\" href=\"#\" target=\"found\">bo</a></b>"));
  EXPECT_EQ("Continued from the top of the page", status());
  key("Escape");
  EXPECT_EQ(std::string::npos, source().find("found"));
  EXPECT_EQ("workWindow", focus());
}

TEST_F(ViewerWindow, HasTheKeysOfTheClipboardWhereWordsAreTyped) {
  show("entry.html");
  key("ctrl+f");
  type("bold");
  key("ctrl+a");
  key("ctrl+x");
  EXPECT_EQ("", typed());
  key("ctrl+v");
  key("ctrl+v");
  EXPECT_EQ("boldbold", typed());
}

TEST_F(ViewerWindow, SaysThatWordsAreNotFound) {
  show("entry.html");
  char words[] = "100% <b>";
  XmTextFieldSetString(window.find, words);
  settle();
  EXPECT_EQ("This page does not contain \"100% <b>\"", status());
}

TEST_F(ViewerWindow, ScrollsToWhatItFinds) {
  show("b.html");
  char words[] = "Line 150";
  XmTextFieldSetString(window.find, words);
  settle();
  EXPECT_LT(1000, scrolled());
  const int there = scrolled();
  char nothing[] = "";
  XmTextFieldSetString(window.find, nothing);
  settle();
  EXPECT_EQ(there, scrolled());
  EXPECT_EQ(std::string::npos, source().find("found"));
}

TEST_F(ViewerWindow, HasLinesOfPreformattedTextAsFarApartAsOthers) {
  const auto height_of = [&](const std::string& lines) {
    folder.with("lines.html",
                page("Lines", "<p><a href='#end'>x</a></p>" + lines + "<h2><a name=end>End</a></h2>" + many_lines()));
    show("lines.html");
    follow(0);
    return scrolled();
  };
  const int other = height_of("<p>" + repeated(50, "line_y<br>") + "</p>");
  EXPECT_LT(0, other);
  EXPECT_LE(other, height_of("<pre>" + repeated(50, "line_y\n") + "</pre>"));
}

TEST_F(ViewerWindow, HasTextOfSevenSizes) {
  show("a.html");
  const std::string normal = sizes();
  for (int i = 0; i < 9; ++i) press("help_larger");
  EXPECT_EQ("23,17,42,32,27,23,23,19", sizes());  // 210 in 100 of 11,8,20,15,13,11,11,9
  for (int i = 0; i < 9; ++i) press("help_smaller");
  EXPECT_EQ("8,6,14,11,9,8,8,6", sizes());  // 70 in 100
  press("help_normal");
  EXPECT_EQ(normal, sizes());
}

TEST_F(ViewerWindow, IsWorkedByKeys) {
  show("a.html");
  const std::string normal = sizes();
  EXPECT_EQ("workWindow", focus());
  key("space");
  const int page_down = scrolled();
  EXPECT_LT(0, page_down);
  key("shift+space");
  EXPECT_EQ(0, scrolled());
  key("Page_Down");
  EXPECT_EQ(page_down, scrolled());
  key("Page_Up");
  EXPECT_EQ(0, scrolled());
  key("End");
  EXPECT_LT(page_down, scrolled());
  key("Home");
  EXPECT_EQ(0, scrolled());
  key("ctrl+plus");
  EXPECT_NE(normal, sizes());
  key("ctrl+minus");
  EXPECT_EQ(normal, sizes());
  key("ctrl+equal");
  EXPECT_NE(normal, sizes());
  key("ctrl+0");
  EXPECT_EQ(normal, sizes());
  key("alt+Home");
  EXPECT_EQ("Contents", title());
  key("alt+Left");
  EXPECT_EQ("A", title());
  key("alt+Right");
  EXPECT_EQ("Contents", title());
}

TEST_F(ViewerWindow, KeepsTheKeysForThePageWhenAButtonIsClickedOn) {
  const auto click_on = [](const std::string& name) {
    click(XtWindow(XtNameToWidget(window.shell, ("*" + name).c_str())), 5, 5);
  };
  show("a.html");
  const std::string normal = sizes();
  click_on("help_larger");
  EXPECT_NE(normal, sizes());
  EXPECT_EQ("workWindow", focus());
  key("Page_Down");
  EXPECT_LT(0, scrolled());
  click_on("help_contents");
  click_on("help_back");  // which then cannot be pressed any more
  EXPECT_EQ("A", title());
  EXPECT_EQ("workWindow", focus());
}

TEST_F(ViewerWindow, ScrollsByTheWheelWhereverThePointerIsOnThePage) {
  show("a.html");
  Widget text = nullptr;
  XtVaGetValues(window.page, XmNworkWindow, &text, nullptr);
  for (Widget under_pointer : {text, find_scroll_bar()}) {
    turn_wheel(XtWindow(under_pointer), 8, 100, Button5);
    const int once = scrolled();
    EXPECT_LT(0, once);
    turn_wheel(XtWindow(under_pointer), 8, 100, Button5);
    EXPECT_EQ(2 * once, scrolled());
    for (int turn = 0; turn < 3; ++turn) turn_wheel(XtWindow(under_pointer), 8, 100, Button4);
    EXPECT_EQ(0, scrolled());
  }
}

TEST_F(ViewerWindow, TellsTheDesktopWhatItIs) {
  show("a.html");
  const Window shell = XtWindow(window.shell);
  EXPECT_EQ("main_window", property(shell, "WM_WINDOW_ROLE"));
  EXPECT_NE("", property(shell, "WM_CLIENT_MACHINE"));
  EXPECT_NE("", property_bytes(display, shell, "_NET_WM_PID", XA_CARDINAL, 32));
  EXPECT_NE("", property_bytes(display, shell, "_NET_WM_WINDOW_TYPE", XA_ATOM, 32));
  EXPECT_EQ("A", property(shell, "_NET_WM_ICON_NAME"));
}

}  // namespace
