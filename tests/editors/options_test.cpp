#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "support/edited_document.h"

using namespace vqc;

namespace {

/// One of the ten names with its functions.
struct OptionRow {
  NameOption NameOptions::*option;
  const char* builtin;
  void (*set)(Name);
  Text (*get)();
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

class NameOptionTest : public EditedDocumentTest, public testing::WithParamInterface<OptionRow> {
 protected:
  static NameOption& option() { return edited_document.names.*GetParam().option; }
};
INSTANTIATE_TEST_SUITE_P(, NameOptionTest, testing::ValuesIn(rows),
                         [](const auto& test) { return std::string(test.param.builtin); });

TEST_P(NameOptionTest, IsBuiltIn) {
  EXPECT_EQ(Text(GetParam().builtin), GetParam().get());
  EXPECT_EQ(Text(GetParam().builtin), GetParam().resource_string());
}

TEST_P(NameOptionTest, TheResourceComesBeforeWhatIsBuiltIn) {
  option().resource = "from_resource";
  EXPECT_EQ(Text("from_resource"), GetParam().get());
  EXPECT_EQ(Text("from_resource"), GetParam().resource_string());
}

TEST_P(NameOptionTest, AnEmptyResourceCountsAsNone) {
  option().resource = "";
  EXPECT_EQ(Text(GetParam().builtin), GetParam().get());
  EXPECT_EQ(Text(GetParam().builtin), GetParam().resource_string());
}

TEST_P(NameOptionTest, TheDocumentComesBeforeTheResource) {
  option().resource = "from_resource";
  GetParam().set("from_document");
  EXPECT_EQ(Text("from_document"), GetParam().get());
  EXPECT_EQ(Text("from_resource"), GetParam().resource_string());
}

TEST_P(NameOptionTest, NullTakesTheDocumentsValueBack) {
  option().resource = "from_resource";
  GetParam().set("from_document");
  GetParam().set(nullptr);
  EXPECT_EQ(Text("from_resource"), GetParam().get());
  EXPECT_EQ(Text(), option().document);
}

TEST_P(NameOptionTest, IsTheDocumentsOwnEvenWhenItEqualsTheDefault) {
  GetParam().set(GetParam().builtin);
  EXPECT_EQ(GetParam().builtin, option().document);
}

TEST_P(NameOptionTest, KeepsACopy) {
  char name[] = "mine";
  GetParam().set(name);
  name[0] = 'n';
  EXPECT_EQ(Text("mine"), GetParam().get());
}

TEST_P(NameOptionTest, MayBeGivenItsOwnValue) {
  GetParam().set("mine");
  GetParam().set(GetParam().get());
  EXPECT_EQ(Text("mine"), GetParam().get());
}

TEST_P(NameOptionTest, IsSetAlone) {
  GetParam().set("mine");
  for (const OptionRow& other : rows) {
    if (other.option != GetParam().option) {
      EXPECT_EQ(Text(other.builtin), other.get());
    }
  }
}

class OptionsTest : public EditedDocumentTest {};

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
  edited_document.clear();
  for (const OptionRow& row : rows) EXPECT_EQ(Text(row.builtin), row.get());
  EXPECT_EQ(Text(), code_generate_name());
  EXPECT_EQ(Text(), config_generate_name());
  EXPECT_EQ(Text(), stubs_generate_name());
}

TEST_F(OptionsTest, FileNamesAreKeptApart) {
  set_code_file("code.c");
  set_config_file("config.c");
  set_stubs_file("stubs.c");
  EXPECT_EQ("code.c", code_generate_name());
  EXPECT_EQ("config.c", config_generate_name());
  EXPECT_EQ("stubs.c", stubs_generate_name());
}

TEST_F(OptionsTest, AFileNameMayBeGivenItsOwnValue) {
  set_code_file("code.c");
  set_code_file(code_generate_name());
  EXPECT_EQ("code.c", code_generate_name());
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
  forced_compatibility.java = true;
  EXPECT_TRUE(vqc_java_compatible_widgets());
  EXPECT_FALSE(vqc_mfc_compatible_widgets());
  forced_compatibility.java = false;
  application_resources.java_compatible_widgets = true;
  EXPECT_TRUE(vqc_java_compatible_widgets());
  forced_compatibility.mfc = true;
  EXPECT_TRUE(vqc_mfc_compatible_widgets());
  forced_compatibility.mfc = false;
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
