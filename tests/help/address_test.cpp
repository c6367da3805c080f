#include "help/viewer/address.h"

#include <gtest/gtest.h>

using namespace help;

namespace {

const std::string here = "/help/C/page.html";

TEST(Link, LeadsToAFileBesideThePage) {
  EXPECT_EQ((Address{"/help/C/other.html"}), resolve_link(here, "other.html"));
  EXPECT_EQ((Address{"/help/C/local/x.html"}), resolve_link(here, "./local/x.html"));
  EXPECT_EQ((Address{"/help/de/page.html"}), resolve_link(here, "../de/page.html"));
}

TEST(Link, LeadsToAPlace) {
  EXPECT_EQ((Address{here, "top"}), resolve_link(here, "#top"));
  EXPECT_EQ((Address{"/help/C/other.html", "a b"}), resolve_link(here, "other.html#a%20b"));
  EXPECT_EQ((Address{here}), resolve_link(here, ""));
}

TEST(Link, HasItsEscapesUndone) {
  EXPECT_EQ((Address{"/help/C/a b#c?d%.html"}), resolve_link(here, "a%20b%23c%3Fd%25.html"));
  EXPECT_EQ((Address{"/help/C/100%.html"}), resolve_link(here, "100%.html"));
  EXPECT_EQ((Address{"/help/C/%zz%0%00"}), resolve_link(here, "%zz%0%00"));
}

TEST(Link, MayHoldWhatAShellWouldRun) {
  EXPECT_EQ((Address{"/help/C/$(touch x)`y`'\";.html"}), resolve_link(here, "$(touch x)`y`'\";.html"));
}

TEST(Link, LosesItsQuery) { EXPECT_EQ((Address{"/help/C/x.html", "y"}), resolve_link(here, "x.html?a=b#y")); }

TEST(Link, MayLeadAway) {
  for (const char* link :
       {"http://www.example.org/", "HTTPS://x", "mailto:x@y", "file:x.html", "/etc/passwd", "//host/x", "exec:ls"}) {
    EXPECT_EQ(std::nullopt, resolve_link(here, link)) << link;
  }
}

TEST(Link, MayHoldAColonBehindASlash) {
  EXPECT_EQ((Address{"/help/C/a:b.html"}), resolve_link(here, "./a:b.html"));
  EXPECT_EQ((Address{here, "a:b"}), resolve_link(here, "#a:b"));
}

TEST(Link, WorksFromAPageWithoutAFolder) { EXPECT_EQ((Address{"b.html"}), resolve_link("a.html", "b.html")); }

}  // namespace
