#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "house/include_circles.h"
#include "support/files.h"

// No module of the tree includes another that includes it, be it by way of others.

namespace {

Sources all_sources() {
  const std::filesystem::path root = SOURCE_ROOT;
  Sources sources;
  for (const char* folder : {"src", "tests", "bench", "examples"}) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root / folder)) {
      const std::string extension = entry.path().extension();
      if (extension != ".h" && extension != ".def" && extension != ".cpp" && extension != ".c") continue;
      sources[std::filesystem::relative(entry.path(), root)] = read_file(entry.path());
    }
  }
  return sources;
}

TEST(Tree, HasNoCircleOfIncludes) {
  const Sources sources = all_sources();
  const Modules modules = modules_of(sources);
  EXPECT_LT(200U, sources.size()) << "where are the others?";
  EXPECT_TRUE(modules.at("src/vqc/cmd/savefile/reader").contains("src/vqc/cmd/savefile/lexer"));
  EXPECT_TRUE(modules.at("tests/house/circles_test").contains("tests/house/include_circles"));
  EXPECT_EQ(Circle{}, circle_in(modules));
}

TEST(CircleOfIncludes, IsFoundBetweenHeaders) {
  EXPECT_EQ((Circle{"src/a", "src/b", "src/a"}),
            circle_in(modules_of({{"src/a.h", "#include \"b.h\"\n"}, {"src/b.h", "#include \"a.h\"\n"}})));
  EXPECT_EQ((Circle{"src/a", "src/a"}), circle_in(modules_of({{"src/a.h", "#include \"a.h\"\n"}})));
}

TEST(CircleOfIncludes, IsFoundByWayOfASourceAndOfOtherModules) {
  EXPECT_EQ((Circle{"src/x/a", "src/y/b", "src/y/c", "src/x/a"}),
            circle_in(modules_of({{"src/x/a.h", ""},
                                  {"src/x/a.cpp", "#include \"x/a.h\"\n#include \"y/b.h\"\n"},
                                  {"src/y/b.h", "#include \"y/c.h\"\n"},
                                  {"src/y/c.h", ""},
                                  {"src/y/c.cpp", "#include \"x/a.h\"\n"}})));
}

TEST(CircleOfIncludes, IsFoundBehindAModuleThatIsInNone) {
  EXPECT_EQ((Circle{"tests/b", "tests/c", "tests/b"}), circle_in(modules_of({{"tests/a.cpp", "#include \"b.h\"\n"},
                                                                             {"tests/b.h", "#include \"c.h\"\n"},
                                                                             {"tests/c.h", "#include \"b.h\"\n"}})));
}

TEST(CircleOfIncludes, IsNotWhereTwoWaysLeadToOneModule) {
  EXPECT_EQ(Circle{}, circle_in(modules_of({{"src/a.h", "#include \"b.h\"\n#include \"c.h\"\n"},
                                            {"src/b.h", "#include \"c.h\"\n"},
                                            {"src/c.h", "#include <a.h>\n"}})));
}

TEST(CircleOfIncludes, IsToldByWholePaths) {
  EXPECT_EQ(Circle{}, circle_in(modules_of({{"src/x/list.h", "#include \"y/list.h\"\n"}, {"src/y/list.h", ""}})));
  EXPECT_EQ(Circle{}, circle_in(modules_of({{"examples/dial/Dial.c", "#include \"Dial.h\"\n"},
                                            {"examples/dial/Dial.h", ""},
                                            {"examples/other/Dial.h", "#include \"../dial/Dial.h\"\n"}})));
}

}  // namespace
