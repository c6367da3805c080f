#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "support/files.h"

namespace {

using Texts = std::map<std::string, std::string>;

/// The texts of a resource file, by the names of their resources. Continuation lines are not for texts.
Texts texts_of(const std::string& file) {
  Texts texts;
  std::istringstream lines(read_file(std::string(RESOURCE_FILES) + "/" + file));
  for (std::string line; std::getline(lines, line);) {
    const std::size_t colon = line.find(':');
    if (line.starts_with('!') || line.starts_with('#') || colon == std::string::npos) continue;
    texts[line.substr(0, colon)] = line.substr(std::min(colon + 2, line.size()));
  }
  return texts;
}

int places_in(const std::string& text) {
  int count = 0;
  for (std::size_t at = text.find("%s"); at != std::string::npos; at = text.find("%s", at + 1)) ++count;
  return count;
}

class Translation : public testing::TestWithParam<const char*> {};

TEST_P(Translation, HasEveryTextWithTheSamePlaces) {
  const Texts english = texts_of("app-defaults/Vqhelp");
  const Texts translated = texts_of(std::string(GetParam()) + "/app-defaults/Vqhelp");
  EXPECT_LT(15U, english.size());
  for (const auto& [name, text] : english) {
    ASSERT_TRUE(translated.contains(name)) << name;
    EXPECT_EQ(places_in(text), places_in(translated.at(name))) << name;
    EXPECT_EQ(text.empty(), translated.at(name).empty()) << name;
  }
}

TEST_P(Translation, LeavesTheLastWordToTheUser) {
  for (const auto& [name, text] : texts_of(std::string(GetParam()) + "/app-defaults/Vqhelp"))
    EXPECT_TRUE(name.starts_with('*')) << name << " would win over the user's own *" << name;
}

INSTANTIATE_TEST_SUITE_P(Languages, Translation, testing::Values(".", "de", "fr", "ja"));

}  // namespace
