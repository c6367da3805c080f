#include "vqc/cmd/generate/walk.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "generate/generate_support.h"
#include "vqc/cmd/generate/file_finder.h"
#include "vqc/cmd/generate/name_set.h"

namespace {

/// What a template makes of values.
template <class Emit>
std::string emitted(Emit emit_to) {
  const TemporaryFolder folder;
  const auto out = openfile((folder / "out").c_str(), "w");
  emit_to(*out);
  EXPECT_EQ(1, closefile(*out));
  return read_file(folder / "out");
}

TEST(Emit, PutsValuesInPlaceOfNames) {
  const Text name = "50%%";
  EXPECT_EQ("{50%, 7, True,\t-}\n",
            emitted([&](Stream& out) { emit<"{@NAME@, @NUMBER@, @FLAG@,\t@WORD@}\n">(out, name, 7, true, "-"); }));
}

TEST(Emit, BeginsAndEndsWithValues) {
  EXPECT_EQ("ab", emitted([](Stream& out) { emit<"@A@@B@">(out, "a", "b"); }));
  EXPECT_EQ("", emitted([](Stream& out) { emit<"">(out); }));
}

TEST(Emit, NullHasAFallback) {
  const Text null;
  const Text x = "x%%";
  EXPECT_EQ(
      "0 x% (char *) 0 \"x%\"", emitted([&](Stream& out) {
        emit<"@A@ @B@ @C@ @D@">(out, Or{null, "0"}, Or{x, "0"}, Quoted{null, "(char *) 0"}, Quoted{x, "(char *) 0"});
      }));
}

TEST(Emit, VerbatimTextKeepsItsPerCentSigns) {
  EXPECT_EQ("x%% 0 x%%_bits 0", emitted([](Stream& out) {
              emit<"@A@ @B@ @C@ @D@">(out, Verbatim{"x%%"}, Verbatim{nullptr}, Suffixed{"x%%", "_bits"},
                                      Suffixed{nullptr, "_bits"});
            }));
}

class EachOnce : public GenerateTest {
 protected:
  /// The aliases that one family's walk visits; a repeat with a star.
  static std::vector<std::string> visited(::Run& run, const char* family, bool write_repeats) {
    std::vector<std::string> names;
    const Heading heading(run, *family_ptr(family), "T");
    each_once(family_ptr(family)->aliases, write_repeats, heading, [&](AliasDef& alias, bool repeat) {
      names.push_back(std::string(alias.name.view()) + (repeat ? "*" : ""));
    });
    return names;
  }
};

TEST_F(EachOnce, LeavesOutOrMarksRepeats) {
  document("family 'F' { alias='a' alias='b' } family 'G' { alias='b' alias='c' }");
  emitted([](Stream& out) {
    ::Run run{out, false, false};
    for (const bool write_repeats : {false, true}) {
      clear_done(alias_pool);
      EXPECT_EQ((Names{"a", "b"}), visited(run, "F", write_repeats));
      EXPECT_EQ(write_repeats ? Names({"b*", "c"}) : Names({"c"}), visited(run, "G", write_repeats));
    }
  });
}

TEST_F(EachOnce, ShowsTheHeadingBeforeTheFirstVisitOnly) {
  document("family 'F' { alias='a' alias='b' } family 'G' { alias='a' }");
  EXPECT_EQ("/*\n** T\n*/\n\n/* Family: F */\n", emitted([](Stream& out) {
              ::Run run{out, true, false};
              clear_done(alias_pool);
              visited(run, "F", false);
              visited(run, "G", false);
            }));
}

TEST(FileFinder, FindsWhatTheSystemWouldFind) {
  const TemporaryFolder folder;
  const std::string file = folder.with("File.h", "");
  std::filesystem::create_directory(folder / "sub");
  std::filesystem::create_symlink("File.h", folder / "link.h");
  std::filesystem::create_symlink("missing", folder / "dangling.h");
  const std::string paths[] = {file,
                               folder / "file.h",
                               folder / "link.h",
                               folder / "dangling.h",
                               folder / "sub",
                               folder / "sub/",
                               folder / "sub/../File.h",
                               folder / "File.h/",
                               folder / "missing/File.h",
                               folder / "//File.h",
                               folder.path(),
                               folder / ".",
                               folder / "..",
                               "",
                               "/",
                               "."};
  FileFinder finder;
  for (int round = 0; round < 50; ++round) {  // often enough that it begins to list folders
    for (const std::string& path : paths)
      EXPECT_EQ(access(path.c_str(), F_OK) == 0, finder.exists(path.c_str())) << path;
  }
}

TEST(NameSet, TakesEachNameOnceAndNoEmptyOne) {
  NameSet names;
  EXPECT_TRUE(names.add("a"));
  EXPECT_FALSE(names.add("a"));
  EXPECT_FALSE(names.add(""));
  EXPECT_FALSE(names.add(nullptr));
  EXPECT_TRUE(names.add("b"));
  EXPECT_TRUE(names.contains("a"));
  EXPECT_FALSE(names.contains("c"));
}

}  // namespace
