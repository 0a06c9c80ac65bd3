#include "kelifc/building/read/items.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

const char kSolid[] = "#40=IFCEXTRUDEDAREASOLID(#14,#11,#13,3000.);";

template <class Form>
const Form* FormOf(const SolidPointer& solid) {
  return solid == nullptr ? nullptr : std::get_if<Form>(&solid->form);
}

LossReason ReasonOf(const SolidPointer& solid) {
  const auto* fault = FormOf<Unreadable>(solid);
  return fault == nullptr ? LossReason::kDegenerate : fault->reason;
}

TEST(Boolean, HasItsOperationAndOperands) {
  const std::pair<const char*, BooleanOperation> rows[] = {
      {"IFCBOOLEANRESULT(.UNION.", BooleanOperation::kUnion},
      {"IFCBOOLEANRESULT(.INTERSECTION.", BooleanOperation::kIntersection},
      {"IFCBOOLEANCLIPPINGRESULT(.DIFFERENCE.", BooleanOperation::kDifference},
  };
  for (const auto& [text, operation] : rows) {
    for (const std::string& schema : kSchemas) {
      const auto result =
          ReadForm<BooleanResult>(kSolid + ("#30=" + std::string(text)) +
                                      ",#40,#41);#41=IFCHALFSPACESOLID(#42,.T.);#42=IFCPLANE(#11);",
                                  schema);
      EXPECT_EQ(result.operation, operation);
      EXPECT_NE(FormOf<Extrusion>(result.first), nullptr) << text;
      EXPECT_NE(FormOf<HalfSpace>(result.second), nullptr) << text;
    }
  }
}

TEST(Boolean, KeepsAnOperandThatCannotBeRead) {
  const auto result = ReadForm<BooleanResult>(
      std::string(kSolid) + "#30=IFCBOOLEANRESULT(.UNION.,#40,#41);#41=IFCSECTIONEDSPINE($,$,$);");
  EXPECT_EQ(ReasonOf(result.second), LossReason::kUnsupportedItem);
}

TEST(Boolean, OfItselfIsACycle) {
  const auto result =
      ReadForm<BooleanResult>(std::string(kSolid) + "#30=IFCBOOLEANRESULT(.UNION.,#40,#30);");
  EXPECT_EQ(ReasonOf(result.second), LossReason::kCycle);
}

TEST(Boolean, NestedTooDeepIsALimit) {
  constexpr std::size_t kDepth = 100'000;
  std::string text = kSolid;
  for (std::size_t i = 0; i < kDepth; ++i) {
    const std::size_t at = i == 0 ? 30 : 1000 + i;
    const std::string next = "#" + std::to_string(i + 1 < kDepth ? 1001 + i : 40);
    text += "#" + std::to_string(at) + "=IFCBOOLEANRESULT(.UNION.," + next + ",#40);";
  }
  const Unreadable fault = ReadFault(text);
  EXPECT_EQ(fault.reason, LossReason::kLimit);
  EXPECT_EQ(fault.at, 30U);
}

TEST(Boolean, MayBeNestedAsDeepAsTheOptionSays) {
  ReadingOptions options;
  options.maxDepth = 3;
  const std::string two =
      "#30=IFCBOOLEANRESULT(.UNION.,#41,#40);"
      "#41=IFCBOOLEANRESULT(.UNION.,#40,#40);";
  EXPECT_NE(FormOf<BooleanResult>(ReadItem(kSolid + two, "IFC2X3", options)), nullptr);
  options.maxDepth = 2;
  EXPECT_EQ(ReadFault(kSolid + two, "IFC2X3", options).reason, LossReason::kLimit);
}

const char kMap[] =
    "#30=IFCMAPPEDITEM(#31,#32);#31=IFCREPRESENTATIONMAP(#33,#34);"
    "#33=IFCAXIS2PLACEMENT3D(#35,$,$);#35=IFCCARTESIANPOINT((1000.,0.,0.));"
    "#34=IFCSHAPEREPRESENTATION($,'Body','SweptSolid',(#40));"
    "#36=IFCDIRECTION((0.,1.,0.));#37=IFCDIRECTION((1.,0.,0.));"
    "#38=IFCCARTESIANPOINT((0.,0.,500.));";

TEST(MappedItem, MovesTheOriginOfTheMapToItsTarget) {
  for (const std::string& schema : kSchemas) {
    const auto mapped = ReadForm<MappedItems>(
        std::string(kSolid) + kMap + "#32=IFCCARTESIANTRANSFORMATIONOPERATOR3D($,$,#38,$,$);",
        schema);
    ASSERT_EQ(mapped.items.size(), 1U) << schema;
    EXPECT_EQ(mapped.items[0]->id, 40U);
    ExpectPoint(mapped.transform(Point3(1.0, 0.0, 0.0)), 0.0, 0.0, 0.5);
  }
}

TEST(MappedItem, ScalesAndMirrors) {
  for (const std::string& schema : kSchemas) {
    // x goes to y and y to x, so z, which is not stated, stays: the map mirrors.
    const auto mapped =
        ReadForm<MappedItems>(std::string(kSolid) + kMap +
                                  "#32=IFCCARTESIANTRANSFORMATIONOPERATOR3D(#36,#37,#38,2.,#13);",
                              schema);
    ExpectPoint(mapped.transform(Point3(2.0, 3.0, 1.0)), 6.0, 2.0, 2.5);
    EXPECT_NEAR(mapped.transform.Determinant(), -8.0, 1e-12);
  }
}

TEST(MappedItem, CanScaleEachAxisByItself) {
  for (const std::string& schema : kSchemas) {
    const auto mapped = ReadForm<MappedItems>(
        std::string(kSolid) + kMap +
            "#32=IFCCARTESIANTRANSFORMATIONOPERATOR3DNONUNIFORM($,$,#38,2.,$,3.,4.);",
        schema);
    ExpectPoint(mapped.transform(Point3(2.0, 1.0, 1.0)), 2.0, 3.0, 4.5);
  }
}

TEST(MappedItem, IsReadOnceForAllItsUses) {
  const ReadText read =
      ReadData(CommonText() + kSolid + kMap +
               "#32=IFCCARTESIANTRANSFORMATIONOPERATOR3D($,$,#38,$,$);"
               "#20=IFCCOLUMN('a',$,$,$,$,$,#21,$);#21=IFCPRODUCTDEFINITIONSHAPE($,$,(#22));"
               "#22=IFCSHAPEREPRESENTATION($,'Body','MappedRepresentation',(#30));"
               "#23=IFCCOLUMN('b',$,$,$,$,$,#24,$);#24=IFCPRODUCTDEFINITIONSHAPE($,$,(#25));"
               "#25=IFCSHAPEREPRESENTATION($,'Body','MappedRepresentation',(#26));"
               "#26=IFCMAPPEDITEM(#31,#32);");
  ASSERT_EQ(read.facts.products.size(), 2U);
  const auto* first = FormOf<MappedItems>(read.facts.products[0].items.at(0));
  const auto* second = FormOf<MappedItems>(read.facts.products[1].items.at(0));
  ASSERT_TRUE(first != nullptr && second != nullptr);
  EXPECT_EQ(first->items[0], second->items[0]);
}

TEST(MappedItem, OfALargeMapSharesItsItems) {
  std::string text = std::string(kMap) + "#32=IFCCARTESIANTRANSFORMATIONOPERATOR3D($,$,#38,$,$);";
  std::string items;
  for (int i = 0; i < 100; ++i) {
    const std::string number = "#" + std::to_string(100 + i);
    text += number + "=IFCEXTRUDEDAREASOLID(#14,#11,#13,3000.);";
    items += (i == 0 ? "" : ",") + number;
  }
  text.replace(text.find("(#40)"), 5, "(" + items + ")");
  const auto mapped = ReadForm<MappedItems>(text);
  ASSERT_EQ(mapped.items.size(), 1U);
  const auto* shared = FormOf<MappedItems>(mapped.items[0]);
  ASSERT_NE(shared, nullptr);
  EXPECT_EQ(shared->items.size(), 100U);
}

struct BadMap {
  std::string text;
  LossReason reason;
};

TEST(MappedItem, IsAFaultIfItCannotBeRead) {
  const BadMap rows[] = {
      {"#30=IFCMAPPEDITEM(#99,$);", LossReason::kDangling},
      {"#30=IFCMAPPEDITEM(#31,$);#31=IFCREPRESENTATIONMAP(#11,#99);", LossReason::kDangling},
      {"#30=IFCMAPPEDITEM(#31,$);#31=IFCREPRESENTATIONMAP(#11,#32);"
       "#32=IFCSHAPEREPRESENTATION($,'Body','',(#30));",
       LossReason::kCycle},
  };
  for (const BadMap& row : rows) {
    SolidPointer solid = ReadItem(row.text);
    if (const auto* mapped = FormOf<MappedItems>(solid)) solid = mapped->items.at(0);
    EXPECT_EQ(ReasonOf(solid), row.reason) << row.text;
  }
}

TEST(MappedItem, OfNothingHasNoItems) {
  const ReadText read = ReadData(CommonText() + ColumnText() +
                                 "#30=IFCMAPPEDITEM(#31,$);#31=IFCREPRESENTATIONMAP(#11,#32);"
                                 "#32=IFCSHAPEREPRESENTATION($,'Body','',());");
  ASSERT_TRUE(read.Only().fault);
  EXPECT_EQ(read.Only().fault->reason, LossReason::kNoItems);
}

}  // namespace
}  // namespace KelIFC::building
