#include "kelifc/building/read/head.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

const char kProject[] =
    "#1=IFCPROJECT('2p5_dyT2jBNRrUTnEmKXeH',#30,'P',$,$,$,$,(#40,#41),#2);"
    "#30=IFCOWNERHISTORY($,#31,$,.ADDED.,$,$,$,0);"
    "#31=IFCAPPLICATION($,'1.0','Draw \\X2\\03B1\\X0\\','D');"
    "#40=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Plan',2,$,$,$);"
    "#41=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,$,$,#42);#42=IFCDIRECTION((3.,4.));";

TEST(Head, HasWhatTheModelSaysOfItself) {
  for (const std::string& schema : kSchemas) {
    const Building head =
        ReadData(std::string(kProject) + kMillimetresAndDegrees, schema).facts.head;
    EXPECT_EQ(head.schema, schema);
    EXPECT_EQ(head.application, "Draw \xCE\xB1") << schema;
    EXPECT_EQ(head.projectGuid, "2p5_dyT2jBNRrUTnEmKXeH");
    ASSERT_TRUE(head.trueNorth) << schema;
    EXPECT_NEAR(head.trueNorth->x, 0.6, 1e-12);
    EXPECT_NEAR(head.trueNorth->y, 0.8, 1e-12);
    EXPECT_EQ(head.lengthUnit.name, "MILLIMETRE");
    EXPECT_EQ(head.lengthUnit.metres, 0.001);
  }
}

TEST(Head, IsEmptyWithoutAProject) {
  const Building head = ReadData("").facts.head;
  EXPECT_EQ(head.release, IFC_RELEASE_2X3);
  EXPECT_FALSE(head.trueNorth);
  EXPECT_TRUE(head.projectGuid.empty());
  EXPECT_TRUE(head.storeys.empty());
}

std::string Storey(int number, const std::string& name, const std::string& placement,
                   const std::string& elevation) {
  return "#" + std::to_string(number) + "=IFCBUILDINGSTOREY('g',$,'" + name + "',$,$," + placement +
         ",$,$,.ELEMENT.," + elevation + ");";
}

TEST(Storeys, HaveTheElevationOfTheirPlacementOrTheirAttribute) {
  for (const std::string& schema : kSchemas) {
    const ReadText read =
        ReadData(CommonText() +
                     "#40=IFCLOCALPLACEMENT($,#41);#41=IFCAXIS2PLACEMENT3D(#42,$,$);"
                     "#42=IFCCARTESIANPOINT((0.,0.,3000.));" +
                     Storey(50, "top", "$", "6500.") + Storey(51, "first", "#40", "9999.") +
                     Storey(52, "none", "$", "$") + Storey(53, "same", "#99", "6500."),
                 schema);
    const std::vector<BuildingStorey>& storeys = read.facts.head.storeys;
    ASSERT_EQ(storeys.size(), 4U);
    EXPECT_EQ(storeys[0].name, "top");
    EXPECT_DOUBLE_EQ(storeys[0].elevation, 6.5);
    EXPECT_EQ(storeys[1].name, "first");
    EXPECT_DOUBLE_EQ(storeys[1].elevation, 3.0);
    EXPECT_EQ(storeys[2].name, "none");
    EXPECT_FALSE(storeys[2].hasElevation);
    EXPECT_EQ(storeys[3].name, "same");
    EXPECT_DOUBLE_EQ(storeys[3].elevation, 6.5);
    EXPECT_EQ(storeys[3].id, 53U);
  }
}

}  // namespace
}  // namespace KelIFC::building
