#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/command/process.h"

namespace command_test {
namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;

std::string Model(const std::string& schema, const std::string& data) {
  return "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('" + schema + "'));\nENDSEC;\nDATA;\n" + data +
         "ENDSEC;\nEND-ISO-10303-21;\n";
}

ordered_json InfoOf(const std::string& text) {
  const TemporaryFolder folder;
  WriteFile(folder.Path("model.ifc"), text);
  auto info = ordered_json::parse(Kelifc({"info", "--json", folder.Path("model.ifc")}).out);
  info.erase("file");
  return info;
}

TEST(Info, CountsInstancesByClassAndRawTextByItsName) {
  const auto info = InfoOf(Model("IFC2X3_FINAL",
                                 "#1=IFCDIRECTION((1.,0.));\n#2=ifcnosuchthing(1);\n"
                                 "#3=IFCCARTESIANPOINT((0.,0.));\n#4=IFCDIRECTION((0.,1.));\n"));
  EXPECT_EQ(info.dump(),
            R"({"release":"2x3","schema":"IFC2X3_FINAL","instances":4,)"
            R"("entities":{"IfcCartesianPoint":1,"IfcDirection":2},"raw":{"IFCNOSUCHTHING":1}})");
}

TEST(Info, CountsANumberThatIsUsedTwiceOnce) {
  const auto info =
      InfoOf(Model("IFC2X_FINAL", "#1=IFCDIRECTION((1.,0.));\n#1=IFCDIRECTION((0.,1.));\n"));
  EXPECT_EQ(info["instances"], 1);
  EXPECT_EQ(info["entities"].dump(), R"({"IfcDirection":1})");
}

TEST(Info, OldReleasesDropEntitiesWithoutAClass) {
  const auto info = InfoOf(Model("IFC20_LONGFORM", "#1=IFCDIRECTION((1.,0.));\n#2=IFCFOO(1);\n"));
  EXPECT_EQ(info["release"], "2.0");
  EXPECT_EQ(info["instances"], 1);
  EXPECT_EQ(info["raw"].dump(), "{}");
}

TEST(Info, NamesTheReleaseOfEachSchema) {
  EXPECT_EQ(InfoOf(Model("IFC151", ""))["release"], "1.5.1");
  EXPECT_EQ(InfoOf(Model("IFC20_LONGFORM", ""))["release"], "2.0");
  EXPECT_EQ(InfoOf(Model("IFC2X_FINAL", ""))["release"], "2x");
  EXPECT_EQ(InfoOf(Model("IFC2X2_FINAL", ""))["release"], "2x2");
  EXPECT_EQ(InfoOf(Model("IFC2X3", ""))["release"], "2x3");
}

TEST(Info, TextContainsTheSame) {
  const Outcome run = Kelifc({"info", "house.ifc"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  for (const char* text : {"house.ifc", "2x3", "IFC2X3", "IfcBuildingStorey"}) {
    EXPECT_THAT(run.out, HasSubstr(text));
  }
}

}  // namespace
}  // namespace command_test
