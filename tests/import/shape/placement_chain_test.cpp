#include "kelifc/import/shape/placement_chain.h"

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

PlacementChain AnyChain(std::mt19937& random) {
  PlacementChain chain;
  for (int i = 0; i < 4; ++i) {
    const Point3 origin = Any(random);
    const Point3 onX = Any(random);
    chain.emplace_back(origin, onX, Any(random));
  }
  return chain;
}

TEST(PlacementChain, TransformsABoundaryByOneTransformAfterTheOther) {
  std::mt19937 random(1);
  for (int round = 0; round < 100; ++round) {
    const PlacementChain chain = AnyChain(random);
    BRep boundary;
    for (int loop = 0; loop < 3; ++loop) {
      const Vector3 normal = Any(random) - Point3();
      for (int i = 0; i < 4; ++i) boundary.vertices.push_back({Any(random), normal});
    }
    BRep expected = boundary;
    for (const Isometry3& frame : chain) expected <<= frame;
    ApplyPlacementChain(chain, boundary);
    for (std::size_t i = 0; i < boundary.vertices.size(); ++i) {
      EXPECT_EQ(Length(boundary.vertices[i].position - expected.vertices[i].position), 0);
      EXPECT_EQ(Length(boundary.vertices[i].normal + -expected.vertices[i].normal), 0);
    }
  }
}

TEST(PlacementChain, TurnsAVectorWithoutMovingIt) {
  const PlacementChain chain = {Isometry3(Point3(5, 5, 5), Point3(5, 6, 5), Point3(4, 5, 5))};
  Vector3 vector(1, 0, 0);
  ApplyPlacementChain(chain, vector);
  EXPECT_NEAR(vector.x, 0, 1e-12);
  EXPECT_NEAR(vector.y, 1, 1e-12);
  EXPECT_NEAR(vector.z, 0, 1e-12);
}

TEST(PlacementChain, ChangesNothingIfItIsEmpty) {
  Point3 point(1, 2, 3);
  Mvector<Point3> points;
  points.push_back(point);
  ApplyPlacementChain({}, point);
  ApplyPlacementChain({}, points);
  EXPECT_EQ(point.z, 3);
  EXPECT_EQ(points[0].y, 2);
}

}  // namespace
}  // namespace KelIFC
