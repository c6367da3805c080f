#include "vqc/cmd/problems/find_problems.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "support/document.h"
#include "support/files.h"
#include "vqc/cmd/savefile/fields.h"

namespace vqc {

inline void PrintTo(const Spot& spot, std::ostream* out) {
  *out << "part " << static_cast<int>(spot.part) << " '" << spot.name << "' of '" << spot.of << "', field '"
       << spot.field << "'";
}

}  // namespace vqc

namespace {

class FindProblems : public DocumentTest {
 protected:
  /// The problems of a document that has been read from that text, without what its file's header needs.
  Problems found_in(const std::string& text, const std::string& folder = {}) {
    document.clear();
    EXPECT_FALSE(read_document("VQconfig\n" + text).first_error) << text;
    return find_problems({capture(document, nullptr), folder});
  }

  /// The spot of the first problem of a kind.
  Spot spot_of(FindingId id, const std::string& text) {
    const Problems problems = found_in(text);
    const auto problem = std::ranges::find(problems.first, id, &Problem::id);
    if (problem == problems.first.end() || !problem->spot) {
      ADD_FAILURE() << "no spot for " << kind_of(id).name << " in " << text;
      return {};
    }
    return *problem->spot;
  }

  /// The spot of a text that is no UTF-8.
  Spot spot_of_bad(const std::string& text) { return spot_of(FindingId::bytes_not_utf8, text); }
};

constexpr const char* kResource = ", True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT";

TEST_F(FindProblems, FindsNothingInASoundDocument) {
  EXPECT_EQ(Problems(), found_in("family 'F' { }\nalias 'A' { to_name='B' }\nfamily 'G' { alias='A' }\n"));
}

TEST_F(FindProblems, FindsNothingInAnEmptyDocument) { EXPECT_EQ(Problems(), found_in("")); }

TEST_F(FindProblems, SaysWhatCheckSays) {
  const Problems problems = found_in("alias 'A' { }\nfamily 'F' { alias='A' }\n");
  EXPECT_EQ((Problems{{0, 1, 0},
                      {{.id = FindingId::missing_to_name,
                        .words = "the alias 'A' has no to_name",
                        .spot = Spot{Part::alias, "A"}}}}),
            problems);
}

TEST_F(FindProblems, SaysWhatWasPerhapsMeant) {
  const Problems problems = found_in("widget 'W' { resource_definitions='r', , 'knob'" + std::string(kResource) +
                                     "; }\n"
                                     "family 'F' { widget='W' page='knobs' }\n");
  ASSERT_EQ(1U, problems.first.size());
  EXPECT_EQ(FindingId::page_of_no_family, problems.first[0].id);
  EXPECT_EQ((Spot{Part::resource, "r", "W", "page"}), problems.first[0].spot);
  EXPECT_EQ("did you mean 'knobs'?", problems.first[0].notes.back());
}

TEST_F(FindProblems, LeavesOutWhatIsOnlyShownOnDemand) {
  EXPECT_EQ(Problems(), found_in("! a comment\nfamily 'F' { }\n"));
}

TEST_F(FindProblems, KeepsTheOrderOfTheDocument) {
  const Problems problems =
      found_in("stop_list='Xyz'\nwidget '1' { realise='2' }\nalias 'A' { }\nfamily 'F' { widget='1' alias='A' }\n");
  std::vector<FindingId> ids;
  for (const Problem& problem : problems.first) ids.push_back(problem.id);
  EXPECT_EQ((std::vector<FindingId>{FindingId::unknown_class, FindingId::no_identifier, FindingId::no_identifier,
                                    FindingId::missing_to_name}),
            ids);
}

TEST_F(FindProblems, CountsMoreThanAnybodyReads) {
  std::string text;
  for (int i = 0; i < 1200; ++i) text += "alias 'A" + std::to_string(i) + "' { }\n";
  const Problems problems = found_in(text);
  EXPECT_EQ(2400U, problems.count(Severity::warning));  // none has a to_name, and no family has any
  EXPECT_EQ(0U, problems.count(Severity::error));
  EXPECT_EQ(Problems::kMost, problems.first.size());
}

TEST_F(FindProblems, LooksForHeadersBesideTheDocument) {
  const TemporaryFolder folder;
  folder.with("both.h", "static int twice;\n");
  const std::string text =
      "widget 'V' { largeicon='a' largeiconheader='both.h' }\nwidget 'W' { largeicon='b' largeiconheader='both.h' }\n"
      "family 'F' { widget='V' widget='W' }\n";
  EXPECT_EQ(Problems(), found_in(text, "/nowhere"));
  const Problems problems = found_in(text, folder.path());
  ASSERT_EQ(1U, problems.first.size());
  EXPECT_EQ(FindingId::icon_header_twice, problems.first[0].id);
  EXPECT_EQ((Spot{Part::widget, "W", "", "largeiconheader"}), problems.first[0].spot);
}

// Where problems are: a text that is no UTF-8 is found wherever it stands.

/// Each text field of a record, as the value of which stands such a text.
template <class Record, std::size_t n, class Expect>
void with_each_field(const Field<Record> (&fields)[n], Expect expect) {
  for (const Field<Record>& field : fields) {
    if (!field.text()) continue;
    const std::string word(keyword_text(field.word));
    expect(word, word + "='\xff'");
  }
}

TEST_F(FindProblems, LeadsToEveryFieldOfEveryRecord) {
  const auto leads_to = [&](Part part, const std::string& before, const std::string& behind, const std::string& name,
                            const std::string& of = "") {
    return [=, this](const std::string& word, const std::string& value) {
      EXPECT_EQ((Spot{part, name, of, word}), spot_of_bad(before + value + behind));
    };
  };
  with_each_field(widget_fields, leads_to(Part::widget, "widget 'V' { }\nwidget 'W' { ", " }\n", "W"));
  with_each_field(enum_fields, leads_to(Part::enumeration, "enumeration 'E' { ", " }\n", "E"));
  with_each_field(enum_entry_fields,
                  leads_to(Part::entry, "enumeration 'E' { enumentry 'd' { } enumentry 'e' { ", " } }\n", "e", "E"));
  with_each_field(alias_fields, leads_to(Part::alias, "alias 'A' { ", " }\n", "A"));
  with_each_field(converter_fields, leads_to(Part::converter, "converter 'C' { add_in_vq=True ", " }\n", "C"));
  with_each_field(popup_fields, leads_to(Part::popup, "popup 'P' { ", " }\n", "P"));
  with_each_field<FamilyInit>(family_init_fields, leads_to(Part::family, "family 'F' { ", " }\n", "F"));
}

TEST_F(FindProblems, LeadsToEveryPartOfAResource) {
  const auto of_resource = [&](const std::string& resource) {
    return spot_of_bad("widget 'W' { resource_definitions='a', , " + std::string(kResource) + ",\n" + resource +
                       ";\n}\n");
  };
  EXPECT_EQ((Spot{Part::resource, "\xff", "W", ""}), of_resource("'\xff', , " + std::string(kResource)));
  EXPECT_EQ((Spot{Part::resource, "r", "W", "popup"}), of_resource("'r', '\xff', " + std::string(kResource)));
  EXPECT_EQ((Spot{Part::resource, "r", "W", "page"}), of_resource("'r', , '\xff'" + std::string(kResource)));
  EXPECT_EQ((Spot{Part::resource, "r", "W", "counter"}),
            of_resource("'r', , " + std::string(kResource) + " access 7 counter '\xff'"));
}

TEST_F(FindProblems, LeadsToEveryKindOfRecord) {
  struct Kind {
    const char* item;
    Part part;
  };
  const Kind kinds[] = {
      {"widget '\xff' { }", Part::widget},
      {"enumeration '\xff' { }", Part::enumeration},
      {"alias '\xff' { }", Part::alias},
      {"converter '\xff' { }", Part::converter},
      {"popup '\xff' { }", Part::popup},
      {"page '\xff'", Part::page},
      {"header '\xff'", Part::code_header},
      {"cheader '\xff'", Part::config_header},
      {"family_header '\xff'", Part::family_header},
      {"family '\xff' { }", Part::family},
  };
  for (const Kind& kind : kinds) EXPECT_EQ((Spot{kind.part, "\xff"}), spot_of_bad(kind.item)) << kind.item;
  EXPECT_EQ((Spot{Part::entry, "\xff", "E"}), spot_of_bad("enumeration 'E' { enumentry '\xff' { } }\n"));
}

TEST_F(FindProblems, LeadsToEveryKeyOfTheHeader) {
  for (const HeaderKey& key : header_keys) {
    const std::string word(keyword_text(key.word));
    const Part part = key.kind == ValueKind::file ? Part::output_names : Part::table_names;
    EXPECT_EQ((Spot{part, "", "", word}), spot_of_bad(word + "='\xff'\n"));
  }
  EXPECT_EQ((Spot{Part::stop_list}), spot_of_bad("stop_list='XmFrame,\xff'\n"));
  EXPECT_EQ((Spot{Part::stop_list}), spot_of(FindingId::unknown_class, "stop_list='XmFrame,Xyz'\n"));
}

TEST_F(FindProblems, LeadsToWhatAFamilyNames) {
  struct Reference {
    const char* word;
    Part part;
  };
  const Reference references[] = {
      {"widget", Part::widget},
      {"enumeration", Part::enumeration},
      {"alias", Part::alias},
      {"converter", Part::converter},
      {"popup", Part::popup},
      {"page", Part::page},
      {"header", Part::code_header},
      {"cheader", Part::config_header},
      {"family_header", Part::family_header},
  };
  for (const Reference& each : references) {
    EXPECT_EQ((Spot{each.part, "", "F"}),
              spot_of(FindingId::empty_reference, "family 'F' { page='a' " + std::string(each.word) + "='' }\n"));
  }
}

TEST_F(FindProblems, LeadsToTheSecondOfTwoUsesOfAName) {
  EXPECT_EQ((Spot{Part::family, "F", "", "family_init"}),
            spot_of(FindingId::name_twice_in_c,
                    "widget 'W' { realise='make' }\nfamily 'F' { widget='W' family_init='make' }\n"));
}

// A file that has not been read whole.

TEST_F(FindProblems, HasAllErrorsOfAFileThatWasNotReadWholeFirst) {
  const auto file = Source::from_text(
      "VQconfig\nalias 'A' { to_name 'B' }\npopup 'p' {\n\tdialog_int='a'\n}\nfamily 'F' { alias='A' }\n");
  read_document(file->text());
  const Problems problems = find_problems({capture(document, nullptr), "", file});
  EXPECT_EQ(2U, problems.count(Severity::error));
  ASSERT_LT(2U, problems.first.size());
  EXPECT_EQ("expected '='", problems.first[0].words);
  EXPECT_EQ((TextLine{{2, 20}, "alias 'A' { to_name 'B' }"}), problems.first[0].line);
  EXPECT_FALSE(problems.first[0].spot);
  EXPECT_EQ(FindingId::misplaced_word, problems.first[1].id);
  EXPECT_EQ((TextLine{{4, 2}, "\tdialog_int='a'"}), problems.first[1].line);
  EXPECT_EQ("did you mean 'dialog_init'?", problems.first[1].notes.front());
  EXPECT_EQ("no family has the alias 'A'", problems.first[2].words);  // in the part that was read
  EXPECT_FALSE(problems.first[2].line);
}

// A text with a quote, with which Save breaks the file.

TEST_F(FindProblems, HasTheErrorsThatSaveWouldWriteFirst) {
  const Problems problems = found_in("alias 'A' { to_name='it\\'s' }\nfamily 'F' { alias='A' }\n");
  ASSERT_LE(2U, problems.first.size());
  EXPECT_EQ(Severity::error, kind_of(problems.first.front().id).severity);
  EXPECT_EQ("\tto_name='it's'", problems.first.front().line->text);
  EXPECT_EQ(problems.count(Severity::error) + 1, problems.first.size());
  EXPECT_EQ(FindingId::no_expression, problems.first.back().id);
  EXPECT_EQ((Spot{Part::alias, "A", "", "to_name"}), problems.first.back().spot);
}

TEST_F(FindProblems, LeadsToNamesWithAQuote) {
  const std::string text = "alias 'a' { to_name='b' }\nalias 'it\\'s' { to_name='\xff' }\nalias 'z' { to_name='b' }\n";
  EXPECT_EQ((Spot{Part::alias, "it's", "", "to_name"}), spot_of_bad(text));
  EXPECT_EQ((Spot{Part::alias, "it's"}),
            spot_of(FindingId::unused_name, "popup '1' { }\nfamily 'F' { popup='1' alias='a' alias='z' }\n" + text));
}

TEST_F(FindProblems, HasAPartOfALineThatIsLong) {
  const std::string many(2000, 'x');
  const auto file =
      Source::from_text("VQconfig alias 'A' { to_name='" + many + "' } popup '\xc3\xbc' } '" + many + "'");
  const Problems problems = find_problems({capture(document, nullptr), "", file});
  ASSERT_LE(1U, problems.first.size());
  const std::string& shown = problems.first[0].line->text;
  EXPECT_GE(200U, shown.size());
  EXPECT_NE(std::string::npos, shown.find("popup '\xc3\xbc' }"));
}

TEST_F(FindProblems, LeavesOutWhatFollowsAStop) {
  read_document("VQconfig\nalias 'A' { }\n");
  std::stop_source stop;
  stop.request_stop();
  EXPECT_EQ(Problems(), find_problems({capture(document, nullptr)}, stop.get_token()));
}

}  // namespace
