#include "vqc/cmd/generate/walk.h"

#include <gtest/gtest.h>

#include <string>

#include "generate/generate_support.h"
#include "vqc/cmd/generate/name_set.h"

using namespace vqc;

namespace {

/// What a template makes of values.
template <class Emit>
std::string emitted(Emit emit_to) {
  StringSink out;
  emit_to(out);
  EXPECT_TRUE(out.finish());
  return out.text();
}

TEST(Emit, PutsValuesInPlaceOfNames) {
  EXPECT_EQ("{50%, 7, True,\t-}\n", emitted([](Sink& out) {
              emit<"{@NAME@, @NUMBER@, @FLAG@,\t@WORD@}\n">(out, bind<"NAME">(printed("50%%")), bind<"NUMBER">(7),
                                                            bind<"FLAG">(true), bind<"WORD">(ours("-")));
            }));
}

TEST(Emit, BeginsAndEndsWithValues) {
  EXPECT_EQ("ab", emitted([](Sink& out) { emit<"@A@@B@">(out, bind<"A">(ours("a")), bind<"B">(ours("b"))); }));
  EXPECT_EQ("", emitted([](Sink& out) { emit<"">(out); }));
}

TEST(Emit, TakesValuesInAnyOrder) {
  EXPECT_EQ("1 2 3", emitted([](Sink& out) { emit<"@A@ @B@ @C@">(out, bind<"C">(3), bind<"A">(1), bind<"B">(2)); }));
}

TEST(Emit, PutsAValueWhereverItsNameStands) {
  EXPECT_EQ("x 1 x\n1x", emitted([](Sink& out) {
              emit<"@NAME@ @N@ @NAME@\n@N@@NAME@">(out, bind<"N">(1), bind<"NAME">(ours("x")));
            }));
}

TEST(Emit, TellsNamesApartOfWhichOneBeginsAnother) {
  EXPECT_EQ("12", emitted([](Sink& out) { emit<"@AB@@A@">(out, bind<"A">(2), bind<"AB">(1)); }));
}

TEST(Emit, DoesNotLookForNamesInValues) {
  EXPECT_EQ("@B@ @A@",
            emitted([](Sink& out) { emit<"@A@ @B@">(out, bind<"A">(printed("@B@")), bind<"B">(ours("@A@"))); }));
}

TEST(Emit, PrintsTextsOfTheDocument) {
  EXPECT_EQ("x% 0 ", emitted([](Sink& out) {
              emit<"@A@ @B@ @C@">(out, bind<"A">(printed("x%%", "0")), bind<"B">(printed(nullptr, "0")),
                                  bind<"C">(printed(nullptr)));
            }));
  EXPECT_EQ("<> <%s%n>", emitted([](Sink& out) {
              emit<"<@A@> <@B@>">(out, bind<"A">(printed("", "0")), bind<"B">(printed("%s%n", "0")));
            }));
}

TEST(Emit, QuotesTextsOfTheDocument) {
  EXPECT_EQ("\"x%\" (char *) 0 \"\"", emitted([](Sink& out) {
              emit<"@A@ @B@ @C@">(out, bind<"A">(quoted("x%%", "(char *) 0")), bind<"B">(quoted(nullptr, "(char *) 0")),
                                  bind<"C">(quoted("", "(char *) 0")));
            }));
}

TEST(Emit, VerbatimTextKeepsItsPerCentSigns) {
  EXPECT_EQ("x%% 0 x%%_bits 0", emitted([](Sink& out) {
              emit<"@A@ @B@ @C@ @D@">(out, bind<"A">(verbatim("x%%")), bind<"B">(verbatim(nullptr)),
                                      bind<"C">(verbatim("x%%", "_bits")), bind<"D">(verbatim(nullptr, "_bits")));
            }));
}

TEST(Emit, OurTextsKeepTheirPerCentSigns) {
  EXPECT_EQ("100%% %s", emitted([](Sink& out) { emit<"@A@">(out, bind<"A">(ours("100%% %s"))); }));
}

TEST(Emit, OtherwiseTextsKeepTheirPerCentSigns) {
  EXPECT_EQ("%% %%", emitted([](Sink& out) {
              emit<"@A@ @B@">(out, bind<"A">(printed(nullptr, "%%")), bind<"B">(quoted(nullptr, "%%")));
            }));
}

class EachOnce : public GenerateTest {
 protected:
  /// The aliases that one family's walk visits; a repeat with a star.
  Names visited(const ::Run& run, Done& done, const char* name, bool write_repeats) const {
    Names names;
    const Family& family = *document.families.find(name);
    each_once(family.aliases, done, write_repeats, Heading(run, family, "T"), [&](const AliasDef& alias, bool repeat) {
      names.push_back(std::string(alias.name.view()) + (repeat ? "*" : ""));
    });
    return names;
  }
};

TEST_F(EachOnce, LeavesOutOrMarksRepeats) {
  describe("family 'F' { alias='a' alias='b' } family 'G' { alias='b' alias='c' }");
  StringSink out;
  const ::Run run{document, {}, {}, out};
  for (const bool write_repeats : {false, true}) {
    Done done;
    EXPECT_EQ((Names{"a", "b"}), visited(run, done, "F", write_repeats));
    EXPECT_EQ(write_repeats ? Names({"b*", "c"}) : Names({"c"}), visited(run, done, "G", write_repeats));
  }
}

TEST_F(EachOnce, ShowsTheHeadingBeforeTheFirstVisitOnly) {
  describe("family 'F' { alias='a' alias='b' } family 'G' { alias='a' }");
  EXPECT_EQ("/*\n** T\n*/\n\n/* Family: F */\n", emitted([&](Sink& out) {
              const ::Run run{document, {}, {.comment = true}, out};
              Done done;
              visited(run, done, "F", false);
              visited(run, done, "G", false);
            }));
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

TEST(Numbering, GivesPlacesInTurn) {
  Numbering numbers;
  EXPECT_EQ(-1, numbers.of("a"));
  EXPECT_EQ(0, numbers.add("a"));
  EXPECT_EQ(1, numbers.add("b"));
  EXPECT_EQ(0, numbers.of("a"));
  EXPECT_EQ(1, numbers.of("b"));
  EXPECT_EQ(-1, numbers.of("c"));
  EXPECT_EQ(-1, numbers.of(nullptr));
}

}  // namespace
