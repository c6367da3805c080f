#include "vqc/cmd/model/options.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "support/model.h"

namespace {

/// One of the ten names with its functions.
struct OptionRow {
  NameOption NameOptions::*option;
  const char* builtin;
  void (*set)(const Text&);
  const char* (*get)();
  const char* (*resource_string)();
};

void PrintTo(const OptionRow& row, std::ostream* out) { *out << row.builtin; }

const OptionRow rows[] = {
    {&NameOptions::family_table, "xw_families", vqc_set_family_table_variable, vqc_get_family_table_variable,
     vqc_family_table_string},
    {&NameOptions::family_names, "xw_family_names", vqc_set_family_names_variable, vqc_get_family_names_variable,
     vqc_family_names_string},
    {&NameOptions::xwidgets, "xwidgets", vqc_set_xwidgets_variable, vqc_get_xwidgets_variable,
     vqc_xwidget_array_string},
    {&NameOptions::stop_list, "vq_config_stop_list", vqc_set_stop_list_variable, vqc_get_stop_list_variable,
     vqc_stop_list_array_string},
    {&NameOptions::popups, "popups", vqc_set_popups_variable, vqc_get_popups_variable, vqc_popup_array_string},
    {&NameOptions::page_names, "xw_page_names", vqc_set_page_names_variable, vqc_get_page_names_variable,
     vqc_page_names_string},
    {&NameOptions::family_count, "xw_family_count", vqc_set_family_count_variable, vqc_get_family_count_variable,
     vqc_family_count_string},
    {&NameOptions::enumerations, "enumerations", vqc_set_enumerations_variable, vqc_get_enumerations_variable,
     vqc_enumeration_array_string},
    {&NameOptions::converters, "converters", vqc_set_converters_variable, vqc_get_converters_variable,
     vqc_converter_array_string},
    {&NameOptions::aliases, "aliases", vqc_set_aliases_variable, vqc_get_aliases_variable, vqc_alias_array_string},
};

class NameOptionTest : public ModelTest, public testing::WithParamInterface<OptionRow> {
 protected:
  static NameOption& option() { return name_options.*GetParam().option; }
};
INSTANTIATE_TEST_SUITE_P(, NameOptionTest, testing::ValuesIn(rows),
                         [](const auto& test) { return std::string(test.param.builtin); });

TEST_P(NameOptionTest, IsBuiltIn) {
  EXPECT_STREQ(GetParam().builtin, GetParam().get());
  EXPECT_STREQ(GetParam().builtin, GetParam().resource_string());
}

TEST_P(NameOptionTest, TheResourceComesBeforeWhatIsBuiltIn) {
  option().resource = "from_resource";
  EXPECT_STREQ("from_resource", GetParam().get());
  EXPECT_STREQ("from_resource", GetParam().resource_string());
}

TEST_P(NameOptionTest, AnEmptyResourceCountsAsNone) {
  option().resource = "";
  EXPECT_STREQ(GetParam().builtin, GetParam().get());
  EXPECT_STREQ(GetParam().builtin, GetParam().resource_string());
}

TEST_P(NameOptionTest, TheDocumentComesBeforeTheResource) {
  option().resource = "from_resource";
  GetParam().set("from_document");
  EXPECT_STREQ("from_document", GetParam().get());
  EXPECT_STREQ("from_resource", GetParam().resource_string());
}

TEST_P(NameOptionTest, NullTakesTheDocumentsValueBack) {
  option().resource = "from_resource";
  GetParam().set("from_document");
  GetParam().set(nullptr);
  EXPECT_STREQ("from_resource", GetParam().get());
  EXPECT_EQ(nullptr, option().document.c_str());
}

TEST_P(NameOptionTest, IsTheDocumentsOwnEvenWhenItEqualsTheDefault) {
  GetParam().set(GetParam().builtin);
  EXPECT_STREQ(GetParam().builtin, option().document);
}

TEST_P(NameOptionTest, KeepsACopy) {
  char name[] = "mine";
  GetParam().set(name);
  name[0] = 'n';
  EXPECT_STREQ("mine", GetParam().get());
}

TEST_P(NameOptionTest, MayBeGivenItsOwnValue) {
  GetParam().set("mine");
  GetParam().set(GetParam().get());
  EXPECT_STREQ("mine", GetParam().get());
}

TEST_P(NameOptionTest, IsSetAlone) {
  GetParam().set("mine");
  for (const OptionRow& other : rows) {
    if (other.option != GetParam().option) {
      EXPECT_STREQ(other.builtin, other.get());
    }
  }
}

class OptionsTest : public ModelTest {};

TEST_F(OptionsTest, StandInTheOrderOfTheDocument) {
  std::size_t place = 0;
  for (auto option : all_name_options) EXPECT_EQ(rows[place++].option, option);
  EXPECT_EQ(10u, place);
}

TEST_F(OptionsTest, ClearTakesBackAllNames) {
  for (const OptionRow& row : rows) row.set("mine");
  set_code_file("code.c");
  set_config_file("config.c");
  set_stubs_file("stubs.c");
  clear_options();
  for (const OptionRow& row : rows) EXPECT_STREQ(row.builtin, row.get());
  EXPECT_EQ(nullptr, code_generate_name());
  EXPECT_EQ(nullptr, config_generate_name());
  EXPECT_EQ(nullptr, stubs_generate_name());
}

TEST_F(OptionsTest, FileNamesAreKeptApart) {
  set_code_file("code.c");
  set_config_file("config.c");
  set_stubs_file("stubs.c");
  EXPECT_STREQ("code.c", code_generate_name());
  EXPECT_STREQ("config.c", config_generate_name());
  EXPECT_STREQ("stubs.c", stubs_generate_name());
}

TEST_F(OptionsTest, AFileNameMayBeGivenItsOwnValue) {
  set_code_file("code.c");
  set_code_file(code_generate_name());
  EXPECT_STREQ("code.c", code_generate_name());
}

TEST_F(OptionsTest, SwitchesOfTheProgramAreOffWithoutResources) {
  EXPECT_FALSE(vqc_verbose_code());
  EXPECT_FALSE(vqc_comment_code());
  EXPECT_FALSE(vqc_generate_options());
  EXPECT_FALSE(vqc_java_compatible_widgets());
  EXPECT_FALSE(vqc_mfc_compatible_widgets());
}

TEST_F(OptionsTest, SwitchesOfTheProgramAreTheResources) {
  application_resources.verbose_code = true;
  EXPECT_TRUE(vqc_verbose_code());
  EXPECT_FALSE(vqc_comment_code());
  application_resources.comment_code = true;
  EXPECT_TRUE(vqc_comment_code());
  EXPECT_FALSE(vqc_generate_options());
  application_resources.generate_options = true;
  EXPECT_TRUE(vqc_generate_options());
}

TEST_F(OptionsTest, CompatibilityComesFromResourceOrCommandLine) {
  java_compatible_widgets = true;
  EXPECT_TRUE(vqc_java_compatible_widgets());
  EXPECT_FALSE(vqc_mfc_compatible_widgets());
  java_compatible_widgets = false;
  application_resources.java_compatible_widgets = true;
  EXPECT_TRUE(vqc_java_compatible_widgets());
  mfc_compatible_widgets = true;
  EXPECT_TRUE(vqc_mfc_compatible_widgets());
  mfc_compatible_widgets = false;
  application_resources.mfc_compatible_widgets = true;
  EXPECT_TRUE(vqc_mfc_compatible_widgets());
}

TEST_F(OptionsTest, SwitchesOfTheDocumentAreItsOwnUntilTheDialogExists) {
  vqc_set_verbose_code(true);
  EXPECT_TRUE(vqc_get_verbose_code());
  EXPECT_FALSE(vqc_get_comment_code());
  vqc_set_comment_code(true);
  EXPECT_TRUE(vqc_get_comment_code());
}

TEST_F(OptionsTest, SwitchesOfTheDocumentAreTheResourcesOnceTheDialogExists) {
  application_resources.verbose_code = true;
  vqc_set_comment_code(true);
  document_switches.dialog_exists = true;
  EXPECT_TRUE(vqc_get_verbose_code());
  EXPECT_FALSE(vqc_get_comment_code());
}

TEST_F(OptionsTest, SwitchesOfTheDocumentDoNotReachTheGenerators) {
  vqc_set_verbose_code(true);
  vqc_set_comment_code(true);
  EXPECT_FALSE(vqc_verbose_code());
  EXPECT_FALSE(vqc_comment_code());
}

}  // namespace
