#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <string>

#include "support/files.h"

// The resource files of all languages say the same things.

namespace {

using Texts = std::map<std::string, std::string>;

/// What a resource file says of each resource, by what stands before the colon.
Texts texts_of(const std::string& language) {
  static const std::regex line(R"re((?:^|\n)\*([\w.]+):[ \t]*((?:[^\n\\]|\\.|\\\n)*))re");
  const std::string file = read_file(SOURCE_ROOT "/resources/X11/" + language + "app-defaults/VQconfig");
  Texts texts;
  for (std::sregex_iterator match(file.begin(), file.end(), line), none; match != none; ++match) {
    texts[(*match)[1]] = (*match)[2];
  }
  return texts;
}

/// The letters after the per-cent signs of a text.
std::string places(const std::string& text) {
  std::string all;
  for (std::size_t i = text.find('%'); i != std::string::npos; i = text.find('%', i + 1)) all += text.substr(i + 1, 1);
  return all;
}

class Translation : public testing::TestWithParam<const char*> {};

TEST_P(Translation, HasAllTextsOfEnglishAndNoOther) {
  const Texts english = texts_of("");
  const Texts translated = texts_of(GetParam());
  EXPECT_LT(100U, english.size());
  for (const auto& [name, text] : english) EXPECT_TRUE(translated.contains(name)) << name << " is missing";
  for (const auto& [name, text] : translated) {
    EXPECT_TRUE(english.contains(name) || name.ends_with(".fontName")) << name << " is not in English";
  }
}

TEST_P(Translation, HasThePlacesOfTheEnglishTexts) {
  const Texts translated = texts_of(GetParam());
  for (const auto& [name, text] : texts_of("")) {
    const auto other = translated.find(name);
    EXPECT_TRUE(other == translated.end() || places(text) == places(other->second)) << name;
  }
}

INSTANTIATE_TEST_SUITE_P(Into, Translation, testing::Values("de/", "fr/", "ja/"),
                         [](const auto& row) { return std::string(row.param, 2); });

}  // namespace
