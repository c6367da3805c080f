#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

struct OptionRow {
  const char* field;
  const char* keyword;
  const char* builtin;
};

// In the order of a saved document.
const OptionRow options[] = {
    {"family_table_text", "generate_family_table_string", "xw_families"},
    {"family_names_text", "generate_family_name_string", "xw_family_names"},
    {"xwidget_array_text", "generate_xwidget_string", "xwidgets"},
    {"stop_list_array_text", "generate_stop_list_string", "vq_config_stop_list"},
    {"popup_array_text", "generate_popup_string", "popups"},
    {"page_names_text", "generate_page_name_string", "xw_page_names"},
    {"family_count_text", "generate_family_count_string", "xw_family_count"},
    {"enumeration_array_text", "generate_enumeration_string", "enumerations"},
    {"converter_array_text", "generate_converter_string", "converters"},
    {"alias_array_text", "generate_alias_string", "aliases"},
};

class Options : public Session {
 protected:
  void edit(const std::string& header = "", const std::vector<std::string>& resources = {}) {
    std::vector<std::string> words{"-xrm", "VQconfig*generateOptions: True"};
    for (const std::string& resource : resources) words.insert(words.end(), {"-xrm", resource});
    words.push_back(folder.with("document.vqc", "VQconfig\n" + header));
    start(words);
    choose_menu("family_options_cascade", "family_generate_options_b");
    ASSERT_TRUE(is_shown("options_shell"));
  }
  static std::string saved_options(std::string (*value)(const OptionRow&)) {
    std::string all = "VQconfig\n";
    for (const OptionRow& row : options) all += std::string(row.keyword) + "='" + value(row) + "'\n";
    return all;
  }
};

TEST_F(Options, ShowsTheBuiltInNames) {
  edit();
  for (const auto& [field, keyword, builtin] : options) EXPECT_EQ(builtin, text(field)) << field;
}

TEST_F(Options, ReadLeavesTheOpenDialogAsItIs) {
  edit();
  enter("family_table_text", "typed");
  toggle("options_comment_code", true);
  read_into(folder.with("more.vqc", "VQconfig\ngenerate_alias_string='of_file'\nfamily 'F' {\n}\n"));
  EXPECT_EQ("typed", text("family_table_text"));
  EXPECT_EQ("aliases", text("alias_array_text"));
  EXPECT_TRUE(is_set("options_comment_code"));
  press("options_cancel");
  press("family_generate_options_b");
  EXPECT_EQ("of_file", text("alias_array_text"));
  EXPECT_EQ("xw_families", text("family_table_text"));
}

TEST_F(Options, ShowsTheNamesOfTheDocument) {
  std::string header;
  for (const OptionRow& row : options) header += std::string(row.keyword) + "='my_" + row.builtin + "'\n";
  edit(header);
  for (const auto& [field, keyword, builtin] : options) EXPECT_EQ(std::string("my_") + builtin, text(field)) << field;
}

TEST_F(Options, AResourceComesBeforeTheBuiltInName) {
  edit("", {"VQconfig.familyTableString: of_resource", "VQconfig.page_names_string: pages_of_resource",
            "VQconfig.aliasArrayString:"});
  EXPECT_EQ("of_resource", text("family_table_text"));
  EXPECT_EQ("pages_of_resource", text("page_names_text"));
  EXPECT_EQ("aliases", text("alias_array_text"));
}

TEST_F(Options, OkStoresEveryNameEvenADefault) {
  edit();
  click("options_ok");
  EXPECT_FALSE(is_shown("options_shell"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ(saved_options([](const OptionRow& row) { return std::string(row.builtin); }), saved());
}

TEST_F(Options, OkStoresWhatWasTyped) {
  edit();
  for (const OptionRow& row : options) enter(row.field, std::string("t_") + row.builtin);
  press("options_ok");
  EXPECT_EQ(saved_options([](const OptionRow& row) { return std::string("t_") + row.builtin; }), saved());
}

TEST_F(Options, OnlyTheFirstWordOfAFieldCounts) {
  edit();
  enter("family_table_text", "  my_table extra");
  enter("popup_array_text", "\tp\tq");
  click("options_ok");
  EXPECT_EQ("my_table", vqc_get_family_table_variable());
  EXPECT_EQ("p", vqc_get_popups_variable());
}

TEST_F(Options, AnEmptyFieldGoesBackToTheDefault) {
  edit("generate_popup_string='mine'\ngenerate_alias_string='mine'\n", {"VQconfig.aliasArrayString: of_resource"});
  enter("popup_array_text", "");
  enter("alias_array_text", " \t ");
  press("options_ok");
  EXPECT_EQ("popups", vqc_get_popups_variable());
  EXPECT_EQ("of_resource", vqc_get_aliases_variable());
  const std::string document = saved();
  EXPECT_EQ(std::string::npos, document.find("generate_popup_string"));
  EXPECT_EQ(std::string::npos, document.find("generate_alias_string"));
}

TEST_F(Options, CancelStoresNothing) {
  edit();
  enter("family_table_text", "typed");
  click("options_cancel");
  EXPECT_FALSE(is_shown("options_shell"));
  EXPECT_EQ("VQconfig\n", saved());
  press("family_generate_options_b");
  EXPECT_EQ("xw_families", text("family_table_text"));
}

TEST_F(Options, ResetTakesEveryNameBackAtOnce) {
  edit("generate_popup_string='mine'\ngenerate_family_count_string='n'\n");
  click("options_reset");
  for (const auto& [field, keyword, builtin] : options) EXPECT_EQ(builtin, text(field)) << field;
  press("options_cancel");
  EXPECT_FALSE(dirty);
  EXPECT_EQ("VQconfig\n", saved());
}

TEST_F(Options, TheTogglesStartFromTheResources) {
  edit("", {"VQconfig*commentCode: False"});
  EXPECT_FALSE(is_set("options_comment_code"));
  EXPECT_TRUE(is_set("options_verbose_code"));
}

TEST_F(Options, OpeningSetsTheSwitchesOfTheDocument) {
  edit("", {"VQconfig*verboseCode: False"});
  EXPECT_TRUE(document_switches.comment_code);
  EXPECT_FALSE(document_switches.verbose_code);
}

TEST_F(Options, TheTogglesSetTheSwitchesAtOnce) {
  edit();
  click("options_comment_code");
  click("options_verbose_code");
  EXPECT_FALSE(document_switches.comment_code);
  EXPECT_FALSE(document_switches.verbose_code);
  click("options_verbose_code");
  EXPECT_TRUE(document_switches.verbose_code);
  EXPECT_FALSE(dirty);
}

TEST_F(Options, ResetSetsTheTogglesToTheResources) {
  edit();
  toggle("options_comment_code", false);
  press("options_reset");
  EXPECT_TRUE(is_set("options_comment_code"));
  EXPECT_TRUE(document_switches.comment_code);
}

TEST_F(Options, NewRefreshesTheFields) {
  edit("generate_popup_string='mine'\n");
  press("family_newb");
  EXPECT_EQ("popups", text("popup_array_text"));
}

TEST_F(Options, AnotherDocumentRefreshesTheFields) {
  edit("generate_popup_string='mine'\n");
  open_file(folder.with("other.vqc", "VQconfig\ngenerate_alias_string='theirs'\n"));
  EXPECT_EQ("popups", text("popup_array_text"));
  EXPECT_EQ("theirs", text("alias_array_text"));
}

TEST_F(Options, EscapeCancels) {
  edit();
  click("family_table_text");
  type("x");
  key("Escape");
  EXPECT_FALSE(is_shown("options_shell"));
  EXPECT_EQ("VQconfig\n", saved());
}

}  // namespace
