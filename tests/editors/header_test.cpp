#include <gtest/gtest.h>

#include "support/edited_document.h"

using namespace vqc;

namespace {

class HeaderKinds : public EditedDocumentTest {};

TEST_F(HeaderKinds, HavePoolsOfTheirOwn) {
  codeheader_add("code.h");
  familyheader_add("family.h");
  confheader_add("config.h");
  EXPECT_EQ(Names{"code.h"}, names_in(code_header_pool.list()));
  EXPECT_EQ(Names{"family.h"}, names_in(family_header_pool.list()));
  EXPECT_EQ(Names{"config.h"}, names_in(config_header_pool.list()));
}

TEST_F(HeaderKinds, HaveListsOfTheirOwnInAFamily) {
  Family* family = new_family("F");
  codeheaderlist_add("code.h", family);
  familyheaderlist_add("family.h", family);
  confheaderlist_add("config.h", family);
  EXPECT_EQ(Names{"code.h"}, names_in(family->code_headers));
  EXPECT_EQ(Names{"family.h"}, names_in(family->family_headers));
  EXPECT_EQ(Names{"config.h"}, names_in(family->config_headers));
}

TEST_F(HeaderKinds, MayHoldTheSameName) {
  Family* family = new_family("F");
  codeheaderlist_add("a.h", family);
  familyheaderlist_add("a.h", family);
  confheaderlist_add("a.h", family);
  codeheaderlist_delete(family, "a.h");
  EXPECT_EQ(nullptr, codeheader_ptr("a.h"));
  EXPECT_NE(nullptr, familyheader_ptr("a.h"));
  EXPECT_NE(nullptr, confheader_ptr("a.h"));
}

}  // namespace
