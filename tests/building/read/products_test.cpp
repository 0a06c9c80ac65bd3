#include "kelifc/building/read/products.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

const char kSolid[] = "#30=IFCEXTRUDEDAREASOLID(#14,#11,#13,3000.);";

TEST(Product, HasItsIdentity) {
  for (const std::string& schema : kSchemas) {
    const ReadText read = ReadData(
        "#20=IFCSLAB('1xS3BCk291UvhgP2dvNMKI',$,'D\\X\\E9j\\X\\E0',$,$,$,$,'T-1',.ROOF.);", schema);
    const ProductFacts& product = read.Only();
    EXPECT_EQ(product.id, 20U);
    EXPECT_EQ(product.line, 2U);
    EXPECT_EQ(product.className, "IfcSlab");
    EXPECT_EQ(product.guid, "1xS3BCk291UvhgP2dvNMKI");
    EXPECT_EQ(product.name, "D\xC3\xA9j\xC3\xA0");
    EXPECT_EQ(product.tag, "T-1");
    EXPECT_EQ(product.type, "ROOF");
  }
}

TEST(Product, HasNoGlobalIdIfTheFileHasNoneThatCanBeDecoded) {
  for (const std::string& schema : kSchemas) {
    for (const std::string id : {"$", "''", "'too short'", "'1xS3BCk291UvhgP2dvNM?I'"}) {
      const ReadText read = ReadData("#20=IFCBEAM(" + id + ",$,'B',$,$,$,$,$);", schema);
      EXPECT_EQ(read.Only().guid, "") << id;
      EXPECT_EQ(read.Only().name, "B");
    }
  }
}

TEST(Product, HasThePredefinedTypeThatItsClassDoesNotKeep) {
  for (const std::string& schema : {std::string("IFC2X2_FINAL"), std::string("IFC2X3")}) {
    EXPECT_EQ(ReadData("#20=IFCPILE('p',$,$,$,$,$,$,$,.FRICTION.,.BORED.);", schema).Only().type,
              "FRICTION");
    EXPECT_EQ(ReadData("#20=IFCPILE('p',$,$,$,$,$,$,$,$,.BORED.);", schema).Only().type, "");
    const ReadText read = ReadData(
        "#20=IFCELEMENTASSEMBLY('a',$,$,$,$,$,$,$,.SITE.,.TRUSS.);#21=IFCBEAM('b',$,$,$,$,$,$,$);"
        "#22=IFCRELAGGREGATES('r',$,$,$,#20,(#21));",
        schema);
    EXPECT_EQ(read.facts.products.size(), 1U);
  }
}

TEST(Product, HasUtf8TextInTheClassicDialectToo) {
  const std::string text =
      "ISO-10303-21;HEADER;FILE_SCHEMA(('IFC2X3'));ENDSEC;DATA;"
      "#20=IFCWALL('g',$,'K\xE4se',$,$,$,$,$);ENDSEC;END-ISO-10303-21;";
  IfcServer server;
  ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), LoadOptions()), 0);
  const ModelFacts facts = ReadModel(server, {});
  ASSERT_EQ(facts.products.size(), 1U);
  EXPECT_EQ(facts.products[0].name, "K\xC3\xA4se");
}

TEST(Product, HasItsAxis) {
  for (const std::string& schema : kSchemas) {
    const ReadText read = ReadData(
        CommonText() + kSolid +
            "#20=IFCWALL('w',$,$,$,$,$,#21,$);#21=IFCPRODUCTDEFINITIONSHAPE($,$,(#22,#23));"
            "#22=IFCSHAPEREPRESENTATION($,'Body','SweptSolid',(#30));"
            "#23=IFCSHAPEREPRESENTATION($,'Axis','Curve2D',(#40));"
            "#40=IFCPOLYLINE((#9,#41));#41=IFCCARTESIANPOINT((5000.,0.));",
        schema);
    ASSERT_TRUE(read.Only().axis) << schema;
    ExpectPoint(read.Only().axis->points.at(1), 5.0, 0.0, 0.0);
  }
}

TEST(Product, HasNoAxisOfVeryManyPoints) {
  std::string points = "#9";
  for (int i = 0; i < 300; ++i) points += ",#9";
  const ReadText read =
      ReadData(CommonText() + kSolid +
               "#20=IFCWALL('w',$,$,$,$,$,#21,$);#21=IFCPRODUCTDEFINITIONSHAPE($,$,(#22,#23));"
               "#22=IFCSHAPEREPRESENTATION($,'Body','SweptSolid',(#30));"
               "#23=IFCSHAPEREPRESENTATION($,'Axis','Curve2D',(#40));#40=IFCPOLYLINE((" +
               points + "));");
  EXPECT_FALSE(read.Only().fault);
  EXPECT_FALSE(read.Only().axis);
}

TEST(Product, HasItsOpeningsAndWhatFillsThem) {
  for (const std::string& schema : kSchemas) {
    const ReadText read = ReadData(
        CommonText() + kSolid +
            "#20=IFCWALL('w',$,$,$,$,$,#21,$);#21=IFCPRODUCTDEFINITIONSHAPE($,$,(#22));"
            "#22=IFCSHAPEREPRESENTATION($,'Body','SweptSolid',(#30));"
            "#40=IFCOPENINGELEMENT('1xS3BCk291UvhgP2dvNMKI',$,$,$,$,#43,#21,$);#41="
            "IFCOPENINGELEMENT('o2',$,$,$,$,$,$,$);"
            "#42=IFCOPENINGELEMENT('o3',$,$,$,$,$,#21,$);#43=IFCLOCALPLACEMENT($,#44);"
            "#44=IFCAXIS2PLACEMENT3D(#45,$,$);#45=IFCCARTESIANPOINT((100.,0.,0.));"
            "#46=IFCDOOR('d',$,$,$,$,$,$,$,$,$);#47=IFCWINDOW('f',$,$,$,$,$,$,$,$,$);"
            "#50=IFCRELVOIDSELEMENT('v',$,$,$,#20,#40);#51=IFCRELVOIDSELEMENT('v',$,$,$,#20,#41);"
            "#52=IFCRELVOIDSELEMENT('v',$,$,$,#20,#42);#53=IFCRELFILLSELEMENT('f',$,$,$,#40,#46);"
            "#54=IFCRELFILLSELEMENT('f',$,$,$,#41,#47);#55=IFCRELVOIDSELEMENT('v',$,$,$,#20,#99);",
        schema);
    const std::vector<OpeningFacts>& openings = read.Only().openings;
    ASSERT_EQ(openings.size(), 3U) << schema;
    EXPECT_EQ(openings[0].id, 40U);
    EXPECT_EQ(openings[0].guid, "1xS3BCk291UvhgP2dvNMKI");
    EXPECT_EQ(openings[0].kind, OpeningKind::kDoor);
    EXPECT_EQ(openings[0].fill, 46U);
    EXPECT_NEAR(openings[0].placement.origin.x, 0.1, 1e-12);
    EXPECT_EQ(openings[0].items.size(), 1U);
    EXPECT_EQ(openings[1].kind, OpeningKind::kWindow);
    EXPECT_TRUE(openings[1].items.empty());
    EXPECT_EQ(openings[2].kind, OpeningKind::kVoid);
    EXPECT_EQ(openings[2].fill, 0U);
  }
}

TEST(Product, SharesManyItemsWithOthersOfTheSameRepresentation) {
  std::string items;
  std::string data = CommonText();
  for (int i = 0; i < 100; ++i) {
    const std::string number = "#" + std::to_string(100 + i);
    data += number + "=IFCEXTRUDEDAREASOLID(#14,#11,#13,3000.);";
    items += (i == 0 ? "" : ",") + number;
  }
  data += "#22=IFCSHAPEREPRESENTATION($,'Body','SweptSolid',(" + items +
          "));#21=IFCPRODUCTDEFINITIONSHAPE($,$,(#22));#30=IFCBEAM('a',$,$,$,$,$,#21,$);"
          "#31=IFCBEAM('b',$,$,$,$,$,#21,$);";
  const ReadText read = ReadData(data);
  EXPECT_EQ(read.Find(30)->items.size(), 100U);
  ASSERT_EQ(read.Find(31)->items.size(), 1U);
  EXPECT_EQ(std::get<MappedItems>(read.Find(31)->items[0]->form).items.size(), 100U);
}

}  // namespace
}  // namespace KelIFC::building
