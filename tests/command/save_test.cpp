#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/command/process.h"
#include "tests/paths.h"

namespace command_test {
namespace {

using nlohmann::ordered_json;
using testing::EndsWith;
using testing::MatchesRegex;
using testing::StartsWith;

constexpr int kFile = 1;

/// The JSON that a subcommand prints of a model, without the path of the file.
ordered_json JsonOf(const std::string& command, const std::string& path) {
  auto json = ordered_json::parse(Kelifc({command, "--json", path}).out);
  json.erase("file");
  return json;
}

class Save : public testing::TestWithParam<std::string> {
 protected:
  TemporaryFolder folder;
};

INSTANTIATE_TEST_SUITE_P(Examples, Save,
                         testing::Values("house.ifc", "office.ifc", "barn.ifc", "hall.ifc"));

TEST_P(Save, KeepsTheInstancesOfEachClass) {
  const std::string path = folder.Path("out.ifc");
  const Outcome run = Kelifc({"save", GetParam(), path});
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out + run.err, "");
  auto before = JsonOf("info", GetParam())["entities"];
  auto after = JsonOf("info", path)["entities"];
  // Each load adds a direction for each placement in the plane.
  before.erase("IfcDirection");
  after.erase("IfcDirection");
  EXPECT_EQ(before.dump(1), after.dump(1));
}

TEST_P(Save, KeepsTheStructure) {
  const std::string path = folder.Path("out.ifc");
  Kelifc({"save", GetParam(), path});
  EXPECT_EQ(JsonOf("structure", GetParam()).dump(1), JsonOf("structure", path).dump(1));
}

TEST_P(Save, ReplacesItsModelIfTheUserNamesItTwice) {
  const std::string path = folder.Path("model.ifc");
  WriteFile(path, ReadFile(std::string(KelIFC::kExamplesDir) + "/" + GetParam()));
  ASSERT_EQ(Kelifc({"save", path, path}).status, 0);
  EXPECT_THAT(ReadFile(path), StartsWith("ISO-10303-21;"));
  EXPECT_THAT(ReadFile(path), EndsWith("END-ISO-10303-21;\n"));
  EXPECT_EQ(JsonOf("structure", GetParam()).dump(1), JsonOf("structure", path).dump(1));
}

TEST(SaveCommand, IntoAMissingFolderIsAFailure) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("none/out.ifc");
  const Outcome run = Kelifc({"save", "house.ifc", path});
  EXPECT_EQ(run.status, kFile);
  EXPECT_EQ(run.err, "kelifc: " + path + ": No such file or directory\n");
}

TEST(SaveCommand, OntoAFolderIsAFailure) {
  const TemporaryFolder folder;
  const Outcome run = Kelifc({"save", "house.ifc", folder.Path("")});
  EXPECT_EQ(run.status, kFile);
  EXPECT_EQ(run.err, "kelifc: " + folder.Path("") + ": Is a directory\n");
}

TEST(SaveCommand, OntoAFullDiskIsAFailure) {
  const Outcome run = Kelifc({"save", "house.ifc", "/dev/full"});
  EXPECT_EQ(run.status, kFile);
  EXPECT_THAT(run.err, MatchesRegex("kelifc: /dev/full: [^\n]+\n"));
}

/// The model from its DATA section on, which a faithful save copies.
std::string DataOf(const std::string& text) { return text.substr(text.find("\nDATA;")); }

TEST(FaithfulSave, CopiesWhatWasNotChanged) {
  const TemporaryFolder folder;
  const Outcome run = Kelifc({"save", "--faithful", "hall.ifc", folder.Path("out.ifc")});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(DataOf(ReadFile(folder.Path("out.ifc"))),
            DataOf(ReadFile(std::string(KelIFC::kExamplesDir) + "/hall.ifc")));
}

TEST(FaithfulSave, ReadsStandardInput) {
  const TemporaryFolder folder;
  const std::string model = std::string(KelIFC::kExamplesDir) + "/hall.ifc";
  const Outcome run = Kelifc({"save", "--faithful", "-", folder.Path("out.ifc")}, "", model);
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(DataOf(ReadFile(folder.Path("out.ifc"))), DataOf(ReadFile(model)));
}

TEST(FaithfulSave, CanReplaceItsOwnModel) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("model.ifc");
  const std::string text = ReadFile(std::string(KelIFC::kExamplesDir) + "/house.ifc");
  WriteFile(path, text);
  EXPECT_EQ(Kelifc({"save", "--faithful", "--dialect", "iso", path, path}).status, 0);
  EXPECT_EQ(DataOf(ReadFile(path)), DataOf(text));
}

TEST(FaithfulSave, IsWrongUsageInTheClassicDialect) {
  const TemporaryFolder folder;
  const Outcome run =
      Kelifc({"save", "--faithful", "--dialect", "classic", "hall.ifc", folder.Path("out.ifc")});
  EXPECT_EQ(run.status, 64);
  EXPECT_EQ(run.out, "");
  EXPECT_FALSE(std::filesystem::exists(folder.Path("out.ifc")));
}

}  // namespace
}  // namespace command_test
