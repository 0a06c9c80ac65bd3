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

// A face of a surface model, 4 by 3 m, in a plane that slopes.
SolidPointer Sheet() {
  Shells shells;
  shells.isSurface = true;
  shells.shells.resize(1);
  shells.shells[0].points = {{0.0, 0.0, 0.0}, {4.0, 0.0, 3.0}, {4.0, 3.0, 3.0}, {0.0, 3.0, 0.0}};
  shells.shells[0].AddFace({0, 1, 2, 3});
  return Share({55, shells});
}

TEST(ElementMaker, ABoundaryInOnePlaneIsABodyWithoutVolume) {
  const BuildingElement plate = MakeElements({Product(1, "IfcPlate", {Sheet()})})[0];
  EXPECT_EQ(plate.kind, ElementKind::kBody);
  EXPECT_FALSE(plate.body.isClosed);
  EXPECT_TRUE(plate.isApproximate);
  EXPECT_FALSE(plate.volumeRatio);
  EXPECT_EQ(plate.body.box.max.z, 3.0);
}

TEST(ElementMaker, ABoundaryWithAGapThatEnclosesAVolumeIsAnElement) {
  Shells shells;
  shells.shells.resize(1);
  Mesh& box = shells.shells[0];
  box.points = {{0.0, 0.0, 0.0}, {4.0, 0.0, 0.0}, {4.0, 3.0, 0.0}, {0.0, 3.0, 0.0},
                {0.0, 0.0, 0.2}, {4.0, 0.0, 0.2}, {4.0, 3.0, 0.2}, {0.0, 3.0, 0.2}};
  box.AddFace({0, 3, 2, 1});
  for (Mesh::Index i = 0; i < 4; ++i) {
    const Mesh::Index next = (i + 1) % 4;
    box.AddFace({i, next, next + 4, i + 4});
  }
  const auto slabs = MakeElements({Product(1, "IfcSlab", {Share({56, shells})})});
  EXPECT_FALSE(slabs[0].body.isClosed);
  EXPECT_TRUE(slabs[0].isApproximate);
  ASSERT_TRUE(slabs[0].surface);
  EXPECT_NEAR(slabs[0].surface->thickness, 0.2, 1e-9);
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
