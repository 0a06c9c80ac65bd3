#include "kelifc/geometry/placed_boundary.h"

#include <gtest/gtest.h>

#include <random>

namespace KelIFC {
namespace {

Point3 Any(std::mt19937& random) {
  std::uniform_real_distribution<double> within(-10, 10);
  const double x = within(random);
  const double y = within(random);
  return Point3(x, y, within(random));
}

TEST(PlacedBoundary, IsEmptyWithoutAShape) {
  const PlacedBoundary none = {nullptr, {Isometry3()}};
  EXPECT_TRUE(none.ToWorld().vertices.empty());
  EXPECT_TRUE(none.ToWorld().faces.empty());
}

TEST(PlacedBoundary, AppliesOneTransformAfterTheOther) {
  std::mt19937 random(1);
  for (int round = 0; round < 100; ++round) {
    PlacedBoundary placed;
    for (int i = 0; i < 4; ++i) {
      const Point3 origin = Any(random);
      const Point3 onX = Any(random);
      placed.transforms.emplace_back(origin, onX, Any(random));
    }
    BRep shape;
    for (int loop = 0; loop < 3; ++loop) {
      const Vector3 normal = Any(random) - Point3();
      for (int i = 0; i < 4; ++i) shape.vertices.push_back({Any(random), normal});
    }
    BRep expected = shape;
    for (const Isometry3& frame : placed.transforms) expected <<= frame;
    placed.shape = std::make_shared<const BRep>(shape);
    const BRep world = placed.ToWorld();
    ASSERT_EQ(world.vertices.size(), expected.vertices.size());
    for (std::size_t i = 0; i < world.vertices.size(); ++i) {
      EXPECT_EQ(Length(world.vertices[i].position - expected.vertices[i].position), 0);
      EXPECT_EQ(Length(world.vertices[i].normal + -expected.vertices[i].normal), 0);
    }
  }
}

TEST(PlacedBoundary, LeavesTheSharedShapeUnchanged) {
  BRep shape;
  shape.vertices.push_back({Point3(1, 2, 3), Vector3(0, 0, 1)});
  shape.faces.push_back(BRepFace());
  const auto shared = std::make_shared<const BRep>(shape);
  const Isometry3 moved(Point3(10, 0, 0), Point3(11, 0, 0), Point3(10, 1, 0));
  const PlacedBoundary placed = {shared, {moved}};
  EXPECT_EQ(placed.ToWorld().vertices[0].position.x, 11);
  EXPECT_EQ(placed.ToWorld().faces.size(), 1u);
  EXPECT_EQ(shared->vertices[0].position.x, 1);
}

}  // namespace
}  // namespace KelIFC
