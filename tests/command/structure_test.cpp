#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/command/process.h"

namespace command_test {
namespace {

using nlohmann::ordered_json;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr int kFile = 1;

std::vector<std::string> Members(const ordered_json& object) {
  std::vector<std::string> names;
  for (const auto& [name, value] : object.items()) names.push_back(name);
  return names;
}

TEST(Structure, JsonHasItsMembersInTheirOrder) {
  const Outcome run = Kelifc({"structure", "--json", "house.ifc"});
  ASSERT_EQ(run.status, 0) << run.err;
  const auto structure = ordered_json::parse(run.out);
  EXPECT_THAT(Members(structure), ElementsAre("file", "release", "storeys", "columns", "beams",
                                              "walls", "plates", "foots", "sections"));
  EXPECT_EQ(structure["file"], "house.ifc");
  EXPECT_EQ(structure["release"], "2x3");
  EXPECT_THAT(Members(structure["storeys"][0]), ElementsAre("number", "name", "level", "height"));
}

TEST(Structure, StoreysAreSortedByLevelAndBasementsAreBelowZero) {
  const auto storeys =
      ordered_json::parse(Kelifc({"structure", "--json", "office.ifc"}).out)["storeys"];
  EXPECT_EQ(storeys.dump(), R"([{"number":-1,"name":"Basement","level":-3200.0,"height":3200.0},)"
                            R"({"number":0,"name":"Ground floor","level":0.0,"height":3400.0},)"
                            R"({"number":1,"name":"First floor","level":3400.0,"height":3400.0}])");
}

TEST(Structure, NamesAreUtf8AndAStoreyWithoutANameHasItsNumber) {
  const auto storeys =
      ordered_json::parse(Kelifc({"structure", "--json", "barn.ifc"}).out)["storeys"];
  EXPECT_EQ(storeys[0]["name"], "Erdgescho\xC3\x9F");
  EXPECT_EQ(storeys[1]["name"], "IFC#42");
}

TEST(Structure, TableContainsReleaseCountsAndStoreys) {
  const Outcome run = Kelifc({"structure", "house.ifc"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  for (const char* text : {"2x3", "Storeys", "Foots", "Sections", "Ground floor", "2.8"}) {
    EXPECT_THAT(run.out, HasSubstr(text));
  }
}

TEST(Structure, OutputGoesToTheNamedFile) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("house.json");
  const Outcome run = Kelifc({"structure", "--json", "--output", path, "house.ifc"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(ReadFile(path), Kelifc({"structure", "--json", "house.ifc"}).out);
}

TEST(Structure, OutputIntoAMissingFolderIsAFailure) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("none/house.json");
  const Outcome run = Kelifc({"structure", "--output", path, "house.ifc"});
  EXPECT_EQ(run.status, kFile);
  EXPECT_EQ(run.err, "kelifc: " + path + ": No such file or directory\n");
}

TEST(Structure, AFullDiskIsAFailure) {
  const Outcome run = Kelifc({"structure", "--output", "/dev/full", "house.ifc"});
  EXPECT_EQ(run.status, kFile);
  EXPECT_EQ(run.err, "kelifc: /dev/full: No space left on device\n");
}

TEST(Structure, AFullStandardOutputIsAFailure) {
  const Outcome run = Kelifc({"structure", "house.ifc"}, "/dev/full");
  EXPECT_EQ(run.status, kFile);
  EXPECT_EQ(run.err, "kelifc: standard output: No space left on device\n");
}

}  // namespace
}  // namespace command_test
