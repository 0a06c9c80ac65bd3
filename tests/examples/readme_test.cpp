#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/command/process.h"
#include "tests/examples/document.h"

namespace document_test {
namespace {

using testing::Contains;

TEST(Readme, ShowsProgramsThatShip) {
  const std::vector<std::string> programs = BlocksOf(ReadSource("README.md"), "cpp");
  EXPECT_EQ(programs.size(), 3U);
  for (const char* example : {"read", "build", "entities"}) {
    EXPECT_THAT(programs, Contains(ReadSource("examples/" + std::string(example) + "/main.cpp")));
  }
}

TEST(Readme, ShowsWhatTheCommandPrints) {
  const command_test::Outcome run = command_test::Kelifc({"structure", "house.ifc"});
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(BlocksOf(ReadSource("README.md"), "text"),
              Contains("$ kelifc structure examples/house.ifc\n" + run.out));
}

}  // namespace
}  // namespace document_test
