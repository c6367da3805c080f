#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "check/check_support.h"
#include "support/files.h"

namespace {

// The rules on headers, which look for files.

const char* const kHeaders =
    "VQconfig widget W { include_filename=<'w.h'> largeicon='i' largeiconheader=<'i.xbm'> } "
    "family F { widget=W header=<'h.h'> cheader=<'c.h'> family_header='f.h' header='w.h' }";

TEST(Headers, AreNotLookedForWithoutFolders) {
  const MarkedText text(kHeaders);
  EXPECT_EQ(Sayings{}, said_about(text.text));
}

TEST(Headers, ThatAreNowhereAreFoundOnceAName) {
  const TemporaryFolder folder;
  EXPECT_EQ((Sayings{"header_not_found: the header 'w.h' is found nowhere",
                     "header_not_found: the header 'i.xbm' is found nowhere",
                     "header_not_found: the header 'h.h' is found nowhere",
                     "header_not_found: the header 'c.h' is found nowhere"}),
            said_at_marks(kHeaders, {{folder.path()}, "/nowhere"}));
}

TEST(Headers, MayBeInAnyOfTheFoldersOrBesideTheDocument) {
  const TemporaryFolder first;
  const TemporaryFolder second;
  const TemporaryFolder document;
  first.with("w.h", "");
  second.with("i.xbm", "");
  second.with("h.h", "");
  document.with("c.h", "");
  const MarkedText text(kHeaders);
  EXPECT_EQ(Sayings{}, said_about(text.text, {{first.path(), second.path()}, document.path()}));
}

TEST(Headers, AreLookedForByTheNameThatComesOut) {
  const TemporaryFolder folder;
  folder.with("50%.h", "");
  EXPECT_EQ(Sayings{}, said_about("VQconfig family F { header='50%%.h' }", {{folder.path()}, "/nowhere"}));
}

TEST(Headers, AreNoFolders) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "h");
  EXPECT_EQ((Sayings{"header_not_found: the header 'h' is found nowhere"}),
            said_about("VQconfig family F { header='h' }", {{folder.path()}, "/nowhere"}));
}

TEST(Headers, InTheWorkingFolderAreNoted) {
  const TemporaryFolder folder;
  folder.with("h.h", "");
  folder.with("c.h", "");
  folder.with("f.h", "");
  const WorkingFolder here(folder.path());
  const std::string marked = "VQconfig header <h.h> family F { header=h.h cheader=<c.h> family_header=f.h }";
  EXPECT_EQ((Sayings{"header_in_working_folder: the header 'h.h' is in the working folder",
                     "header_in_working_folder: the header 'c.h' is in the working folder"}),
            said_at_marks(marked, {{"."}, ""}));
  EXPECT_EQ(Sayings{}, said_about(MarkedText(marked).text));
  EXPECT_FALSE(kind_of(FindingId::header_in_working_folder).shown);
}

}  // namespace
