#include "help/viewer/address.h"

#include <gtest/gtest.h>

namespace {

const std::string here = "/help/C/page.html";

TEST(Link, LeadsToAFileBesideThePage) {
  EXPECT_EQ((Address{"/help/C/other.html"}), target_of(here, "other.html"));
  EXPECT_EQ((Address{"/help/C/local/x.html"}), target_of(here, "./local/x.html"));
  EXPECT_EQ((Address{"/help/de/page.html"}), target_of(here, "../de/page.html"));
}

TEST(Link, LeadsToAPlace) {
  EXPECT_EQ((Address{here, "top"}), target_of(here, "#top"));
  EXPECT_EQ((Address{"/help/C/other.html", "a b"}), target_of(here, "other.html#a%20b"));
  EXPECT_EQ((Address{here}), target_of(here, ""));
}

TEST(Link, HasItsEscapesUndone) {
  EXPECT_EQ((Address{"/help/C/a b#c?d%.html"}), target_of(here, "a%20b%23c%3Fd%25.html"));
  EXPECT_EQ((Address{"/help/C/100%.html"}), target_of(here, "100%.html"));
  EXPECT_EQ((Address{"/help/C/%zz%0%00"}), target_of(here, "%zz%0%00"));
}

TEST(Link, MayHoldWhatAShellWouldRun) {
  EXPECT_EQ((Address{"/help/C/$(touch x)`y`'\";.html"}), target_of(here, "$(touch x)`y`'\";.html"));
}

TEST(Link, LosesItsQuery) { EXPECT_EQ((Address{"/help/C/x.html", "y"}), target_of(here, "x.html?a=b#y")); }

TEST(Link, MayLeadAway) {
  for (const char* link :
       {"http://www.example.org/", "HTTPS://x", "mailto:x@y", "file:x.html", "/etc/passwd", "//host/x", "exec:ls"}) {
    EXPECT_EQ(std::nullopt, target_of(here, link)) << link;
  }
}

TEST(Link, MayHoldAColonBehindASlash) {
  EXPECT_EQ((Address{"/help/C/a:b.html"}), target_of(here, "./a:b.html"));
  EXPECT_EQ((Address{here, "a:b"}), target_of(here, "#a:b"));
}

TEST(Link, WorksFromAPageWithoutAFolder) { EXPECT_EQ((Address{"b.html"}), target_of("a.html", "b.html")); }

}  // namespace
