#include <cstdlib>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "vqc/cmd/editors/kit/given_names.h"

using namespace vqc;

namespace {

const char athena[] =
    "VQconfig\nwidget 'Label' {\nresource_definitions='r',,,True,VQC_FREE_DEFAULT,VQC_FREE_DEFAULT;\n}\n"
    "family 'Athena' {\nwidget='Label'\n}\n";

class Start : public Session {
 protected:
  /// What a resource that is made in this session is marked with.
  static const ResourceDef* new_resource() {
    add_family("New");
    enter("family_selection", "New");
    press_ok("family_selection");
    enter("widgetlist_selection", "New");
    press_apply("widgetlist_selection");
    press_ok("widgetlist_selection");
    enter("we_resource_t", "r");
    press("we_resource_upd_b");
    return resource_ptr(widget_ptr("New"), "r");
  }
};

TEST_F(Start, LoadsTheDocumentOfTheCommandLine) {
  open_document(athena);
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_EQ("vqconfig: document.vqc", title());
  EXPECT_EQ(folder / "document.vqc", save_file.value_or(""));
  EXPECT_FALSE(dirty);
  EXPECT_EQ(nullptr, family_getcurrent());
  EXPECT_EQ("", error_shown());
}

TEST_F(Start, ARelativeNameIsTakenAsItStands) {
  folder.with("athena.vqc", athena);
  start({"athena.vqc", "ignored.vqc"});
  EXPECT_EQ("vqconfig: athena.vqc", title());
  EXPECT_EQ("athena.vqc", save_file.value_or(""));
}

TEST_F(Start, ADocumentThatIsMissingIsReportedAndTheWindowStays) {
  start({"missing.vqc"});
  EXPECT_NE(std::string::npos, error_shown().find("missing.vqc"));
  EXPECT_EQ("vqconfig", title());
  EXPECT_FALSE(save_file);
  EXPECT_FALSE(dirty);
  EXPECT_FALSE(exit_status);
}

TEST_F(Start, AFileThatIsNoDocumentIsReportedAndTheWindowStays) {
  open_document("Dear Sir\n");
  EXPECT_EQ(resource_text("bad_save_file"), error_shown());
  EXPECT_EQ(Items(), items("family_selection"));
  EXPECT_FALSE(save_file);
  EXPECT_FALSE(exit_status);
}

TEST_F(Start, ADocumentWithAnErrorShowsWhatCameBeforeIt) {
  open_document("VQconfig\nfamily 'Whole' {\n}\nfamily 12 {\n}\n");
  EXPECT_NE(std::string::npos, error_shown().find(resource_text("se_string"))) << error_shown();
  EXPECT_EQ(Items{"Whole"}, items("family_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(Start, CompatibilityIsOffByDefault) {
  start();
  EXPECT_FALSE(vqc_java_compatible_widgets());
  EXPECT_FALSE(vqc_mfc_compatible_widgets());
  const ResourceDef* resource = new_resource();
  ASSERT_NE(nullptr, resource);
  EXPECT_FALSE(resource->java_compatible);
  EXPECT_FALSE(resource->mfc_compatible);
}

TEST_F(Start, OptionsForceCompatibilityWhateverTheResourcesSay) {
  const std::string document = folder.with("document.vqc", athena);
  start({"-xrm", "VQconfig*javaCompatibleWidgets: False", "-j", "-m", document});
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_TRUE(vqc_java_compatible_widgets());
  EXPECT_TRUE(vqc_mfc_compatible_widgets());
  EXPECT_TRUE(resource_ptr(widget_ptr("Label"), "r")->java_compatible);
  const ResourceDef* resource = new_resource();
  ASSERT_NE(nullptr, resource);
  EXPECT_TRUE(resource->java_compatible);
  EXPECT_TRUE(resource->mfc_compatible);
}

TEST_F(Start, ResourcesTurnCompatibilityOn) {
  start({"-xrm", "VQconfig*mfcCompatibleWidgets: True"});
  EXPECT_FALSE(vqc_java_compatible_widgets());
  EXPECT_TRUE(vqc_mfc_compatible_widgets());
  const ResourceDef* resource = new_resource();
  ASSERT_NE(nullptr, resource);
  EXPECT_FALSE(resource->java_compatible);
  EXPECT_TRUE(resource->mfc_compatible);
}

TEST_F(Start, CodeSwitchesAreOnByDefault) {
  start();
  EXPECT_TRUE(vqc_verbose_code());
  EXPECT_TRUE(vqc_comment_code());
  EXPECT_FALSE(vqc_generate_options());
}

TEST_F(Start, TheUsersResourcesComeFirst) {
  setenv("XENVIRONMENT", folder.with("mine", "VQconfig*family_newb.labelString: Afresh\n").c_str(), 1);
  start();
  EXPECT_EQ("Afresh", label("family_newb"));
  EXPECT_NE("family_openb", label("family_openb"));
}

TEST_F(Start, TheUsersMessagesComeFirst) {
  setenv("XENVIRONMENT", folder.with("mine", "*bad_save_file: Not one of mine\n").c_str(), 1);
  open_document("Dear Sir\n");
  EXPECT_EQ("Not one of mine", error_shown());
}

TEST_F(Start, TheUsersTitlesComeFirst) {
  setenv("XENVIRONMENT", folder.with("mine", "VQconfig*family_title: All of %s\n").c_str(), 1);
  open_document(athena);
  edit_family("Athena");
  EXPECT_EQ("All of Athena", title("entity_dialog"));
}

TEST_F(Start, AnEmptyNameResourceCountsAsNone) {
  start({"-xrm", "VQconfig.familyTableString:", "-xrm", "VQconfig.xwidgetArrayString: mine"});
  EXPECT_EQ("xw_families", vqc_get_family_table_variable());
  EXPECT_EQ("mine", vqc_get_xwidgets_variable());
}

class NoResourceFile : public Session {
 protected:
  NoResourceFile() { setenv("XFILESEARCHPATH", "/nonexistent/%N", 1); }
};

TEST_F(NoResourceFile, WidgetsShowTheirNames) {
  start();
  EXPECT_EQ("family_newb", label("family_newb"));
  EXPECT_EQ("vqconfig", title());
}

TEST_F(NoResourceFile, AFailureShowsItsBareName) {
  start({"missing.vqc"});
  EXPECT_EQ("file_open_fail", error_shown());
}

TEST_F(NoResourceFile, ASyntaxErrorShowsTheBuiltInText) {
  open_document("VQconfig\nfamily 'F' {}\nfamily 12\n");
  EXPECT_EQ("Syntax error on line 3: se_string", error_shown());
}

TEST_F(NoResourceFile, TheQuestionShowsItsBareName) {
  start();
  add_family("F");
  press("family_exitb");
  EXPECT_EQ("sbu_exit", message("savechanges_messagebox"));
}

TEST_F(NoResourceFile, EditingGoesOn) {
  open_document(athena);
  edit_family("Athena");
  edit_widget("Label");
  EXPECT_EQ(Items{"r"}, items("we_resource_list"));
  add_family("New");
  EXPECT_NE("", saved_item("family 'New'"));
}

TEST_F(NoResourceFile, EveryFileBoxOpens) {
  start();
  for (const auto& [item, box] : {std::pair("family_openb", "open_fsb"), std::pair("family_readb", "read_fsb"),
                                  std::pair("family_saveasb", "save_fsb"), std::pair("family_genconfigb", "gen_fsb")}) {
    press(item);
    const std::string shell = XtName(shell_around(widget(box)));
    EXPECT_TRUE(is_shown(shell)) << box;
    press(std::string(box) + ".Cancel");
  }
}

TEST_F(NoResourceFile, TheAboutBoxHasItsTitleAndTheVersion) {
  start();
  press("family_helpaboutb");
  ASSERT_TRUE(is_shown("about_dialog"));
  EXPECT_EQ("About vqconfig", title("about_dialog"));
  EXPECT_EQ("vqconfig", label("about_name"));
  EXPECT_TRUE(label("about_version").starts_with("Version 0")) << label("about_version");
}

}  // namespace
