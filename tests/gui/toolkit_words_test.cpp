#include <gtest/gtest.h>

#include <X11/Intrinsic.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "vqc/cmd/application/toolkit_words.h"

using namespace vqc;

// The words that vqconfig leaves to the toolkit are those that the toolkit takes.

namespace {

class ToolkitWords : public testing::Test {
 protected:
  ToolkitWords() {
    XtToolkitInitialize();
    context_ = XtCreateApplicationContext();
  }
  ~ToolkitWords() override { XtDestroyApplicationContext(context_); }

  /// Whether opening a display leaves less of the command line: the word and another, which is a value for any option.
  bool are_taken(std::string word) const {
    std::string name = "vqconfig";
    std::string value = std::getenv("DISPLAY");
    char* argv[] = {name.data(), word.data(), value.data(), nullptr};
    int argc = 3;
    Display* opened = XtOpenDisplay(context_, nullptr, name.c_str(), "VQconfig", nullptr, 0, &argc, argv);
    EXPECT_NE(nullptr, opened);
    if (opened) XtCloseDisplay(opened);
    return argc < 3;
  }

  /// Whether vqconfig takes it for one of the toolkit's.
  static bool are_expected(std::string word) {
    std::string name = "vqconfig";
    char* argv[] = {name.data(), word.data(), nullptr};
    return has_toolkit_words(2, argv);
  }

 private:
  XtAppContext context_;
};

TEST_F(ToolkitWords, AreAllOptionsOfTheToolkitAndTheirUnambiguousBeginnings) {
  for (const std::string option : {"+rv",
                                   "+synchronous",
                                   "-background",
                                   "-bd",
                                   "-bg",
                                   "-bordercolor",
                                   "-borderwidth",
                                   "-bw",
                                   "-display",
                                   "-fg",
                                   "-fn",
                                   "-font",
                                   "-foreground",
                                   "-geometry",
                                   "-iconic",
                                   "-name",
                                   "-reverse",
                                   "-rv",
                                   "-selectionTimeout",
                                   "-synchronous",
                                   "-title",
                                   "-xnllanguage",
                                   "-xrm",
                                   "-xtsessionID"}) {
    EXPECT_TRUE(are_expected(option)) << option;
    for (std::size_t length = 0; length <= option.size(); ++length) {
      const std::string word = option.substr(0, length);
      EXPECT_EQ(are_taken(word), are_expected(word)) << word;
    }
    EXPECT_EQ(are_taken(option + "s"), are_expected(option + "s")) << option;
  }
}

TEST_F(ToolkitWords, AreNoOtherWords) {
  for (const char* word : {"",         "-",        "+",          "-c",      "-C",      "-s",      "-j",   "-m",
                           "-x",       "-cCs",     "-xs",        "-sx",     "-q",      "--help",  "--",   "=80x24",
                           "-Display", "-DISPLAY", "athena.vqc", "display", "-rotate", "+iconic", "-help"}) {
    EXPECT_FALSE(are_expected(word)) << word;
    EXPECT_FALSE(are_taken(word)) << word;
  }
}

TEST_F(ToolkitWords, OfOneLetterAreFew) {
  for (int sign : {'-', '+'}) {
    for (int letter = 1; letter < 256; ++letter) {
      const std::string word = {static_cast<char>(sign), static_cast<char>(letter)};
      EXPECT_EQ(are_taken(word), are_expected(word)) << word;
    }
  }
}

TEST_F(ToolkitWords, AreFoundAnywhereButInThePlaceOfTheName) {
  const auto found_in = [](std::vector<std::string> words) {
    std::vector<char*> argv;
    for (std::string& word : words) argv.push_back(word.data());
    return has_toolkit_words(static_cast<int>(argv.size()), argv.data());
  };
  EXPECT_TRUE(found_in({"vqconfig", "-iconic", "-c", "w.vqc"}));
  EXPECT_TRUE(found_in({"vqconfig", "-c", "-iconic", "w.vqc"}));
  EXPECT_TRUE(found_in({"vqconfig", "-c", "w.vqc", "-iconic"}));
  EXPECT_FALSE(found_in({"-iconic", "-c", "w.vqc"}));
  EXPECT_FALSE(found_in({"vqconfig"}));
  EXPECT_FALSE(found_in({}));
}

}  // namespace
