#include <gtest/gtest.h>

#include "check/check_support.h"

namespace {

// The rules on what families and resources name.

TEST(References, ToWhatIsDefinedAreGood) {
  EXPECT_EQ(Sayings{},
            said_about("VQconfig widget W {} enumeration E {} alias A { to_name=T } converter C {} popup P {} "
                       "header h cheader c family_header f family F { widget=W enumeration=E alias=A "
                       "converter=C popup=P page=p header=h cheader=c family_header=f } page p"));
}

TEST(References, ToPagesAndHeadersNeedNoDefinition) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig family F { page='p' header='h' cheader='c' family_header='f' }"));
}

TEST(References, ToWhatIsDefinedNowhereAreFoundWhereTheyStand) {
  EXPECT_EQ((Sayings{
                "undefined_name: the widget 'W' is defined nowhere",
                "undefined_name: the enumeration 'E' is defined nowhere",
                "undefined_name: the alias 'A' is defined nowhere",
                "undefined_name: the converter 'C' is defined nowhere",
                "undefined_name: the popup 'P' is defined nowhere",
            }),
            said_at_marks("VQconfig family F { widget=<W> enumeration=<'E'> alias=<A> converter=<C> popup=<P> }"));
}

TEST(References, ToTheSameUndefinedNameAreFoundOnce) {
  EXPECT_EQ((Sayings{"undefined_name: the alias 'A' is defined nowhere"}),
            said_at_marks("VQconfig family F { alias=<A> } family G { alias=A }"));
}

TEST(References, ToWhatIsDefinedLaterAreGood) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig family F { alias=A } alias A { to_name=T }"));
}

TEST(References, SuggestADefinedNameThatIsNear) {
  EXPECT_EQ((Sayings{"undefined_name: the alias 'XtRInteger' is defined nowhere -> XtRIntegers"}),
            said_at_marks("VQconfig alias XtRIntegers { to_name=T } "
                          "family F { alias=<XtRInteger> alias=XtRIntegers }"));
}

TEST(References, ToPredefinedPopupsAndThoseOfOlderConvertersAreGood) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig converter C { dialog_create=P } "
                                  "family F { popup=P popup=vq_font_dialog_create converter=C }"));
}

TEST(References, WithoutANameNameNothing) {
  EXPECT_EQ((Sayings{"empty_reference: alias = '' names nothing", "empty_reference: page = '' names nothing",
                     "empty_reference: cheader = '' names nothing"}),
            said_at_marks("VQconfig family F { alias=<''> page=<''> cheader=<''> }"));
}

TEST(Dialogs, ThatAreNoPopupsAreFound) {
  EXPECT_EQ((Sayings{"dialog_is_no_popup: 'P' is no popup"}),
            said_at_marks("VQconfig converter C { dialog=<'P'> } family F { converter=C }"));
}

TEST(Dialogs, ThatArePopupsAreGoodWhereverTheseStand) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig converter C { dialog=P } converter D { dialog=vq_fsb_dialog_create } "
                                  "family F { converter=C converter=D } popup P {}"));
}

TEST(Dialogs, ThatFamiliesNameTooAreFoundThereOnly) {
  EXPECT_EQ((Sayings{"undefined_name: the popup 'P' is defined nowhere"}),
            said_at_marks("VQconfig converter C { dialog=P } family F { converter=C popup=<P> }"));
}

TEST(Unused, NamesAreFoundWhereTheyAreDefined) {
  EXPECT_EQ((Sayings{
                "unused_name: no family has the widget 'W'",
                "unused_name: no family has the enumeration 'E'",
                "unused_name: no family has the alias 'A'",
                "unused_name: no family has the converter 'C'",
                "unused_name: no family has the popup 'P'",
                "unused_name: no family has the page 'p'",
                "unused_name: no family has the header 'h'",
                "unused_name: no family has the cheader 'c'",
                "unused_name: no family has the family_header 'f'",
            }),
            said_at_marks("VQconfig widget <'W'> {} enumeration <E> {} alias <A> { to_name=T } converter <C> {} "
                          "popup <P> {} page <'p'> header <h> cheader <c> family_header <f> family F {}"));
}

TEST(Unused, PopupsAreNotThoseOfConvertersThatFamiliesHave) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig family F { converter=C converter=D } popup P {} converter C { dialog=P } "
                                  "converter D { dialog_create=Q }"));
}

TEST(Unused, PopupsOfUnusedConvertersAreFoundUnlessTheseMakeThem) {
  EXPECT_EQ((Sayings{"unused_name: no family has the converter 'C'", "unused_name: no family has the converter 'D'",
                     "unused_name: no family has the popup 'P'"}),
            said_at_marks("VQconfig converter <C> { dialog_create=Q } converter <D> { dialog=P } popup <P> {}"));
}

TEST(Unused, PredefinedNamesAreNeverFound) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig page display page misc popup vq_string_dialog_create {}"));
}

std::string with_resource(const std::string& resource, const std::string& rest) {
  return "VQconfig widget W { resource_definitions=" + resource + "; } " + rest;
}

TEST(PagesOfResources, AreThoseOfTheFamiliesThatHaveTheWidget) {
  EXPECT_EQ(Sayings{}, said_about(with_resource("'r', , 'p', True, 's', , 'misc', True, 't', , , True",
                                                "family F { widget=W } family G { page='p' widget=W }")));
}

TEST(PagesOfResources, OfNoFamilyAreFoundOnceAWidget) {
  EXPECT_EQ((Sayings{"page_of_no_family: no family that has 'W' has the page 'p'"}),
            said_at_marks(with_resource("'z', , <'p'>, True, 'a', , 'p', True", "family F { widget=W }")));
}

TEST(PagesOfResources, OfOtherFamiliesAreFound) {
  const Checked checked(with_resource("'r', , 'pp', True", "family F { widget=W page=q } family G { page=pp }"));
  ASSERT_EQ((Sayings{"page_of_no_family: no family that has 'W' has the page 'pp'"}), checked.said());
  const Note& note = checked.findings[0].notes.at(0);
  EXPECT_EQ("the pages of the family 'F' are display, margins, settings, callbacks, misc, q", note.words);
  EXPECT_EQ("F", checked.source->text(note.range.value()));
}

TEST(PagesOfResources, SuggestAPageOfTheFamily) {
  EXPECT_EQ((Sayings{"page_of_no_family: no family that has 'W' has the page 'dispaly' -> display"}),
            said_about(with_resource("'r', , 'dispaly', True", "family F { widget=W }")));
}

TEST(PagesOfResources, OfAnUnusedWidgetOnlyHaveToBeInAFamily) {
  EXPECT_EQ(
      (Sayings{"unused_name: no family has the widget 'W'",
               "page_of_no_family: no family that has 'W' has the page 'q'"}),
      said_about(with_resource("'r', , 'p', True, 's', , 'q', True, 't', , 'misc', True", "family F { page=p }")));
}

TEST(PopupsOfResources, OfNoFamilyAreFoundThereOnly) {
  EXPECT_EQ((Sayings{"popup_of_no_family: no family that has 'W' has the popup 'P'"}),
            said_at_marks(with_resource("'r', <'P'>, , True", "popup P {} family F { widget=W }")));
}

TEST(PopupsOfResources, ArePredefinedOrOfTheFamilyOrOfItsConverters) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig popup P {} converter C { dialog_create=Q } widget W { "
                                  "resource_definitions='r', 'P', , True, 's', 'Q', , True, 't', "
                                  "'vq_colour_dialog_create', , True; } family F { widget=W popup=P converter=C }"));
}

TEST(PopupsOfResources, InTheOlderListAreFoundToo) {
  EXPECT_EQ((Sayings{"popup_of_no_family: no family that has 'W' has the popup 'P'"}),
            said_at_marks("VQconfig widget W { resource_popups='r', <'P'> } family F { widget=W }"));
}

TEST(Pages, BeforeThePredefinedOnesAreFound) {
  EXPECT_EQ((Sayings{"page_before_predefined: the page 'p' stands before the predefined ones",
                     "page_before_predefined: the page 'q' stands before the predefined ones"}),
            said_at_marks("VQconfig page <'p'> page 'display' page <q> family F { page=p page=q }"));
}

TEST(Pages, AfterThePredefinedOnesAreGood) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig page misc page settings page margins page display page callbacks page 'p' "
                                  "family F { page='p' }"));
  EXPECT_EQ(Sayings{}, said_about("VQconfig family F { page='p' } page 'p' page 'q' family G { page='q' }"));
}

TEST(Pages, ThatAreUnusedAreFoundOnceOnly) {
  EXPECT_EQ((Sayings{"unused_name: no family has the page 'p'"}), said_at_marks("VQconfig page <'p'> family F {}"));
}

}  // namespace
