#include <gtest/gtest.h>

#include <X11/IntrinsicP.h>
#include <X11/Xresource.h>
#include <Xm/FileSB.h>
#include <Xm/Label.h>
#include <Xm/LabelG.h>
#include <Xm/MessageB.h>
#include <Xm/SelectioB.h>
#include <Xm/SeparatoG.h>
#include <Xm/Separator.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <tuple>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "gui/widget_tables.h"

using namespace vqc;

// The resource file of each language: a text for everything that shows one.

namespace {

/// A resource file, asked as the toolkit asks.
class ResourceFile {
 public:
  explicit ResourceFile(const std::string& path) : database_(XrmGetFileDatabase(path.c_str())) {}
  ResourceFile(const ResourceFile&) = delete;
  ResourceFile& operator=(const ResourceFile&) = delete;
  ~ResourceFile() { XrmDestroyDatabase(database_); }

  /// What it says of a resource; "" when it says nothing.
  std::string value(const std::string& name, const std::string& class_name) const {
    char* type = nullptr;
    XrmValue found{};
    if (!XrmGetResource(database_, name.c_str(), class_name.c_str(), &type, &found)) return "";
    return found.addr;
  }
  std::string of_program(const std::string& name) const { return value("vqconfig." + name, "VQconfig.String"); }
  std::string of_widget(Widget w, const std::string& resource, const std::string& resource_class) const {
    std::string names = resource;
    std::string classes = resource_class;
    for (; w; w = XtParent(w)) {
      const bool top = !XtParent(w);
      names = (top ? "vqconfig" : std::string(XtName(w))) + "." + names;
      classes = (top ? "VQconfig" : std::string(XtClass(w)->core_class.class_name)) + "." + classes;
    }
    return value(names, classes);
  }

 private:
  XrmDatabase database_;
};

class Language : public EveryDialog, public testing::WithParamInterface<const char*> {
 protected:
  static std::string path() { return std::string(RESOURCE_FILES) + "/" + GetParam() + "app-defaults/VQconfig"; }

  static Names names_below(const std::string& name) {
    Names names;
    for (Widget child : children_of(widget(name))) names.emplace_back(XtName(child));
    return names;
  }
};

/// Whether a widget shows a label of its own.
bool shows_label(Widget w) {
  return (XmIsLabel(w) || XmIsLabelGadget(w)) && !XmIsSeparator(w) && !XmIsSeparatorGadget(w);
}

/// The texts of a box that are its own resources.
Names texts_of_box(Widget w) {
  Names texts = {"cancelLabelString", "helpLabelString"};
  const bool can_ok = XtIsManaged(XtNameToWidget(w, "OK"));
  if (can_ok) texts.push_back("okLabelString");
  if (XmIsSelectionBox(w)) {
    texts.insert(texts.end(), {"listLabelString", "selectionLabelString"});
    if (XtIsManaged(XtNameToWidget(w, "Apply"))) texts.push_back("applyLabelString");
  }
  if (XmIsFileSelectionBox(w)) {
    texts.insert(texts.end(), {"filterLabelString", "dirListLabelString", "fileListLabelString"});
    std::erase(texts, "listLabelString");
  }
  return texts;
}

TEST_P(Language, EveryLabelHasAText) {
  ASSERT_TRUE(std::filesystem::exists(path())) << path() << " is missing";
  open_every_dialog();
  const ResourceFile file(path());
  for (const auto& row : promised_widgets()) {
    Widget w = widget(row.name);
    EXPECT_TRUE(!shows_label(w) || !file.of_widget(w, "labelString", "XmString").empty()) << row.name;
  }
}

TEST_P(Language, EveryBoxHasItsTexts) {
  ASSERT_TRUE(std::filesystem::exists(path())) << path() << " is missing";
  open_every_dialog();
  const ResourceFile file(path());
  for (const auto& row : promised_widgets()) {
    Widget w = widget(row.name);
    const bool has_texts = XmIsSelectionBox(w) || (XmIsMessageBox(w) && XtNameToWidget(w, "Cancel"));
    if (!has_texts || std::string(row.name) == "familyinit_form") continue;
    for (const std::string& text : texts_of_box(w))
      EXPECT_NE("", file.of_widget(w, text, "XmString")) << row.name << "." << text;
  }
  EXPECT_NE("", file.of_widget(widget("resource_warn_msg"), "messageString", "XmString"));
}

TEST_P(Language, EveryDialogHasATitle) {
  ASSERT_TRUE(std::filesystem::exists(path())) << path() << " is missing";
  open_every_dialog();
  const ResourceFile file(path());
  for (const char* shell :
       {"about_dialog", "error_dialog", "open_dialog", "read_dialog", "savechanges_dialog", "options_shell",
        "stop_list_shell", "pageedit_dialog", "popupedit_dialog", "resource_warn_dialog"}) {
    EXPECT_NE("", file.of_widget(widget(shell), "title", "Title") +
                      file.of_widget(children_of(widget(shell)).front(), "dialogTitle", "XmString"))
        << shell;
  }
}

/// Every message, with what its text has to take in, in order.
const std::map<std::string, std::string> messages = {
    {"file_open_fail", "ss"},
    {"file_write_fail", "s"},
    {"bad_save_file", ""},
    {"syntax_error", "ds"},
    {"se_string", ""},
    {"se_unexpected_keyword", ""},
    {"se_reserved", ""},
    {"se_boolean", ""},
    {"se_integer", ""},
    {"se_free_set", ""},
    {"se_free_get", ""},
    {"se_bad_resource", ""},
    {"no_help_topic", ""},
    {"out_of_memory", ""},
    {"sbf_open", "s"},
    {"sbf_new", "s"},
    {"sbf_exit", "s"},
    {"sbu_open", ""},
    {"sbu_new", ""},
    {"sbu_exit", ""},
    {"save_title", ""},
    {"save_as_title", ""},
    {"generate_config_title", ""},
    {"generate_code_title", ""},
    {"generate_stubs_title", ""},
    {"widget_title", "s"},
    {"family_title", "s"},
    {"enum_title", "s"},
    {"none", ""},
};

/// The letters after the per-cent signs of a text.
std::string places(const std::string& text) {
  std::string all;
  for (std::size_t i = text.find('%'); i != std::string::npos; i = text.find('%', i + 1)) all += text.substr(i + 1, 1);
  return all;
}

TEST_P(Language, EveryMessageHasItsPlaces) {
  ASSERT_TRUE(std::filesystem::exists(path())) << path() << " is missing";
  XtToolkitInitialize();
  const ResourceFile file(path());
  for (const auto& [name, arguments] : messages) {
    EXPECT_NE("", file.of_program(name)) << name;
    EXPECT_EQ(arguments, places(file.of_program(name))) << name;
  }
}

class UsersTexts : public Session, public testing::WithParamInterface<std::tuple<const char*, const char*>> {
 protected:
  /// Starts the program in one of the languages, with a text of the user's own for each message.
  void start_with_own_texts() {
    const auto& [language, binding] = GetParam();
    std::string mine;
    for (const auto& [name, arguments] : messages) mine += binding + name + ": my " + name + "\n";
    setenv("XFILESEARCHPATH", (std::string(RESOURCE_FILES) + "/" + language + "%T/%N%S").c_str(), 1);
    setenv("XENVIRONMENT", folder.with("mine", mine).c_str(), 1);
    start();
  }
};

TEST_P(UsersTexts, WinOverThoseOfTheLanguage) {
  start_with_own_texts();
  EXPECT_NE("family_newb", label("family_newb")) << "the language's own texts are missing";
  for (const auto& [name, arguments] : messages) EXPECT_EQ("my " + name, resource_text(name));
}

INSTANTIATE_TEST_SUITE_P(Over, UsersTexts,
                         testing::Combine(testing::Values("", "de/", "fr/", "ja/"), testing::Values("*", "VQconfig*")),
                         [](const testing::TestParamInfo<UsersTexts::ParamType>& row) {
                           const std::string folder = std::get<0>(row.param);
                           const std::string binding = std::get<1>(row.param);
                           return (folder.empty() ? "en" : folder.substr(0, 2)) +
                                  (binding == "*" ? "Loosely" : "ByClass");
                         });

/// The names of the resources of a class of widgets.
std::set<std::string> resources_of(Widget w, void (*list)(WidgetClass, XtResourceList*, Cardinal*)) {
  XtResourceList found = nullptr;
  Cardinal count = 0;
  list(XtClass(w), &found, &count);
  std::set<std::string> names;
  for (Cardinal i = 0; i < count; ++i) names.insert({found[i].resource_name, found[i].resource_class});
  XtFree(reinterpret_cast<char*>(found));
  return names;
}

TEST_F(EveryDialog, HasNoWidgetThatTakesAMessageForItsOwnResource) {
  open_every_dialog();
  for (const auto& row : promised_widgets()) {
    std::set<std::string> names = resources_of(widget(row.name), XtGetResourceList);
    names.merge(resources_of(widget(row.name), XtGetConstraintResourceList));
    for (const auto& [name, arguments] : messages) EXPECT_FALSE(names.contains(name)) << row.name << ": " << name;
    EXPECT_FALSE(names.contains("helpDir")) << row.name;
  }
}

TEST_P(Language, MnemonicsAreLettersOfTheirLabelsAndUniqueInTheirMenus) {
  ASSERT_TRUE(std::filesystem::exists(path())) << path() << " is missing";
  open_every_dialog();
  const ResourceFile file(path());
  for (const char* menu : {"family_menubar", "family_file_menu", "family_edit_menu", "family_options_menu",
                           "family_generate_menu", "family_help_menu", "entity_menubar", "view_pulldown"}) {
    std::map<std::string, std::string> owners;
    for (const std::string& name : names_below(menu)) {
      if (!shows_label(widget(name))) continue;
      const std::string mnemonic = file.of_widget(widget(name), "mnemonic", "Mnemonic");
      ASSERT_EQ(1u, mnemonic.size()) << name;
      EXPECT_NE(std::string::npos, file.of_widget(widget(name), "labelString", "XmString").find(mnemonic)) << name;
      const std::string letter(1, static_cast<char>(std::tolower(static_cast<unsigned char>(mnemonic[0]))));
      EXPECT_EQ("", owners[letter]) << name << " has the mnemonic " << mnemonic << " too";
      owners[letter] = name;
    }
  }
}

TEST_P(Language, EveryDialogComesUpInIt) {
  ASSERT_TRUE(std::filesystem::exists(path())) << path() << " is missing";
  setenv("XFILESEARCHPATH", (std::string(RESOURCE_FILES) + "/" + GetParam() + "%T/%N%S").c_str(), 1);
  open_every_dialog();
  EXPECT_EQ(ResourceFile(path()).of_widget(widget("widgetedit_applyb"), "labelString", "XmString"),
            label("widgetedit_applyb"));
  for (const char* shell :
       {"about_dialog", "error_dialog", "open_dialog", "read_dialog", "gen_dialog", "savechanges_dialog", "save_dialog",
        "options_shell", "stop_list_shell", "entity_dialog", "widgetedit_dialog", "enumedit_dialog", "pageedit_dialog",
        "popupedit_dialog", "resource_warn_dialog"}) {
    EXPECT_TRUE(is_shown(shell)) << shell;
  }
}

INSTANTIATE_TEST_SUITE_P(Of, Language, testing::Values("", "de/", "fr/", "ja/"),
                         [](const testing::TestParamInfo<const char*>& row) {
                           const std::string folder = row.param;
                           return folder.empty() ? "en" : folder.substr(0, 2);
                         });

}  // namespace
