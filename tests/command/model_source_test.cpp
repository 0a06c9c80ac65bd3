#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/command/process.h"
#include "tests/paths.h"

namespace command_test {
namespace {

using testing::StartsWith;

TEST(ModelSource, IsStandardInputForADash) {
  const Outcome file = Kelifc({"info", "house.ifc"});
  const Outcome input = Kelifc({"info", "-"}, "", std::string(KelIFC::kExamplesDir) + "/house.ifc");
  EXPECT_EQ(input.status, 0);
  EXPECT_EQ(input.err, "");
  EXPECT_THAT(input.out, StartsWith("  File        -\n"));
  EXPECT_EQ(input.out.substr(input.out.find('\n')), file.out.substr(file.out.find('\n')));
}

TEST(ModelSource, IsNoModelIfStandardInputIsEmpty) {
  const Outcome run = Kelifc({"info", "-"});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.err, "kelifc: -: the file is empty\n");
}

TEST(ModelSource, NamesStandardInputAsTheUserDid) {
  const TemporaryFolder folder;
  WriteFile(folder.Path("text"), "no model;");
  const Outcome run = Kelifc({"structure", "-"}, "", folder.Path("text"));
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.err, "kelifc: -: not a STEP file\n");
}

TEST(ModelSource, LeavesNoTemporaryFileBehind) {
  const TemporaryFolder folder;
  ASSERT_EQ(setenv("TMPDIR", folder.Path("").c_str(), 1), 0);
  const Outcome run =
      Kelifc({"info", "-"}, folder.Path("out"), std::string(KelIFC::kExamplesDir) + "/house.ifc");
  unsetenv("TMPDIR");
  EXPECT_EQ(run.status, 0);
  std::filesystem::remove(folder.Path("out"));
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path("")));
}

}  // namespace
}  // namespace command_test
