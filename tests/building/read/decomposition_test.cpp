#include "kelifc/building/read/decomposition.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

std::string Element(int number, const std::string& entity) {
  return "#" + std::to_string(number) + "=" + entity + "('e',$,$,$,$,$,$,$);";
}

std::string Aggregate(int number, int whole, const std::string& parts) {
  return "#" + std::to_string(number) + "=IFCRELAGGREGATES('r',$,$,$,#" + std::to_string(whole) +
         ",(" + parts + "));";
}

std::vector<std::size_t> ProductsOf(const ReadText& read) {
  std::vector<std::size_t> numbers;
  for (const ProductFacts& product : read.facts.products) numbers.push_back(product.id);
  return numbers;
}

using Numbers = std::vector<std::size_t>;

TEST(Products, AreTheStructuralElements) {
  const std::string data = Element(9, "IFCWALL") + Element(3, "IFCWALLSTANDARDCASE") +
                           Element(4, "IFCSLAB") + Element(5, "IFCPLATE") +
                           Element(6, "IFCRAMPFLIGHT") + Element(7, "IFCDOOR") +
                           Element(8, "IFCROOF") + Element(10, "IFCBUILDINGELEMENTPART");
  for (const std::string& schema : kSchemas) {
    EXPECT_EQ(ProductsOf(ReadData(data, schema)), (Numbers{9, 3, 4, 5, 6})) << schema;
  }
}

TEST(Products, AreThePartsOfWholesAtAnyDepth) {
  for (const std::string& schema : kSchemas) {
    const ReadText read = ReadData(
        Element(1, "IFCROOF") + Element(2, "IFCSLAB") + Element(3, "IFCBUILDINGELEMENTPROXY") +
            Element(4, "IFCBUILDINGELEMENTPART") + Element(5, "IFCCOVERING") +
            Element(6, "IFCMECHANICALFASTENER") + Element(7, "IFCDOOR") +
            Aggregate(20, 1, "#2,#3,#5") + Aggregate(21, 3, "#4,#6"),
        schema);
    EXPECT_EQ(ProductsOf(read), (Numbers{2, 3, 4})) << schema;
    EXPECT_EQ(read.Find(2)->whole, 0U);  // the roof is not a product
    EXPECT_EQ(read.Find(4)->whole, 3U);
    EXPECT_TRUE(read.Find(3)->hasProductParts);
    EXPECT_FALSE(read.Find(4)->hasProductParts);
    EXPECT_FALSE(read.Find(2)->hasProductParts);
  }
}

TEST(Products, OfStructuralClassesStayProductsBelowOthers) {
  const ReadText read = ReadData(Element(1, "IFCSTAIR") + Element(2, "IFCRAILING") +
                                 Element(3, "IFCMEMBER") + Element(4, "IFCBUILDINGELEMENTPROXY") +
                                 Aggregate(20, 1, "#2") + Aggregate(21, 2, "#3,#4"));
  EXPECT_EQ(ProductsOf(read), (Numbers{3}));
  EXPECT_EQ(read.Find(3)->whole, 0U);
}

TEST(Products, ThatContainThemselvesAreFaults) {
  const ReadText read =
      ReadData(Element(1, "IFCWALL") + Element(2, "IFCWALL") + Element(3, "IFCWALL") +
               Aggregate(20, 1, "#2") + Aggregate(21, 2, "#1,#3"));
  ASSERT_EQ(read.facts.products.size(), 3U);
  for (const std::size_t number : {1, 2}) {
    const ProductFacts& product = *read.Find(number);
    EXPECT_EQ(product.whole, 0U);
    ASSERT_TRUE(product.fault);
    EXPECT_EQ(product.fault->reason, LossReason::kCycle);
  }
  EXPECT_EQ(read.Find(1)->fault->at, 21U);
  EXPECT_EQ(read.Find(3)->whole, 2U);
  EXPECT_FALSE(read.Find(1)->hasProductParts);
  EXPECT_TRUE(read.Find(2)->hasProductParts);
}

TEST(Products, NestedTooDeepAreALimit) {
  ReadingOptions options;
  options.maxDepth = 2;
  std::string data = CommonText() + "#30=IFCEXTRUDEDAREASOLID(#14,#11,#13,3000.);" +
                     "#21=IFCPRODUCTDEFINITIONSHAPE($,$,(#22));"
                     "#22=IFCSHAPEREPRESENTATION($,'Body','SweptSolid',(#30));";
  for (int i = 0; i < 5; ++i) {
    data += "#" + std::to_string(100 + i) + "=IFCBEAM('e',$,$,$,$,$,#21,$);";
    if (i > 0) data += Aggregate(200 + i, 99 + i, "#" + std::to_string(100 + i));
  }
  const ReadText read = ReadData(data, "IFC2X3", options);
  ASSERT_EQ(read.facts.products.size(), 5U);
  EXPECT_FALSE(read.Find(102)->fault);
  ASSERT_TRUE(read.Find(103)->fault);
  EXPECT_EQ(read.Find(103)->fault->reason, LossReason::kLimit);
}

TEST(Products, InALongChainAreRead) {
  constexpr int kLength = 50'000;
  std::string data;
  for (int i = 0; i < kLength; ++i) {
    data += Element(1000 + i, "IFCBEAM");
    if (i > 0) data += Aggregate(100'000 + i, 1000 + i, "#" + std::to_string(999 + i));
  }
  const ReadText read = ReadData(data);
  ASSERT_EQ(read.facts.products.size(), static_cast<std::size_t>(kLength));
  EXPECT_EQ(read.facts.products[0].whole, 1001U);
  EXPECT_TRUE(read.facts.products[kLength - 1].hasProductParts);
}

const char kStructure[] =
    "#60=IFCBUILDING('b',$,$,$,$,$,$,$,.ELEMENT.,$,$,$);"
    "#61=IFCBUILDINGSTOREY('s',$,'S',$,$,$,$,$,.ELEMENT.,0.);"
    "#62=IFCSPACE('r',$,$,$,$,$,$,$,.ELEMENT.,.INTERNAL.,$);"
    "#63=IFCRELAGGREGATES('x',$,$,$,#60,(#61));#64=IFCRELAGGREGATES('y',$,$,$,#61,(#62));";

std::string Contain(int number, int structure, const std::string& elements) {
  return "#" + std::to_string(number) + "=IFCRELCONTAINEDINSPATIALSTRUCTURE('k',$,$,$,(" +
         elements + "),#" + std::to_string(structure) + ");";
}

TEST(Storey, IsThatOfTheElementTheWholeOrTheSpace) {
  for (const std::string& schema : kSchemas) {
    const ReadText read =
        ReadData(std::string(kStructure) + Element(1, "IFCWALL") + Element(2, "IFCWALL") +
                     Element(3, "IFCWALL") + Element(4, "IFCSTAIR") + Element(5, "IFCSLAB") +
                     Element(6, "IFCBEAM") + Contain(70, 61, "#1,#4") + Contain(71, 62, "#2") +
                     Contain(72, 60, "#3") + Aggregate(73, 4, "#5") + Aggregate(74, 61, "#6"),
                 schema);
    EXPECT_EQ(read.Find(1)->storey, 61U) << schema;
    EXPECT_EQ(read.Find(2)->storey, 61U);
    EXPECT_EQ(read.Find(3)->storey, 0U);
    EXPECT_EQ(read.Find(5)->storey, 61U);
    EXPECT_EQ(read.Find(6)->storey, 61U);
  }
}

TEST(Storey, IsNoneInACycle) {
  const ReadText read =
      ReadData(Element(1, "IFCWALL") + "#62=IFCSPACE('r',$,$,$,$,$,$,$,.ELEMENT.,.INTERNAL.,$);" +
               Contain(70, 62, "#1") + Aggregate(71, 62, "#62"));
  EXPECT_EQ(read.Only().storey, 0U);
}

}  // namespace
}  // namespace KelIFC::building
