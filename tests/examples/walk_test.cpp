#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/command/process.h"
#include "tests/examples/example_program.h"
#include "tests/paths.h"

namespace command_test {
namespace {

using testing::HasSubstr;

/// The kept output of the example. After an intended change `scripts/renew-goldens` writes it
/// again; review the difference before you commit it.
TEST(WalkExampleGolden, PrintsWhatIsKeptOfTheHouse) {
  const Outcome run = RunExample("walk", {"house.ifc"});
  ASSERT_EQ(run.status, 0) << run.err;
  const std::string path =
      std::string(KelIFC::kSourceDir) + "/tests/examples/golden/house.walk.txt";
  if (std::getenv("KELIFC_RENEW_GOLDENS") != nullptr) {
    WriteFile(path, run.out);
    GTEST_SKIP() << "renewed " << path;
  }
  EXPECT_EQ(run.out, ReadFile(path));
}

TEST(WalkExample, ReachesEachKindOfObject) {
  const Outcome run = RunExample("walk", {"hall.ifc"});
  ASSERT_EQ(run.status, 0) << run.err;
  for (const char* kind :
       {"\nStorey ", "\nColumn ", "\nBeam ", "\n  face 1 2 3", "\nWall ", "\n  Window ",
        "\n  Door ", "\nPlate ", "\n  Hole ", "\nFoot ", "\nSection "}) {
    EXPECT_THAT(run.out, HasSubstr(kind));
  }
}

TEST(WalkExample, ReportsWhyItCannotLoad) {
  const Outcome run = RunExample("walk", {"missing.ifc"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "missing.ifc was not found or cannot be opened.\n");
}

}  // namespace
}  // namespace command_test
