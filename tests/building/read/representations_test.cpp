#include "kelifc/building/read/representations.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

// Items: a solid (#40), a curve (#41), a box (#42), one that is not known (#43).
std::string ColumnWith(const std::string& representations) {
  return CommonText() +
         "#40=IFCEXTRUDEDAREASOLID(#14,#11,#13,3000.);#41=IFCPOLYLINE((#10,#44));"
         "#42=IFCBOUNDINGBOX(#10,1.,1.,1.);#43=IFCSECTIONEDSPINE($,$,$);"
         "#44=IFCCARTESIANPOINT((0.,0.,1000.));#45=IFCEXTRUDEDAREASOLID(#14,#11,#13,1.);"
         "#20=IFCCOLUMN('c',$,'C1',$,$,$,#21,'T');#21=IFCPRODUCTDEFINITIONSHAPE($,$,(#22,#23));" +
         representations;
}

struct Choice {
  const char* representations;
  std::size_t item;
};

TEST(Representation, OfTheBodyIsChosen) {
  const Choice rows[] = {
      {"#22=IFCSHAPEREPRESENTATION($,'Other','',(#45));"
       "#23=IFCSHAPEREPRESENTATION($,'Body','',(#40));",
       40},
      {"#22=IFCSHAPEREPRESENTATION($,'body','',(#40));"
       "#23=IFCSHAPEREPRESENTATION($,'Body','',(#45));",
       40},
      {"#22=IFCSHAPEREPRESENTATION($,'Body','',(#41));"
       "#23=IFCSHAPEREPRESENTATION($,$,'',(#40));",
       40},
      {"#22=IFCSHAPEREPRESENTATION($,'Box','',(#45));"
       "#23=IFCSHAPEREPRESENTATION($,'Facetation','',(#40));",
       40},
      {"#22=IFCSHAPEREPRESENTATION($,'Body','',(#43));"
       "#23=IFCSHAPEREPRESENTATION($,'','',(#40));",
       40},
      {"#22=IFCSHAPEREPRESENTATION($,'','',(#41));#23=IFCSHAPEREPRESENTATION($,'','',(#43));", 43},
      {"#22=IFCSHAPEREPRESENTATION($,'Body','',(#42,#40,#41));"
       "#23=IFCSHAPEREPRESENTATION($,'','',());",
       40},
      {"#22=IFCREPRESENTATION($,'Body','',(#40));#23=IFCSHAPEREPRESENTATION($,'','',());", 40},
  };
  for (const Choice& row : rows) {
    for (const std::string& schema : kSchemas) {
      const ReadText read = ReadData(ColumnWith(row.representations), schema);
      ASSERT_EQ(read.Only().items.size(), 1U) << row.representations << schema;
      EXPECT_EQ(read.Only().items[0]->id, row.item) << row.representations;
    }
  }
}

TEST(Representation, OfAMapOfCurvesIsNotABody) {
  const ReadText read = ReadData(
      ColumnWith("#22=IFCSHAPEREPRESENTATION($,'Body','',(#50));#50=IFCMAPPEDITEM(#51,$);"
                 "#51=IFCREPRESENTATIONMAP(#11,#52);#52=IFCSHAPEREPRESENTATION($,'','',(#41));"
                 "#23=IFCSHAPEREPRESENTATION($,'','',(#40));"));
  ASSERT_EQ(read.Only().items.size(), 1U);
  EXPECT_EQ(read.Only().items[0]->id, 40U);
}

struct Missing {
  const char* representations;
  LossReason reason;
  std::size_t at;
};

TEST(Representation, ThatIsMissingIsAFault) {
  const Missing rows[] = {
      {"", LossReason::kDangling, 21},
      {"#22=IFCSHAPEREPRESENTATION($,'Body','',());#23=IFCSHAPEREPRESENTATION($,'Axis','',(#41));",
       LossReason::kNoItems, 22},
      {"#22=IFCSHAPEREPRESENTATION($,'Box','',(#42));"
       "#23=IFCSHAPEREPRESENTATION($,'Axis','',(#41));",
       LossReason::kNoItems, 21},
  };
  for (const Missing& row : rows) {
    const ReadText read = ReadData(ColumnWith(row.representations));
    ASSERT_TRUE(read.Only().fault) << row.representations;
    EXPECT_EQ(read.Only().fault->reason, row.reason) << row.representations;
    EXPECT_EQ(read.Only().fault->at, row.at) << row.representations;
  }
}

TEST(Representation, OfAProductWithoutAShapeIsMissing) {
  for (const char* shape : {"$", "*"}) {
    const ReadText read =
        ReadData(CommonText() + "#20=IFCCOLUMN('c',$,'C1',$,$,$," + shape + ",'T');");
    ASSERT_TRUE(read.Only().fault);
    EXPECT_EQ(read.Only().fault->reason, LossReason::kNoRepresentation);
    EXPECT_EQ(read.Only().fault->at, 20U);
  }
}

}  // namespace
}  // namespace KelIFC::building
