#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "support/document.h"

using namespace vqc;

namespace {

using enum FindingId;

/// What is found at a mark.
struct Expected {
  FindingId id;
  std::vector<std::string> arguments = {};
};

// Reading that goes on after errors: one finding for each fault, and all else is read.

class Recovery : public DocumentTest {
 protected:
  /// Reads a text with a mark at each fault, in their order, into the empty document. `whole` is what is read of it all
  /// the same, as it is written.
  void expect(std::string_view marked, const std::vector<Expected>& expected, std::string_view whole) {
    const MarkedText text(marked);
    ASSERT_EQ(text.ranges.size(), expected.size()) << marked;
    Findings findings;
    for (std::size_t i = 0; i < expected.size(); ++i) {
      findings.push_back({expected[i].id, text.ranges[i], expected[i].arguments});
    }
    document.clear();
    result = read_document(text.text, AfterError::go_on);
    EXPECT_EQ(findings, diagnostics.findings()) << marked;
    EXPECT_EQ("VQconfig\n" + std::string(whole), saved(document)) << marked;
    expect_same_as_stopping(text.text);
  }

  /// The same for items, which follow the first word.
  void expect_items(std::string_view marked, const std::vector<Expected>& expected, std::string_view whole) {
    expect("VQconfig\n" + std::string(marked), expected, whole);
  }

  /// What is stated does not depend on going on.
  void expect_same_as_stopping(std::string_view text) const {
    Document other;
    Diagnostics of_other;
    const LoadResult stopped = load(Source::from_text(text), other, of_other);
    ASSERT_EQ(stopped.first_error.has_value(), result.first_error.has_value()) << text;
    EXPECT_EQ(stopped.has_header, result.has_header) << text;
    if (!stopped.first_error) return;
    EXPECT_EQ(stopped.first_error->message, result.first_error->message) << text;
    EXPECT_EQ(stopped.first_error->line, result.first_error->line) << text;
  }

  LoadResult result;
};

constexpr std::string_view kGood = "alias 'good' {\n\tto_name='T'\n}\n";

// A fault in a block.

TEST_F(Recovery, AfterAWrongFieldTheBlockGoesOn) {
  expect_items("widget 'W' {\n\trealise='r'\n\t<dialog>='D'\n\tabstract='a'\n}\nalias 'good' { to_name='T' }",
               {{misplaced_word, {"dialog"}}}, "widget 'W' {\n\trealise='r'\n\tabstract='a'\n}\n" + std::string(kGood));
}

TEST_F(Recovery, AfterAWordThatIsNoKeywordTheBlockGoesOn) {
  expect_items("alias 'good' { <nonsense> = 'x' to_name='T' }", {{misplaced_word, {"nonsense"}}}, kGood);
  expect_items("alias 'good' { <'nonsense'> to_name='T' }", {{misplaced_word, {"nonsense"}}}, kGood);
  expect_items("alias 'good' { <12> to_name='T' }", {{misplaced_word, {"12"}}}, kGood);
}

TEST_F(Recovery, AfterACharacterOutOfPlaceTheBlockGoesOn) {
  expect_items("alias 'good' { <;> to_name='T' }", {{misplaced_word, {";"}}}, kGood);
  expect_items("alias 'good' { to_name='T' <,> }", {{misplaced_word, {","}}}, kGood);
}

TEST_F(Recovery, AfterAMissingEqualsSignTheBlockGoesOn) {
  expect_items("popup 'P' { dialog_init<> 'i' dialog_update='u' } alias 'good' { to_name='T' }",
               {{expected_character, {"="}}}, std::string(kGood) + "popup 'P' {\n\tdialog_update='u'\n}\n");
}

TEST_F(Recovery, AfterAMissingValueTheBlockGoesOn) {
  expect_items("popup 'P' { dialog_init=<> dialog_update='u' } alias 'good' { to_name='T' }", {{expected_name}},
               std::string(kGood) + "popup 'P' {\n\tdialog_update='u'\n}\n");
  expect_items("popup 'P' { dialog_update='u' dialog_init=<> } alias 'good' { to_name='T' }", {{expected_name}},
               std::string(kGood) + "popup 'P' {\n\tdialog_update='u'\n}\n");
}

TEST_F(Recovery, AfterAValueThatIsNoneTheBlockGoesOn) {
  expect_items("popup 'P' { dialog_init=<5> dialog_update='u' } alias 'good' { to_name='T' }", {{expected_name}},
               std::string(kGood) + "popup 'P' {\n\tdialog_update='u'\n}\n");
}

TEST_F(Recovery, AfterAWrongBooleanTheBlockGoesOn) {
  expect_items("widget 'W' { can_manage=<5> can_create=False } alias 'good' { to_name='T' }", {{expected_boolean}},
               "widget 'W' {\n\tcan_create=False\n}\n" + std::string(kGood));
}

TEST_F(Recovery, BlocksInPlaceOfValuesAreSkipped) {
  expect_items("alias 'A' { <{> to_name='x' { dialog='y' } } to_name='U' }\nalias 'good' { to_name='T' }",
               {{misplaced_word, {"{"}}}, "alias 'A' {\n\tto_name='U'\n}\n" + std::string(kGood));
  expect_items("widget 'W' { <popup> = { realise='x' } abstract='a' }", {{misplaced_word, {"popup"}}},
               "widget 'W' {\n\tabstract='a'\n}\n");
}

TEST_F(Recovery, AFaultInAnEntryLeavesTheEntriesAfterIt) {
  expect_items(
      "enumeration 'E' {\n\tenumentry 'a' { code_symbol=<5> resfile_symbol='r' }\n"
      "\tenumentry 'b' { code_symbol='B' }\n\ttypename='int'\n}",
      {{expected_name}},
      "enumeration 'E' {\n\ttypename='int'\n\tenumentry 'a'{\n\t\tresfile_symbol='r'\n\t}\n"
      "\tenumentry 'b'{\n\t\tcode_symbol='B'\n\t}\n}\n");
}

TEST_F(Recovery, AnEntryWithoutANameLeavesTheEntriesAfterIt) {
  expect_items("enumeration 'E' { enumentry<> { code_symbol='A' } enumentry 'b' {} } alias 'good' { to_name='T' }",
               {{expected_name}}, "enumeration 'E' {\n\tenumentry 'b'{\n\t}\n}\n" + std::string(kGood));
}

TEST_F(Recovery, AFaultInAFamilyLeavesWhatItUses) {
  Document expected;
  Diagnostics none;
  load(Source::from_text("VQconfig alias 'a' {} family 'F' { alias='a' header='h' } family 'G' {}"), expected, none);
  EXPECT_TRUE(none.empty());
  expect_items("alias 'a' {} family 'F' { alias='a' <realise>='r' header='h' } family 'G' {}",
               {{misplaced_word, {"realise"}}}, saved(expected).substr(9));
}

TEST_F(Recovery, AConverterOfTheOlderFormWithAFaultMakesItsPopup) {
  expect_items("converter 'C' { dialog_create='D' add_in_vq=<>; dialog_init='i' }", {{expected_boolean}},
               "converter 'C' {\n\tdialog='D'\n}\npopup 'D' {\n\tdialog_init='i'\n}\n");
}

// A fault in a list of resources.

class ResourceRecovery : public Recovery {
 protected:
  /// The same for the list of resources of a widget, after which a field follows.
  void expect_resources(std::string_view marked, const Expected& expected, std::string_view whole) {
    expect_items("widget 'W' {\n\tresource_definitions=" + std::string(marked) +
                     "\n\tcan_create=False\n}\nalias 'good' { to_name='T' }\n",
                 {expected},
                 "widget 'W' {\n\tcan_create=False\n\tresource_definitions=" + std::string(whole) + "\n}\n" +
                     std::string(kGood));
  }
};

constexpr std::string_view kRest = ", , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT";

/// Resources with the usual values, as they are written, but for the separator after the last.
std::string resources(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) {
    text += (text.empty() ? "'" : ",\n'") + name + "'";
    text += kRest;
  }
  return text;
}

TEST_F(ResourceRecovery, AWrongFreeModeLeavesTheResourcesAfterIt) {
  expect_resources(
      "'a', , , True, VQC_FREE, VQC_FREE,\n'b', , 'misc', False, VQC_FREE, VQC_FREE,\n"
      "'c', 'P', 'misc', False, <FREE>, VQC_FREE access 5 counter 'n',\n"
      "'d', , , False, VQC_FREE, VQC_FREE access 7,\n'e', 'P', , True, VQC_FREE, VQC_DONT_FREE counter 'n';",
      {expected_free_mode},
      "'a', , , True, VQC_FREE, VQC_FREE,\n'b', , 'misc', False, VQC_FREE, VQC_FREE,\n"
      "'c', 'P', 'misc', False, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT,\n"
      "'d', , , False, VQC_FREE, VQC_FREE access 7,\n'e', 'P', , True, VQC_FREE, VQC_DONT_FREE counter 'n';");
}

TEST_F(ResourceRecovery, AMissingCommaLeavesTheResourcesAfterIt) {
  expect_resources(
      "'a', , , True, 'b', , 'misc'<> True, VQC_FREE, VQC_FREE, 'c', , , True;", {expected_character, {","}},
      resources({"a"}) + ",\n'b', , 'misc', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT,\n" + resources({"c"}) + ";");
  expect_resources("'a'<> 'P', 'misc', True, VQC_FREE, VQC_FREE,\n'b', , , True;", {expected_character, {","}},
                   resources({"a", "b"}) + ";");
  expect_resources("'a', , , True, VQC_FREE<> VQC_FREE, 'b', , , True;", {expected_character, {","}},
                   "'a', , , True, VQC_FREE, VQC_FREE_DEFAULT,\n" + resources({"b"}) + ";");
}

TEST_F(ResourceRecovery, AFaultInTheLastResourceLeavesTheFieldsAfterTheList) {
  expect_resources("'a', , , True, 'b', , , <'True'>;", {expected_boolean}, resources({"a", "b"}) + ";");
  expect_resources("'a', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access <'5'>;", {expected_integer},
                   resources({"a"}) + ";");
  expect_resources("'a', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT counter <n>;", {expected_text},
                   resources({"a"}) + ";");
}

TEST_F(ResourceRecovery, WhatIsNotVisibleNorNotLeavesTheResourcesAfterIt) {
  expect_resources("'a', 'P', 'misc', <5>, VQC_FREE, VQC_FREE,\n'b', , , True;", {expected_boolean},
                   "'a', 'P', 'misc', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT,\n" + resources({"b"}) + ";");
}

TEST_F(ResourceRecovery, AListWithoutAnEndIsMissingItsSemicolon) {
  expect_items("widget 'W' { resource_definitions='a', , , True<> }\nalias 'good' { to_name='T' }",
               {{expected_character, {";"}}},
               "widget 'W' {\n\tresource_definitions=" + resources({"a"}) + ";\n}\n" + std::string(kGood));
  expect_items("widget 'W' { resource_definitions='a', , , True<> }", {{expected_character, {";"}}},
               "widget 'W' {\n\tresource_definitions=" + resources({"a"}) + ";\n}\n");
}

TEST_F(ResourceRecovery, AFaultInTheOlderFormLeavesTheFieldsAfterIt) {
  expect_items("widget 'W' { resource_popups='a', 'P', <b>, 'Q' can_create=False } alias 'good' { to_name='T' }",
               {{expected_text}},
               "widget 'W' {\n\tcan_create=False\n\tresource_definitions='a', 'P', , True, VQC_FREE_DEFAULT, "
               "VQC_FREE_DEFAULT;\n}\n" +
                   std::string(kGood));
}

// Blocks that are not closed.

TEST_F(Recovery, ABlockWithoutAnEndIsFoundWhereItBegins) {
  expect_items("alias 'A' <{> to_name='U'\nalias 'good' { to_name='T' }", {{unclosed_block}},
               "alias 'A' {\n\tto_name='U'\n}\n" + std::string(kGood));
  expect_items("popup 'P' <{> dialog_init='i'\nalias 'good' { to_name='T' }", {{unclosed_block}},
               std::string(kGood) + "popup 'P' {\n\tdialog_init='i'\n}\n");
  expect_items("converter 'C' <{> dialog='D'\nalias 'good' { to_name='T' }", {{unclosed_block}},
               std::string(kGood) + "converter 'C' {\n\tdialog='D'\n}\n");
  expect_items("enumeration 'E' <{> typename='int'\nalias 'good' { to_name='T' }", {{unclosed_block}},
               "enumeration 'E' {\n\ttypename='int'\n}\n" + std::string(kGood));
  expect_items("widget 'W' <{> realise='r'\nalias 'good' { to_name='T' }", {{unclosed_block}},
               "widget 'W' {\n\trealise='r'\n}\n" + std::string(kGood));
}

TEST_F(Recovery, AFamilyWithoutAnEndIsFoundWhereItBegins) {
  Document expected;
  Diagnostics none;
  load(Source::from_text("VQconfig family 'F' { header='h' } alias 'good' { to_name='T' }"), expected, none);
  EXPECT_TRUE(none.empty());
  expect_items("family 'F' <{> header='h'\nalias 'good' { to_name='T' }", {{unclosed_block}},
               saved(expected).substr(9));
}

TEST_F(Recovery, AFamilyWithoutAnEndBeforeAnotherIsFoundWhereItBegins) {
  Document expected;
  Diagnostics none;
  load(Source::from_text("VQconfig family 'F' { header='h' } family 'G' { alias='a' }"), expected, none);
  EXPECT_TRUE(none.empty());
  expect_items("family 'F' <{> header='h'\nfamily 'G' { alias='a' }", {{unclosed_block}}, saved(expected).substr(9));
}

TEST_F(Recovery, AnItemInAFamilyIsStatedAsAMissingEqualsSign) {
  const MarkedText text("VQconfig\nfamily 'F' <{>\nalias\n'A' { to_name='U' }");
  for (AfterError after_error : {AfterError::stop, AfterError::go_on}) {
    result = read_document(text.text, after_error);
    ASSERT_TRUE(result.first_error);
    EXPECT_EQ("'='", result.first_error->message);
    EXPECT_EQ(4, result.first_error->line);
    EXPECT_EQ((Findings{{unclosed_block, text.ranges.front()}}), diagnostics.findings());
  }
}

TEST_F(Recovery, ABlockWithoutAnEndAtTheEndIsFoundWhereItBegins) {
  for (const std::string item : {"alias", "popup", "converter", "enumeration", "widget"}) {
    expect_items(item + " 'x' <{>\n\n", {{unclosed_block}}, item + " 'x' {\n}\n");
  }
}

TEST_F(Recovery, AnEntryWithoutAnEndIsFoundWhereItBegins) {
  const std::string whole = "enumeration 'E' {\n\tenumentry 'a'{\n\t\tcode_symbol='A'\n\t}\n\tenumentry 'b'{\n\t}\n}\n";
  expect_items("enumeration 'E' { enumentry 'a' <{> code_symbol='A'\nenumentry 'b' {} } alias 'good' { to_name='T' }",
               {{unclosed_block}}, whole + std::string(kGood));
}

TEST_F(Recovery, AMissingOpeningBraceLeavesTheBlock) {
  expect_items("alias 'A'<> to_name='U' }\nalias 'good' { to_name='T' }", {{expected_character, {"{"}}},
               "alias 'A' {\n\tto_name='U'\n}\n" + std::string(kGood));
}

// Faults between items.

TEST_F(Recovery, AfterAWrongItemTheNextOneIsRead) {
  expect_items("<nonsense> 'x' { to_name='y' }\nalias 'good' { to_name='T' }", {{unknown_item}}, kGood);
  expect_items("<to_name>='y'\nalias 'good' { to_name='T' }", {{misplaced_word, {"to_name"}}}, kGood);
}

TEST_F(Recovery, AStrayBraceIsOneFault) {
  expect_items("alias 'A' { }\n<}>\nalias 'good' { to_name='T' }", {{unknown_item}},
               "alias 'A' {\n}\n" + std::string(kGood));
}

TEST_F(Recovery, AnItemWithoutANameIsSkippedWithItsBlock) {
  expect_items("alias<> { to_name='x' }\nalias 'good' { to_name='T' }", {{expected_name}}, kGood);
  expect_items("header <5>\nalias 'good' { to_name='T' }", {{expected_name}}, kGood);
}

TEST_F(Recovery, AnItemWhoseNameIsMissingDoesNotTakeTheNextOne) {
  expect_items("page<> alias 'good' { to_name='T' }", {{expected_name}}, kGood);
}

TEST_F(Recovery, AFamilyWithAnEmptyNameIsSkipped) {
  expect_items("family <''> { header='h' alias='x' }\nalias 'good' { to_name='T' }", {{nameless_family}}, kGood);
}

TEST_F(Recovery, WhatFollowsAFamilyWithAnEmptyNameIsStatedNowhereEither) {
  expect_items("family <''> { }\nalias 'good' { to_name='T' <;> }", {{nameless_family}, {misplaced_word, {";"}}},
               kGood);
  EXPECT_FALSE(result.first_error);
}

// The header.

TEST_F(Recovery, AHeaderKeyOutOfOrderIsOneFault) {
  expect("VQconfig\nconfig_name='c'\n<code_name>='d'\nalias 'good' { to_name='T' }", {{misplaced_word, {"code_name"}}},
         "config_name='c'\n" + std::string(kGood));
}

TEST_F(Recovery, AfterAFaultInTheHeaderTheHeaderGoesOn) {
  expect("VQconfig\ncode_name=<5>\nconfig_name='c'\nalias 'good' { to_name='T' }", {{expected_name}},
         "config_name='c'\n" + std::string(kGood));
  expect("VQconfig\ncode_name<> 'x'\nstop_list='XmFrame'\nalias 'good' { to_name='T' }", {{expected_character, {"="}}},
         "stop_list = 'XmFrame'\n" + std::string(kGood));
}

TEST_F(Recovery, WhatIsNoDocumentIsNotRead) {
  expect("<alias> 'A' {} alias 'B' {}", {{no_document}}, "");
  expect("<>", {{no_document}}, "");
}

// More than one fault.

TEST_F(Recovery, EachFaultIsFoundOnce) {
  expect_items(
      "widget 'W' {\n\trealise=<5>\n\tabstract='a'\n\t<dialog>='D'\n\tcan_add_child='c'\n}\n"
      "alias 'good' { to_name='T' <;> }",
      {{expected_name}, {misplaced_word, {"dialog"}}, {misplaced_word, {";"}}},
      "widget 'W' {\n\tabstract='a'\n\tcan_add_child='c'\n}\n" + std::string(kGood));
  expect_items(
      "alias 'A' <{> to_name='U'\npage 'p' <nonsense> { }\nenumeration 'E' { enumentry 'a' { code_symbol=<>; } }\n"
      "alias 'good' { to_name='T' }",
      {{unclosed_block}, {unknown_item}, {expected_name}},
      "enumeration 'E' {\n\tenumentry 'a'{\n\t}\n}\nalias 'A' {\n\tto_name='U'\n}\n" + std::string(kGood) +
          "page 'p'\n");
}

TEST_F(Recovery, EachResourceMayHaveAFault) {
  expect_items(
      "widget 'W' { resource_definitions='a', , , True, <FREE>, VQC_FREE,\n'b', , , True,\n'c', , , <'no'>;\n"
      "can_create=<>; }",
      {{expected_free_mode}, {expected_boolean}, {expected_boolean}},
      "widget 'W' {\n\tresource_definitions=" + resources({"a", "b", "c"}) + ";\n}\n");
}

TEST_F(Recovery, AFaultBeforeAndInTheItems) {
  expect("VQconfig\nstubs_name=<>;\npage 'p'\nalias <5>\nalias 'good' { to_name='T' }\n<}>",
         {{expected_name}, {expected_name}, {unknown_item}}, std::string(kGood) + "page 'p'\n");
}

TEST_F(Recovery, GoodDocumentsHaveNoFaults) {
  expect("VQconfig", {}, "");
  expect_items("alias 'good' { to_name='T' }", {}, kGood);
  expect_items("widget 'W' { resource_definitions='a', , , True, 'b', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT; }",
               {}, "widget 'W' {\n\tresource_definitions=" + resources({"a", "b"}) + ";\n}\n");
  EXPECT_FALSE(result.first_error);
}

}  // namespace
