#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "generate/generate_support.h"

// Several documents in a process: what is done with one leaves the others as they are.

namespace {

std::string text_of(int number) {
  const std::string n = std::to_string(number);
  return "VQconfig widget 'W" + n + "' { resource_definitions='r', 'P" + n + "', 'p" + n + "', True; } page 'p" + n +
         "' popup 'P" + n + "' {} family 'F" + n + "' { widget='W" + n + "' popup='P" + n + "' page='p" + n + "' }";
}

/// A document that has been read, and what is generated from it.
class Loaded {
 public:
  explicit Loaded(int number) : number_(std::to_string(number)) {
    Diagnostics findings;
    EXPECT_TRUE(load(Source::from_text(text_of(number)), document_, findings).has_header);
    EXPECT_TRUE(findings.empty());
  }

  void change() { document_.ensure(document_.families.head()->widgets, document_.widgets, document_.keep("Changed")); }

  /// Its own names, at its own places, and nothing of another document.
  void expect_own(bool changed) const {
    StringSink out;
    generate(document_, all_families(document_), CONFIG_FILE, {}, out);
    EXPECT_TRUE(out.finish());
    EXPECT_NE(std::string::npos, out.text().find("\t{r, (XrmQuark) 0, &(popups[0]),5, True,")) << out.text();
    EXPECT_NE(std::string::npos,
              out.text().find("char *xw_family_names[] = {\n\t\"F" + number_ + "\",\n\t(char *) 0\n"));
    EXPECT_EQ(changed, out.text().find("&xw_Changed") != std::string::npos);
  }

 private:
  std::string number_;
  Document document_;
};

void work() {
  Loaded kept(0);
  for (int number = 1; number < 40; ++number) {
    Loaded passing(number);
    if (number % 2) passing.change();
    passing.expect_own(number % 2 != 0);
    kept.expect_own(number > 20);
    if (number == 20) kept.change();
  }
}

TEST(Documents, AreLoadedChangedGeneratedAndDestroyedInTurns) { work(); }

TEST(Documents, OfTwoThreadsAreLoadedChangedGeneratedAndDestroyed) {
  std::thread other(work);
  work();
  other.join();
}

}  // namespace
