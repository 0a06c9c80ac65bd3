#include "kelifc/building/build/element_maker.h"

#include <gtest/gtest.h>

#include "kelifc/building/build/element_key.h"

#include "tests/building/build/made_facts.h"

namespace KelIFC::building {
namespace {

std::string KeyOf(const ProductFacts& product, ElementRole role = ElementRole::kWall) {
  std::string key;
  EXPECT_TRUE(MakeElementKey(product, role, key));
  return key;
}

/// A wall of 5 m along x, 0.25 m thick and 3 m high.
ProductFacts Wall(std::size_t id) { return Product(id, "IfcWall", {Block(5.0, 0.25, 3.0, id)}); }

/// Makes elements in turn, each of them announced.
std::vector<BuildingElement> MakeElements(const std::vector<ProductFacts>& products,
                                          const ReadingOptions& options = {}) {
  ElementMaker maker(options);
  for (const ProductFacts& product : products) maker.Announce(product);
  std::vector<BuildingElement> elements(products.size());
  for (std::size_t i = 0; i < products.size(); ++i) {
    EXPECT_FALSE(maker.Make(products[i], elements[i]));
  }
  return elements;
}

TEST(ElementKey, DoesNotDependOnNames) {
  ProductFacts other = Wall(9);
  other.material.layers = {{"brick", true, 0.25}};
  ProductFacts wall = Wall(7);
  wall.material.layers = {{"concrete", true, 0.25}};
  EXPECT_EQ(KeyOf(wall), KeyOf(other));
}

TEST(ElementKey, DependsOnEverythingThatTheShapeDependsOn) {
  const std::string key = KeyOf(Wall(7));
  EXPECT_NE(KeyOf(Wall(7), ElementRole::kSlab), key);
  EXPECT_NE(KeyOf(Product(7, "IfcWall", {Block(5.0, 0.25, 3.1)})), key);
  ProductFacts moved = Wall(7);
  moved.placement.origin.z = 3.0;
  EXPECT_NE(KeyOf(moved), key);
  ProductFacts withAxis = Wall(7);
  withAxis.axis = SpaceCurve{{{0.0, 0.0, 0.0}, {5.0, 0.0, 0.0}}, {}, false};
  EXPECT_NE(KeyOf(withAxis), key);
  ProductFacts withUsage = Wall(7);
  withUsage.material.usage = {2, false, 0.0, true};
  EXPECT_NE(KeyOf(withUsage), key);
  ProductFacts withLayers = Wall(7);
  withLayers.material.layers = {{"brick", true, 0.25}};
  EXPECT_NE(KeyOf(withLayers), key);
}

TEST(ElementKey, IsNotMadeForAShapeThatCannotBeRead) {
  std::string key;
  const ProductFacts product =
      Product(1, "IfcWall", {Unknown(LossReason::kDangling, 2), Block(1.0, 1.0, 1.0)});
  EXPECT_FALSE(MakeElementKey(product, ElementRole::kWall, key));
}

TEST(ElementMaker, MakesEqualProductsEqual) {
  ReadingOptions options;
  options.keptBodies = KeptBodies::kAll;
  const auto walls = MakeElements({Wall(1), Wall(2)}, options);
  for (const BuildingElement& wall : walls) {
    ASSERT_TRUE(wall.surface);
    EXPECT_NEAR(wall.surface->thickness, 0.25, 1e-12);
    EXPECT_NEAR(wall.volume, 3.75, 1e-12);
  }
  EXPECT_EQ(walls[0].body.mesh, walls[1].body.mesh);  // made once, and shared
}

TEST(ElementMaker, TellsProductsApartThatDifferOnlyInTheirLayers) {
  ProductFacts left = Wall(1);
  left.material.usage = {2, true, 0.0, true};
  ProductFacts right = Wall(2);
  right.material.usage = {2, false, 0.0, true};
  const auto walls = MakeElements({left, right});
  ASSERT_TRUE(walls[0].surface && walls[1].surface);
  EXPECT_NEAR(walls[0].surface->normal.y, 1.0, 1e-12);
  EXPECT_NEAR(walls[1].surface->normal.y, -1.0, 1e-12);
}

TEST(ElementMaker, CountsThePointsOfEachProductAgainstTheLimit) {
  ReadingOptions options;
  options.maxBodyPoints = 8;
  options.maxPoints = 20;  // two walls of 8 points
  ElementMaker maker(options);
  BuildingElement element;
  EXPECT_FALSE(maker.Make(Wall(1), element));
  EXPECT_FALSE(maker.Make(Wall(2), element));
  const auto fault = maker.Make(Wall(3), element);
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->reason, LossReason::kLimit);
  EXPECT_EQ(fault->at, 3u);
}

TEST(ElementMaker, MovesASharedBodyToEachOfItsPlacesAlsoAfterAnEqualProduct) {
  const std::vector<SolidPointer> mapped = {Mapped({Block(1.0, 0.5, 3.0)})};
  const auto columns =
      MakeElements({Product(1, "IfcColumn", mapped), Product(2, "IfcColumn", mapped),
                    Product(3, "IfcColumn", mapped, MovedTo(7.0, 0.0, 0.0))});
  EXPECT_NEAR(columns[1].body.box.min.x, -0.5, 1e-12);
  EXPECT_NEAR(columns[2].body.box.min.x, 6.5, 1e-12);
  for (const BuildingElement& column : columns) EXPECT_EQ(column.mappedDepth, 1u);
}

}  // namespace
}  // namespace KelIFC::building
