#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "check/check_support.h"
#include "support/files.h"
#include "vqc/cmd/generate/generate.h"

namespace {

// Every kind of finding, by its example and its cure.

const std::string kRoot = std::string(TEST_DATA) + "/..";

/// A folder with the headers that the documents include, and a working folder with one of them.
class FindingKinds : public testing::Test {
 protected:
  FindingKinds() {
    std::filesystem::create_directory(headers_ / "acme");
    headers_.with("acme/Knob.h",
                  "#include <X11/Intrinsic.h>\nextern WidgetClass acmeKnobWidgetClass, acmeDialWidgetClass;\n");
    headers_.with("acme/knob.xbm",
                  "#define knob_width 8\n#define knob_height 1\nstatic unsigned char knob_bits[] = {0};\n");
    for (const TemporaryFolder* folder : {&headers_, &working_}) folder->with("Knob.h", "");
  }

  /// What is said when nobody asks for more, and when somebody asks for this kind.
  std::vector<std::string> said_of(std::string_view text, const FindingKind& kind) const {
    CheckOptions options{{}, working_.path()};
    if (std::string_view(kind.name).starts_with("header_")) options.include_folders = {headers_.path()};
    std::vector<std::string> names;
    for (const Finding& finding : Checked(text, options).findings) {
      const FindingKind& found = kind_of(finding.id);
      if (found.shown || std::string_view(found.name) == kind.name) names.emplace_back(found.name);
    }
    return names;
  }

  /// Whether the C that is generated from a document compiles without a warning.
  bool compiles(std::string_view text) const {
    const Checked document(text);
    std::string command = std::string(C_COMPILER) + " -std=gnu17 -Werror -fsyntax-only -I" + headers_.path() + " -I" +
                          kRoot + "/examples/runtime";
    for (const int kind : {CONFIG_FILE, CODE_FILE, STUBS_FILE}) {
      StringSink out;
      generate(document.document, all_families(document.document), kind, {}, out);
      out.finish();
      command += " " + working_.with(std::to_string(kind) + ".c", out.text());
    }
    return std::system((command + " 2>" + working_ / "messages").c_str()) == 0;
  }

 private:
  TemporaryFolder headers_;
  TemporaryFolder working_;
  WorkingFolder here_{working_.path()};
};

TEST_F(FindingKinds, AreWhatTheirExamplesHaveAndNothingElse) {
  for (const FindingKind& kind : finding_kinds()) {
    EXPECT_EQ((std::vector<std::string>{kind.name}), said_of(kind.example, kind)) << kind.example;
  }
}

TEST_F(FindingKinds, AreGoneFromTheirCures) {
  for (const FindingKind& kind : finding_kinds()) {
    EXPECT_EQ(std::vector<std::string>{}, said_of(kind.cure, kind)) << kind.name << "\n" << kind.cure;
  }
}

TEST_F(FindingKinds, AreExplained) {
  for (const FindingKind& kind : finding_kinds()) {
    EXPECT_TRUE(std::string_view(kind.explanation).ends_with('.')) << kind.name;
  }
}

TEST_F(FindingKinds, OnCForeseeTheCompiler) {
  for (const FindingId id :
       {FindingId::no_identifier, FindingId::c_keyword, FindingId::empty_family_init,
        FindingId::no_beginning_of_identifiers, FindingId::no_expression, FindingId::quotes_in_quoted_expression,
        FindingId::unquotable_text, FindingId::comment_ended_by_name, FindingId::missing_code_symbol,
        FindingId::missing_to_name, FindingId::name_twice_in_c, FindingId::icon_without_header,
        FindingId::icon_header_twice}) {
    EXPECT_FALSE(compiles(kind_of(id).example)) << kind_of(id).example;
    EXPECT_TRUE(compiles(kind_of(id).cure)) << kind_of(id).cure << read_file("messages");
  }
}

TEST(Examples, HaveNothingToBeFound) {
  for (const char* name : {"Athena.vqc", "tour.vqc", "dial/Dial.vqc"}) {
    const std::filesystem::path path = kRoot + "/examples/" + name;
    EXPECT_EQ(Sayings{}, said_about(read_file(path), {{}, path.parent_path()})) << name;
  }
}

TEST(Examples, FindTheirOwnHeaders) {
  const std::string examples = kRoot + "/examples";
  EXPECT_EQ(Sayings{}, said_about(read_file(examples + "/dial/Dial.vqc"), {{"/nowhere"}, examples + "/dial"}));
}

}  // namespace
