#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/command/process.h"
#include "tests/examples/example_program.h"

namespace command_test {
namespace {

using testing::HasSubstr;

TEST(ReadExample, PrintsStoreysAndColumns) {
  const Outcome run = RunExample("read", {"house.ifc"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out,
            "Ground floor: level 0\nUpper floor: level 2.8\n"
            "Column A: section IFC_R_24x24\nIFC#215: section IFC_C_24\n");
}

TEST(ReadExample, ReportsWhyItCannotLoad) {
  const Outcome run = RunExample("read", {"missing.ifc"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "missing.ifc was not found or cannot be opened.\n");
}

TEST(EntitiesExample, PrintsTheStoreysOfTheFile) {
  const Outcome run = RunExample("entities", {"house.ifc"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "Ground floor at 0\nUpper floor at 2.8\n");
}

TEST(HostExample, PrintsTheStoreysOfTheStructure) {
  const Outcome run = RunExample("host", {"house.ifc"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "  0         0  Ground floor\n  1       2.8  Upper floor\n");
}

TEST(BuildExample, SavesAModelThatConverts) {
  const TemporaryFolder folder;
  const std::string model = folder.Path("column.ifc");
  ASSERT_EQ(RunExample("build", {model}).status, 0);
  const Outcome walk = RunExample("walk", {model});
  EXPECT_THAT(walk.out, HasSubstr("\nStorey 0 \"Ground floor\" at 0\n"));
  EXPECT_THAT(walk.out, HasSubstr("\nColumn \"Column A\" of section \"IFC_R_30x50\" in storey 0:"
                                  " (2 3 0) (2 3 2.7)\n"));
}

TEST(BuildExample, FailsIfTheFileCannotBeWritten) {
  EXPECT_EQ(RunExample("build", {"missing/column.ifc"}).status, 1);
}

TEST(Examples, AskForAnArgument) {
  for (const char* example : {"read", "build", "walk", "host"}) {
    EXPECT_EQ(RunExample(example, {}).status, 2) << example;
  }
}

}  // namespace
}  // namespace command_test
