#include <gtest/gtest.h>

#include "application/run_program.h"

// What the editor offers to code that is loaded into it.

namespace {

class Links : public ProgramTest {};

TEST_F(Links, AllAreFoundByNameInTheEditor) {
  program = EDITOR_PROGRAM;
  const std::vector<std::string> finder = {std::string("LD_PRELOAD=") + LINK_FINDER,
                                           "ASAN_OPTIONS=verify_asan_link_order=0"};
  EXPECT_EQ((Outcome{0, "", ""}), run({}, {.environment = finder}));
}

}  // namespace
