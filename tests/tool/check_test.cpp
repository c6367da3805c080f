#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "application/run_program.h"

namespace {

using Words = std::vector<std::string>;
using Json = nlohmann::json;

/// A test that runs vqc check in a folder with a document d.vqc.
class Check : public ProgramTest {
 protected:
  Check() {
    program = VQC_PROGRAM;
    program_name = "vqc";
  }

  Outcome check(Words words, const Surroundings& surroundings = {}) const {
    words.insert(words.begin(), "check");
    return run(words, surroundings);
  }

  /// What is shown of a document.
  std::string shown(std::string_view text, Words options = {}, const Surroundings& surroundings = {}) {
    folder.with("d.vqc", text);
    options.push_back("d.vqc");
    return check(options, surroundings).out;
  }

  int status(std::string_view text, Words options = {}) {
    folder.with("d.vqc", text);
    options.push_back("d.vqc");
    return check(options).status;
  }
};

constexpr std::string_view kSound = "VQconfig\nfamily 'F' {\n\tpage='p'\n}\n";
constexpr std::string_view kBroken = "VQconfig\nfamily 'F' {\n\tpage 'p'\n}\n";
constexpr std::string_view kOdd = "VQconfig\nfamily 'F' {\n\tpage='p'\n\tpage='p'\n}\n";  // a name twice
constexpr std::string_view kCommented = "VQconfig\n! ours\nfamily 'F' {\n\tpage='p'\n}\n";

// What is shown to people.

TEST_F(Check, SaysNothingOfASoundDocument) {
  folder.with("d.vqc", kSound);
  EXPECT_EQ((Outcome{0, "", ""}), check({"d.vqc"}));
}

TEST_F(Check, ShowsTheLineAndACaretUnderThePlace) {
  folder.with("d.vqc", kBroken);
  EXPECT_EQ((Outcome{1,
                     "d.vqc:3:6: error: expected '=' [expected_character]\n"
                     "  3 |  page 'p'\n"
                     "    |      ^\n",
                     "1 error\n"}),
            check({"d.vqc"}));
}

TEST_F(Check, ShowsNotesWithTheirPlaces) {
  EXPECT_EQ(
      "d.vqc:4:7: warning: the family names 'p' twice [named_twice]\n"
      "  4 |  page='p'\n"
      "    |       ^~~\n"
      "d.vqc:3:7: note: the first is here\n"
      "  3 |  page='p'\n"
      "    |       ^~~\n",
      shown(kOdd));
}

TEST_F(Check, SuggestsWhatWasMeant) {
  EXPECT_EQ(
      "d.vqc:2:13: error: 'to_nme' cannot stand here [misplaced_word]\n"
      "  2 | alias 'A' { to_nme='T' }\n"
      "    |             ^~~~~~\n"
      "  note: did you mean 'to_name'?\n",
      shown("VQconfig\nalias 'A' { to_nme='T' }\n"));
}

TEST_F(Check, ShowsFindingsInTheOrderOfTheText) {
  const std::string text = shown("VQconfig\nalias 'A' { to_nme='T' }\nwidgt 'W' { }\npopup 'P' {\n");
  const std::size_t first = text.find("d.vqc:2:13: error"), second = text.find("d.vqc:3:1: error"),
                    third = text.find("d.vqc:4:11: error");
  EXPECT_LT(first, second);
  EXPECT_LT(second, third);
  EXPECT_NE(std::string::npos, third);
}

TEST_F(Check, CountsCharactersAndBytesThatAreNone) {
  EXPECT_EQ(0U, shown("VQconfig\nalias '\xC3\xA4' \xFF").find("d.vqc:2:11: error: expected '{'"));
}

TEST_F(Check, KeepsCaretsUnderWideCharacters) {
  const std::string text = shown("VQconfig\nalias '\xE8\xA1\xA8' { x }\n", {}, {.environment = {"LC_ALL=C.UTF-8"}});
  EXPECT_NE(std::string::npos, text.find("  2 | alias '\xE8\xA1\xA8' { x }\n    |              ^\n")) << text;
}

TEST_F(Check, ShowsWhatATerminalCannotAsQuestionMarks) {
  EXPECT_NE(std::string::npos, shown("VQconfig\nalias '\x01\xFF' x\n").find("  2 | alias '?\?' x\n"));
}

TEST_F(Check, ShowsThePartOfALongLineWhereTheFaultIs) {
  const std::string name(1000000, 'n');
  const std::string text = shown("VQconfig\nalias '" + name + "' { to_nme='T' }\n");
  EXPECT_LT(text.size(), 1000U);
  EXPECT_NE(std::string::npos, text.find("nnn' { to_nme='T' }\n"));
}

TEST_F(Check, IsInColourWhenAskedTo) {
  EXPECT_EQ(std::string::npos, shown(kBroken).find('\033'));
  EXPECT_NE(std::string::npos, shown(kBroken, {"--colour=always"}).find("\033[1;31merror: \033[0m"));
  EXPECT_NE(std::string::npos, shown(kBroken, {"--color=always"}).find('\033'));
}

// What counts.

TEST_F(Check, EndsWithTheWorstOfAllFiles) {
  folder.with("sound.vqc", kSound);
  folder.with("odd.vqc", kOdd);
  folder.with("broken.vqc", kBroken);
  EXPECT_EQ(0, check({"sound.vqc", "odd.vqc"}).status);
  EXPECT_EQ(1, check({"broken.vqc", "sound.vqc"}).status);
  EXPECT_EQ(2, check({"broken.vqc", "missing.vqc", "sound.vqc"}).status);
}

TEST_F(Check, WorksOnWhatFollowsAFileThatCannotBeRead) {
  folder.with("broken.vqc", kBroken);
  const Outcome outcome = check({"missing.vqc", ".", "broken.vqc"});
  EXPECT_EQ(2, outcome.status);
  EXPECT_EQ(0U, outcome.out.find("broken.vqc:3:6: error"));
  EXPECT_EQ("vqc: missing.vqc: No such file or directory\nvqc: .: Is a directory\n1 error\n", outcome.err);
}

TEST_F(Check, ReadsStandardInput) {
  EXPECT_EQ((Outcome{1,
                     "<stdin>:1:1: error: a document begins with the word 'VQconfig' [no_document]\n"
                     "  1 | \n"
                     "    | ^\n",
                     "1 error\n"}),
            check({"-"}));
}

TEST_F(Check, TakesWarningsForErrorsWhenAskedTo) {
  EXPECT_EQ(0, status(kOdd));
  EXPECT_EQ(1, status(kOdd, {"--werror"}));
  EXPECT_EQ(0U, shown(kOdd, {"--werror"}).find("d.vqc:4:7: error: the family"));
  EXPECT_EQ(0, status(kCommented, {"--werror", "--with=comments"}));  // a note
}

TEST_F(Check, LeavesOutWhatNobodyWantsToSee) {
  EXPECT_EQ("", shown(kOdd, {"--no=named_twice"}));
  EXPECT_EQ(0, status(kOdd, {"--werror", "--no", "named_twice"}));
  EXPECT_EQ("", shown(kOdd, {"--only=said_twice"}));
  EXPECT_NE("", shown(kOdd, {"--only=said_twice", "--only=named_twice"}));
  EXPECT_NE("", shown(kBroken, {"--only=said_twice"}));
}

TEST_F(Check, AddsNotesWhenAskedTo) {
  EXPECT_EQ("", shown(kCommented));
  EXPECT_EQ(0U, shown(kCommented, {"--with=comments"}).find("d.vqc:2:1: note: this document has comments: 1"));
}

TEST_F(Check, KnowsItsFindings) {
  folder.with("d.vqc", kSound);
  const Outcome unknown = check({"--no=named_twise", "d.vqc"});
  EXPECT_EQ(2, unknown.status);
  EXPECT_NE(std::string::npos, unknown.err.find("there is no finding 'named_twise'; did you mean 'named_twice'?"));
  const Outcome error = check({"--no=unclosed_block", "d.vqc"});
  EXPECT_EQ(2, error.status);
  EXPECT_NE(std::string::npos, error.err.find("'unclosed_block' is an error, which is always shown"));
}

TEST_F(Check, EndsTheOutputButNotTheCounting) {
  std::string text = "VQconfig\n";
  for (int i = 0; i < 20000; ++i) text += "nonsense\npage 'p'\n";
  folder.with("d.vqc", text);
  const Outcome outcome = check({"d.vqc"});
  EXPECT_EQ(1, outcome.status);
  EXPECT_EQ(100, std::count(outcome.out.begin(), outcome.out.end(), '^'));
  EXPECT_EQ("20000 errors (100 shown)\n", outcome.err);
  EXPECT_EQ("20000 errors (3 shown)\n", check({"--max=3", "d.vqc"}).err);
}

TEST_F(Check, IsQuietWhenAskedTo) {
  folder.with("d.vqc", kBroken);
  EXPECT_EQ((Outcome{1, "", ""}), check({"-q", "d.vqc"}));
}

TEST_F(Check, FindsNothingUnusedInABrokenDocument) {
  const std::string text = shown("VQconfig\nalias 'unused' { to_name='T' }\nwidgt 'W' { }\n");
  EXPECT_EQ(std::string::npos, text.find("unused_name"));
}

TEST_F(Check, LooksForHeadersWhereItIsTold) {
  folder.with("Dial.h", "");
  std::filesystem::create_directory(folder / "headers");
  folder.with("headers/Knob.h", "");
  const std::string text = "VQconfig\nfamily 'F' {\n\theader='Dial.h'\n\theader='Knob.h'\n\theader='Gone.h'\n}\n";
  EXPECT_EQ("", shown(text));
  const std::string found = shown(text, {"-I", "headers"});
  EXPECT_EQ(0U, found.find("d.vqc:5:9: warning:")) << found;
  EXPECT_EQ(std::string::npos, found.find("Knob.h'\n    |")) << found;
}

TEST_F(Check, WantsAFile) {
  EXPECT_EQ((Outcome{2, "", "vqc: FILE is required\nTry 'vqc help'.\n"}), check({}));
  EXPECT_EQ(2, run({}).status);
  EXPECT_EQ(2, run({"chek", "d.vqc"}).status);
}

// What is shown to programs.

TEST_F(Check, JsonHasAnObjectALine) {
  const std::string text = shown("VQconfig\nalias '\xFF' { to_nme='T' }\n", {"--format=json"});
  ASSERT_EQ(1, std::count(text.begin(), text.end(), '\n'));
  const Json found = Json::parse(text);
  EXPECT_EQ("d.vqc", found["file"]);
  EXPECT_EQ(2, found["line"]);
  EXPECT_EQ(13, found["column"]);
  EXPECT_EQ(2, found["end_line"]);
  EXPECT_EQ(19, found["end_column"]);
  EXPECT_EQ("error", found["severity"]);
  EXPECT_EQ("misplaced_word", found["id"]);
  EXPECT_EQ("'to_nme' cannot stand here", found["message"]);
  EXPECT_EQ(Json::array(), found["notes"]);
  EXPECT_EQ("to_name", found["suggestion"]);
}

TEST_F(Check, JsonHasNotes) {
  const Json found = Json::parse(shown(kOdd, {"--format=json"}));
  ASSERT_EQ(1U, found["notes"].size());
  EXPECT_EQ(3, found["notes"][0]["line"]);
  EXPECT_EQ("the first is here", found["notes"][0]["message"]);
  EXPECT_TRUE(found["suggestion"].is_null());
}

TEST_F(Check, JsonIsUtf8WhateverTheDocumentIs) {
  EXPECT_NO_THROW(Json::parse(
      shown("VQconfig\nfamily 'F' { page='\xE9' page='\xE9' }\n", {"--only=named_twice", "--format=json"})));
}

TEST_F(Check, SarifHasWhatTheStandardRequires) {
  folder.with("a b.vqc", kOdd);
  const Json log = Json::parse(check({"--format=sarif", "a b.vqc"}).out);
  EXPECT_EQ("2.1.0", log.at("version"));
  ASSERT_EQ(1U, log.at("runs").size());
  const Json& run = log["runs"][0];
  const Json& driver = run.at("tool").at("driver");
  EXPECT_EQ("vqc", driver.at("name"));
  ASSERT_EQ(1U, run.at("results").size());
  const Json& result = run["results"][0];
  EXPECT_EQ("the family names 'p' twice", result.at("message").at("text"));
  EXPECT_EQ("warning", result.at("level"));
  EXPECT_EQ("named_twice", result.at("ruleId"));
  EXPECT_EQ("named_twice", driver.at("rules").at(result.at("ruleIndex").get<std::size_t>()).at("id"));
  const Json& place = result.at("locations").at(0).at("physicalLocation");
  EXPECT_EQ("a%20b.vqc", place.at("artifactLocation").at("uri"));
  EXPECT_EQ((Json{{"startLine", 4}, {"startColumn", 7}, {"endLine", 4}, {"endColumn", 10}}), place.at("region"));
  EXPECT_EQ("unicodeCodePoints", run.at("columnKind"));
  EXPECT_EQ("the first is here", result.at("relatedLocations").at(0).at("message").at("text"));
}

TEST_F(Check, SarifOfASoundDocumentHasNoResults) {
  folder.with("d.vqc", kSound);
  EXPECT_EQ(Json::array(), Json::parse(check({"--format=sarif", "d.vqc"}).out)["runs"][0]["results"]);
}

TEST_F(Check, GithubHasACommandALine) {
  EXPECT_EQ(
      "::error file=d.vqc,line=2,endLine=2,col=13,endColumn=19,title=misplaced_word::'to_nme' cannot stand here"
      "%0Adid you mean 'to_name'?\n",
      shown("VQconfig\nalias 'A' { to_nme='T' }\n", {"--format=github"}));
}

TEST_F(Check, GithubEscapesWhatWouldEndAProperty) {
  folder.with("a,b:c.vqc", kBroken);
  EXPECT_EQ(0U, check({"--format=github", "a,b:c.vqc"}).out.find("::error file=a%2Cb%3Ac.vqc,line=3,"));
}

TEST_F(Check, KnowsItsFormats) { EXPECT_EQ(2, status(kSound, {"--format=xml"})); }

// The other commands.

TEST_F(Check, FindingsAreExplained) {
  const Outcome outcome = run({"explain", "unclosed_block"});
  EXPECT_EQ(0, outcome.status);
  EXPECT_EQ(0U, outcome.out.find("unclosed_block: error\n\nthis block is not closed\n"));
  EXPECT_NE(std::string::npos, outcome.out.find("Mended:\n\n    VQconfig\n"));
  EXPECT_EQ((Outcome{2, "", "vqc: there is no finding 'unclosd_block'; did you mean 'unclosed_block'?\n"}),
            run({"explain", "unclosd_block"}));
}

TEST_F(Check, HelpIsThereForEachCommand) {
  for (const char* command : {"check", "generate", "explain", "help"}) {
    const Outcome outcome = run({"help", command});
    EXPECT_EQ(0, outcome.status) << command;
    EXPECT_NE(std::string::npos, outcome.out.find(std::string("Usage: vqc ") + command)) << outcome.out;
  }
  EXPECT_EQ(2, run({"help", "nothing"}).status);
  EXPECT_EQ(0, run({"--version"}).status);
  EXPECT_EQ(0U, run({"--version"}).out.find("vqc "));
}

}  // namespace
