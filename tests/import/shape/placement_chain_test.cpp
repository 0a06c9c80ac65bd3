#include "kelifc/import/shape/placement_chain.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

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
