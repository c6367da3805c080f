#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "check/check_support.h"

namespace {

// The rule that a name of C stands for one thing.

std::string twice(const std::string& name, const std::string& here, const std::string& there) {
  return "name_twice_in_c: '" + name + "' is " + here + " here, and " + there + " as well";
}

TEST(NamesOfC, MayBeUsedInOneRoleManyTimes) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig widget W { realise=r abstract=a } widget X { realise=r abstract=a } "
                                  "popup P { dialog_init=i } popup Q { dialog_init=i } "
                                  "family F { widget=W widget=X popup=P popup=Q family_init=f } "
                                  "family G { family_init=f }"));
}

TEST(NamesOfC, AreFoundInASecondRoleWithANoteOnTheFirst) {
  const MarkedText text(
      "VQconfig widget W { abstract=<'p'> } widget A { realise=<'p'> } family F { widget=W widget=A }");
  const Checked checked(text.text);
  const std::string first = "the procedure that says which children can be edited";
  ASSERT_EQ((Sayings{twice("p", "the procedure that creates a widget", first)}), checked.said());
  EXPECT_EQ(text.ranges[1], checked.findings[0].range);
  EXPECT_EQ((std::vector{Note{text.ranges[0], "here it is " + first}}), checked.findings[0].notes);
}

TEST(NamesOfC, HaveOneRoleAmongWidgetsPopupsConvertersAndFamilies) {
  EXPECT_EQ((Sayings{
                twice("P", "the procedure that fills the dialog", "the procedure that creates a dialog"),
                twice("u", "the procedure that adds the converter", "the procedure that brings it up to date"),
                twice("W", "the procedure that initialises the family", "a widget class"),
            }),
            said_at_marks("VQconfig widget W {} popup P { dialog_init=<'P'> dialog_update=u } "
                          "converter C { proc_name=<'u'> add_in_vq=True } "
                          "family F { widget=W popup=P converter=C family_init=<'W'> }"));
}

TEST(NamesOfC, OfWhatIsNotGeneratedAreNoMatter) {
  EXPECT_EQ((Sayings{"unused_name: no family has the widget 'W'"}),
            said_about("VQconfig widget W { realise=p abstract=p } converter C { proc_name=q add_in_code=True } "
                       "popup q {} family F { converter=C popup=q }"));
}

TEST(TablesOfC, HaveNamesOfTheirOwn) {
  EXPECT_EQ((Sayings{twice("t", "the table of aliases", "the table of popups")}),
            said_at_marks("VQconfig generate_popup_string=t generate_alias_string=<'t'>"));
}

TEST(TablesOfC, DoNotHaveTheUsualNamesOfOthers) {
  const Checked checked("VQconfig generate_popup_string='aliases'");
  ASSERT_EQ((Sayings{twice("aliases", "the table of popups", "the table of aliases")}), checked.said());
  EXPECT_EQ((Note{std::nullopt, "the table of aliases has this name by itself"}), checked.findings[0].notes.at(0));
  EXPECT_EQ(Sayings{}, said_about("VQconfig generate_popup_string='aliases' generate_alias_string='popups'"));
}

TEST(TablesOfC, AreNotCalledLikeWhatIsMadeOfNames) {
  EXPECT_EQ((Sayings{twice("Set_widgets", "a table of a family", "the table of families")}),
            said_at_marks("VQconfig generate_family_table_string='Set_widgets' family <Set> {}"));
  const std::string rest =
      " widget W { resource_definitions='r', , , True; } enumeration E {} family F { widget=W enumeration=E }";
  const auto said = [&](const std::string& name) {
    return said_about("VQconfig generate_popup_string='" + name + "'" + rest);
  };
  EXPECT_EQ((Sayings{twice("xw_W", "the record of a widget class", "the table of popups")}), said("xw_W"));
  EXPECT_EQ((Sayings{twice("xr_W_resources", "the resources of a widget class", "the table of popups")}),
            said("xr_W_resources"));
  EXPECT_EQ((Sayings{twice("E_enum", "the values of an enumeration", "the table of popups")}), said("E_enum"));
  EXPECT_EQ((Sayings{twice("F_headers", "a table of a family", "the table of popups")}), said("F_headers"));
  EXPECT_EQ(Sayings{}, said("xw_X"));
  EXPECT_EQ(Sayings{}, said("_enum"));
}

TEST(TablesOfC, AreNotCalledLikeProcedures) {
  EXPECT_EQ((Sayings{twice("popups", "the procedure that creates a widget", "the table of popups")}),
            said_at_marks("VQconfig widget W { realise=<'popups'> } family F { widget=W }"));
}

}  // namespace
