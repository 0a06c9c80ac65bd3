#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/command/process.h"

namespace command_test {
namespace {

using nlohmann::ordered_json;
using testing::MatchesRegex;
using testing::StartsWith;

constexpr int kFile = 1;

std::string DataOf(const std::string& file) { return file.substr(file.find("DATA;")); }

class Save : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Examples, Save, testing::Values("house.ifc", "office.ifc", "barn.ifc"));

TEST_P(Save, KeepsAllThatTheModelHolds) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("out.ifc");
  const Run run = Kelifc({"save", GetParam(), path});
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "");
  auto before = ordered_json::parse(Kelifc({"info", "--json", GetParam()}).out);
  auto after = ordered_json::parse(Kelifc({"info", "--json", path}).out);
  before.erase("file");
  after.erase("file");
  EXPECT_EQ(before.dump(1), after.dump(1));
}

TEST_P(Save, OfWhatItSavedIsTheSame) {
  const TemporaryFolder folder;
  Kelifc({"save", GetParam(), folder.Path("once.ifc")});
  Kelifc({"save", folder.Path("once.ifc"), folder.Path("twice.ifc")});
  const std::string once = ReadFile(folder.Path("once.ifc"));
  EXPECT_THAT(once, StartsWith("ISO-10303-21;"));
  EXPECT_EQ(DataOf(once), DataOf(ReadFile(folder.Path("twice.ifc"))));
}

TEST(SaveCommand, WritesOverItsModelWhereTheUserNamesItTwice) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("house.ifc");
  Kelifc({"save", "house.ifc", path});
  const std::string before = ReadFile(path);
  EXPECT_EQ(Kelifc({"save", path, path}).status, 0);
  EXPECT_EQ(DataOf(ReadFile(path)), DataOf(before));
}

TEST(SaveCommand, IntoAMissingFolderIsAFailure) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("none/out.ifc");
  const Run run = Kelifc({"save", "house.ifc", path});
  EXPECT_EQ(run.status, kFile);
  EXPECT_EQ(run.err, "kelifc: " + path + ": No such file or directory\n");
}

TEST(SaveCommand, OntoAFolderIsAFailure) {
  const TemporaryFolder folder;
  const Run run = Kelifc({"save", "house.ifc", folder.Path("")});
  EXPECT_EQ(run.status, kFile);
  EXPECT_EQ(run.err, "kelifc: " + folder.Path("") + ": Is a directory\n");
}

TEST(SaveCommand, OntoAFullDiskIsAFailure) {
  const Run run = Kelifc({"save", "house.ifc", "/dev/full"});
  EXPECT_EQ(run.status, kFile);
  EXPECT_THAT(run.err, MatchesRegex("kelifc: /dev/full: [^\n]+\n"));
}

}  // namespace
}  // namespace command_test
