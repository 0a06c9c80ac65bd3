#include "kelifc/building/read/materials.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

const char kMaterials[] =
    "#20=IFCWALL('w',$,$,$,$,$,$,$);#40=IFCMATERIAL('Beton');#41=IFCMATERIAL('K\\X\\E4se');"
    "#42=IFCMATERIALLAYER(#40,200.,.F.);#43=IFCMATERIALLAYER($,50.,$);"
    "#44=IFCMATERIALLAYERSET((#42,#43),'S');";

MaterialFacts MaterialOf(const std::string& text, const std::string& schema = "IFC2X3") {
  return ReadData(CommonText() + kMaterials + text, schema).Only().material;
}

TEST(Material, CanBeOneOrAList) {
  for (const std::string& schema : kSchemas) {
    const MaterialFacts one =
        MaterialOf("#50=IFCRELASSOCIATESMATERIAL('r',$,$,$,(#20),#41);", schema);
    EXPECT_EQ(one.materials, (std::vector<std::string>{"K\xC3\xA4se"})) << schema;
    const MaterialFacts list = MaterialOf(
        "#50=IFCRELASSOCIATESMATERIAL('r',$,$,$,(#20),#51);#51=IFCMATERIALLIST((#40,#41,#99));",
        schema);
    EXPECT_EQ(list.materials.size(), 2U);
    EXPECT_TRUE(list.layers.empty());
  }
}

TEST(Material, CanBeLayersWithTheirPlace) {
  for (const std::string& schema : kSchemas) {
    const MaterialFacts facts = MaterialOf(
        "#50=IFCRELASSOCIATESMATERIAL('r',$,$,$,(#20),#51);"
        "#51=IFCMATERIALLAYERSETUSAGE(#44,.AXIS2.,.NEGATIVE.,-150.);",
        schema);
    ASSERT_EQ(facts.layers.size(), 2U);
    EXPECT_EQ(facts.layers[0].material, "Beton");
    EXPECT_TRUE(facts.layers[0].hasMaterial);
    EXPECT_FALSE(facts.layers[1].hasMaterial);
    EXPECT_DOUBLE_EQ(facts.layers[0].thickness, 0.2);
    EXPECT_TRUE(facts.usage.hasUsage);
    EXPECT_EQ(facts.usage.axis, 2);
    EXPECT_FALSE(facts.usage.isPositive);
    EXPECT_DOUBLE_EQ(facts.usage.offset, -0.15);
  }
}

TEST(Material, OfTheTypeIsUsedWithoutOneOfTheElement) {
  const std::string type =
      "#60=IFCWALLTYPE('t',$,$,$,$,$,$,$,$,.STANDARD.);"
      "#61=IFCRELDEFINESBYTYPE('d',$,$,$,(#20),#60);"
      "#62=IFCRELASSOCIATESMATERIAL('r',$,$,$,(#60),#44);";
  for (const std::string& schema : kSchemas) {
    EXPECT_EQ(MaterialOf(type, schema).layers.size(), 2U) << schema;
    const MaterialFacts own =
        MaterialOf(type + "#63=IFCRELASSOCIATESMATERIAL('r',$,$,$,(#20),#40);", schema);
    EXPECT_EQ(own.materials.size(), 1U);
    EXPECT_TRUE(own.layers.empty());
  }
}

TEST(Material, IsEmptyForWhatIsNotOne) {
  for (const char* text : {"", "#50=IFCRELASSOCIATESMATERIAL('r',$,$,$,(#20),#99);",
                           "#50=IFCRELASSOCIATESMATERIAL('r',$,$,$,(#20),#10);",
                           "#50=IFCRELASSOCIATESMATERIAL('r',$,$,$,$,#40);"}) {
    const MaterialFacts facts = MaterialOf(text);
    EXPECT_TRUE(facts.materials.empty() && facts.layers.empty()) << text;
  }
}

}  // namespace
}  // namespace KelIFC::building
