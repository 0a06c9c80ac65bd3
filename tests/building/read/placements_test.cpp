#include "kelifc/building/read/placements.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

// A column with the placement #40 and a box as its body.
std::string PlacedColumn() {
  return CommonText() +
         "#20=IFCCOLUMN('c',$,'C1',$,$,#40,#21,'T');#21=IFCPRODUCTDEFINITIONSHAPE($,$,(#22));"
         "#22=IFCSHAPEREPRESENTATION($,'Body','SweptSolid',(#30));"
         "#30=IFCEXTRUDEDAREASOLID(#14,#11,#13,3000.);";
}

TEST(MakeAxes, MakesXSquareToZ) {
  const Transform3 axes = MakeAxes({1.0, 2.0, 3.0}, Vector3(0.0, 0.0, 1.0), Vector3(1.0, 0.0, 1.0));
  ExpectVector(axes.x, 1.0, 0.0, 0.0);
  ExpectVector(axes.y, 0.0, 1.0, 0.0);
  ExpectPoint(axes.origin, 1.0, 2.0, 3.0);
}

TEST(MakeAxes, UsesTheWorldForMissingAndParallelAxes) {
  ExpectVector(MakeAxes({}, {}, {}).x, 1.0, 0.0, 0.0);
  const Transform3 along = MakeAxes({}, Vector3(1.0, 0.0, 0.0), {});
  ExpectVector(along.x, 0.0, 1.0, 0.0);
  ExpectVector(along.y, 0.0, 0.0, 1.0);
  const Transform3 parallel = MakeAxes({}, Vector3(0.0, 0.0, 1.0), Vector3(0.0, 0.0, 2.0));
  ExpectVector(parallel.x, 1.0, 0.0, 0.0);
}

TEST(InverseOfAxes, UndoesTheMap) {
  const Transform3 axes =
      MakeAxes({1.0, -2.0, 5.0}, Vector3(0.0, 0.6, 0.8), Vector3(1.0, 0.0, 0.0));
  ExpectPoint(InverseOfAxes(axes)(axes(Point3(3.0, 4.0, 5.0))), 3.0, 4.0, 5.0);
}

TEST(Placement, IsTheProductOfItsChain) {
  for (const std::string& schema : kSchemas) {
    const ReadText read =
        ReadData(PlacedColumn() +
                     "#40=IFCLOCALPLACEMENT(#41,#42);#42=IFCAXIS2PLACEMENT3D(#43,$,$);"
                     "#43=IFCCARTESIANPOINT((1000.,0.,500.));#41=IFCLOCALPLACEMENT($,#44);"
                     "#44=IFCAXIS2PLACEMENT3D(#45,#13,#46);#45=IFCCARTESIANPOINT((0.,2000.,0.));"
                     "#46=IFCDIRECTION((0.,7.,0.));",
                 schema);
    ASSERT_FALSE(read.Only().fault) << schema;
    ExpectPoint(read.Only().placement.origin, 0.0, 3.0, 0.5);
    ExpectVector(read.Only().placement.x, 0.0, 1.0, 0.0);
    ExpectVector(read.Only().placement.y, -1.0, 0.0, 0.0);
  }
}

TEST(Placement, IsTheWorldWithoutOne) {
  const ReadText read =
      ReadData(CommonText() + ColumnText() + "#30=IFCEXTRUDEDAREASOLID(#14,#11,#13,3000.);");
  ASSERT_FALSE(read.Only().fault);
  ExpectPoint(read.Only().placement.origin, 0.0, 0.0, 0.0);
}

struct BadPlacement {
  const char* text;
  LossReason reason;
  std::size_t at;
};

TEST(Placement, IsAFaultIfItCannotBeRead) {
  const BadPlacement rows[] = {
      {"#40=IFCLOCALPLACEMENT(#40,#11);", LossReason::kCycle, 40},
      {"#40=IFCLOCALPLACEMENT(#41,#11);#41=IFCLOCALPLACEMENT(#40,#11);", LossReason::kCycle, 40},
      {"", LossReason::kDangling, 20},
      {"#40=IFCLOCALPLACEMENT(#99,#11);", LossReason::kDangling, 40},
      {"#40=IFCLOCALPLACEMENT($,#99);", LossReason::kDangling, 40},
      {"#40=IFCGRIDPLACEMENT(#99,$);", LossReason::kUnsupportedItem, 40},
      {"#40=IFCLOCALPLACEMENT($,#42);#42=IFCAXIS2PLACEMENT3D(#43,$,$);"
       "#43=IFCCARTESIANPOINT((1.E300,0.,0.));",
       LossReason::kNotFinite, 43},
  };
  for (const BadPlacement& row : rows) {
    const ReadText read = ReadData(PlacedColumn() + row.text);
    ASSERT_TRUE(read.Only().fault) << row.text;
    EXPECT_EQ(read.Only().fault->reason, row.reason) << row.text;
    EXPECT_EQ(read.Only().fault->at, row.at) << row.text;
  }
}

TEST(Placement, FollowsAChainOfAnyLength) {
  constexpr std::size_t kLength = 100'000;
  std::string data = PlacedColumn() +
                     "#42=IFCAXIS2PLACEMENT3D(#43,$,$);"
                     "#43=IFCCARTESIANPOINT((1.,0.,0.));";
  data += "#40=IFCLOCALPLACEMENT(#100,#42);";
  for (std::size_t i = 0; i < kLength; ++i) {
    const std::string next = i + 1 < kLength ? "#" + std::to_string(101 + i) : "$";
    data += "#" + std::to_string(100 + i) + "=IFCLOCALPLACEMENT(" + next + ",#42);";
  }
  const ReadText read = ReadData(data);
  ASSERT_FALSE(read.Only().fault);
  EXPECT_NEAR(read.Only().placement.origin.x, 0.001 * (kLength + 1), 1e-6);
}

}  // namespace
}  // namespace KelIFC::building
