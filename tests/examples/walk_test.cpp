#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/command/process.h"
#include "tests/paths.h"

namespace command_test {
namespace {

using testing::HasSubstr;

/// Here the command that is run is the example.
Outcome Walk(const std::string& model) { return Kelifc({model}); }

/// What the example prints of a shipped model, kept as a file. `scripts/renew-goldens` writes it
/// anew after a wanted change; read the difference before you commit it.
TEST(WalkExampleGolden, OfTheHouseIsAsKept) {
  const Outcome run = Walk("house.ifc");
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
  const Outcome run = Walk("hall.ifc");
  ASSERT_EQ(run.status, 0) << run.err;
  for (const char* kind :
       {"Storey ", "\nColumn ", "\nBeam ", "\n  face 1, 2, 3", "\nWall ", "\n  Window ",
        "\n  Door ", "\nPlate ", "\n  Hole ", "\nFoot ", "\nSection "}) {
    EXPECT_THAT(run.out, HasSubstr(kind));
  }
}

TEST(WalkExample, TellsThatItCannotLoad) {
  EXPECT_EQ(Walk("missing.ifc").status, 1);
  EXPECT_EQ(Kelifc({}).status, 2);
}

}  // namespace
}  // namespace command_test
