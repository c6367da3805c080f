#include "vqc/cmd/model/c_names.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

using namespace vqc;

namespace {

std::string base_of(const char* name, std::size_t index) {
  Family family;
  family.name = name;
  return identifier_base(family, index);
}

TEST(IdentifierBase, IsANameOfLettersAndUnderscores) {
  EXPECT_EQ("Motif", base_of("Motif", 3));
  EXPECT_EQ("my_set", base_of("my_set", 0));
}

TEST(IdentifierBase, EndsBeforeAnyOtherCharacterWithTheNumberOfTheFamily) {
  EXPECT_EQ("My_2", base_of("My Widgets", 2));
  EXPECT_EQ("Xm_0", base_of("Xm2", 0));
  EXPECT_EQ("_11", base_of("2nd", 11));
}

}  // namespace
