#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <string>

#include "generate/edited_stubs.h"
#include "generate/generate_support.h"
#include "vqc/cmd/generate/keep_stubs.h"

using namespace vqc;

// Random stubs files, edited as people do, whose documents change.

namespace {

constexpr unsigned kFiles = 400;
constexpr unsigned kCompiled = 30;  // of them

class EditedStubs : public GenerateTest {
 protected:
  void become(const RandomDocument& random) {
    document.clear();
    describe_bare(random.items());
  }

  KeptStubs keep(const std::string& old) const { return keep_stubs(document, families(), {}, old); }
};

using Count = std::map<std::string, int>;

Count count_lines(std::string_view text) {
  Count count;
  for (const std::string& line : lines_of(text)) ++count[line];
  return count;
}

/// Every line with a person's word, and every other line that is not in the fresh file, is still there as often.
void expect_lines_kept(const std::string& old, const std::string& fresh, const std::string& kept) {
  const Count in_fresh = count_lines(fresh);
  const Count in_kept = count_lines(kept);
  for (const auto& [line, times] : count_lines(old)) {
    if (in_fresh.contains(line)) continue;
    const auto found = in_kept.find(line);
    EXPECT_LE(times, found == in_kept.end() ? 0 : found->second) << "lost: " << line;
  }
}

/// Those lines of a text which another one has too and which have a person's word, each where it is first.
std::vector<std::string> own_lines(std::string_view text, const std::string& other) {
  const Count in_other = count_lines(other);
  std::vector<std::string> own;
  std::set<std::string> seen;
  for (const std::string& line : lines_of(text)) {
    const bool is_own = line.find("mine_") != std::string::npos && in_other.contains(line);
    if (is_own && seen.insert(line).second) own.push_back(line);
  }
  return own;
}

/// What blocks is about one of these procedures.
void expect_reason(const KeptStubs& result, const std::set<std::string>& unclear) {
  for (const StubsMessage& message : result.messages) {
    if (!message.blocks) continue;
    const auto is_about = [&](const std::string& name) {
      return message.words.find("'" + name + "'") != std::string::npos;
    };
    EXPECT_TRUE(std::ranges::any_of(unclear, is_about)) << message.line << ' ' << message.words;
  }
}

/// Whether the compiler takes all files of a folder.
bool compiles(const TemporaryFolder& folder) {
  const std::string command =
      "cc -std=gnu17 -w -fsyntax-only -I'" TEST_DATA "/../examples/runtime' '" + folder.path() + "'/*.c";
  return std::system(command.c_str()) == 0;
}

TEST_F(EditedStubs, LoseNoLineAndStayTheSameWhenTheDocumentDoes) {
  int changed = 0;
  for (unsigned seed = 0; seed < kFiles; ++seed) {
    Dice dice(seed);
    become(RandomDocument::make(dice));
    const std::string fresh = file(STUBS_FILE);
    const Person person(dice, fresh);
    const KeptStubs same = keep(person.file());
    EXPECT_EQ(person.file(), same.text.value_or("blocked"));
    become(RandomDocument::make(dice));
    const KeptStubs kept = keep(person.file());
    expect_reason(kept, person.unclear());
    if (!kept.text) continue;
    ++changed;
    expect_lines_kept(person.file(), fresh, *kept.text);
    EXPECT_EQ(own_lines(person.file(), *kept.text), own_lines(*kept.text, person.file()));
    EXPECT_EQ(*kept.text, keep(*kept.text).text.value_or("blocked"));
    if (HasFailure()) FAIL() << "seed " << seed << "\n--- old\n" << person.file() << "\n--- kept\n" << *kept.text;
  }
  EXPECT_LT(kFiles / 3, static_cast<unsigned>(changed)) << "too few can be kept to tell anything";
}

TEST_F(EditedStubs, AreAsTheyWereWhenAllProceduresAreNamedAgain) {
  int retired = 0;
  for (unsigned seed = 0; seed < kFiles; ++seed) {
    Dice dice(seed);
    const RandomDocument first = RandomDocument::make(dice);
    become(first);
    const Person person(dice, file(STUBS_FILE));
    become(first.smaller(dice));
    const KeptStubs without = keep(person.file());
    expect_reason(without, person.unclear());
    if (!without.text) continue;
    retired += without.retired;
    become(first);
    EXPECT_EQ(person.file(), keep(*without.text).text.value_or("blocked")) << "seed " << seed;
    if (HasFailure()) FAIL() << "seed " << seed << "\n--- without\n" << *without.text;
  }
  EXPECT_LT(kFiles / 3, static_cast<unsigned>(retired));
}

TEST_F(EditedStubs, CompileAsTheyDid) {
  const TemporaryFolder before;
  const TemporaryFolder after;
  for (unsigned seed = 0; seed < kCompiled; ++seed) {
    Dice dice(seed);
    become(RandomDocument::make(dice));
    const Person person(dice, file(STUBS_FILE));
    const std::string name = std::to_string(seed) + ".c";
    static_cast<void>(before.with(name, person.file()));
    become(RandomDocument::make(dice));
    const KeptStubs kept = keep(person.file());
    if (kept.text) static_cast<void>(after.with(name, *kept.text));
  }
  ASSERT_TRUE(compiles(before));
  EXPECT_TRUE(compiles(after));
}

}  // namespace
