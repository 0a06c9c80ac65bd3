#include "kelifc/geometry/plane3.h"

#include "kelifc/geometry/constants.h"

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

TEST(Plane, IsTestedOnce) {
  Plane3 plane(Vector3(0, 0, 2), -6);
  EXPECT_TRUE(plane.IsValid());
  EXPECT_EQ(plane.squaredNorm, 4);
  EXPECT_EQ(plane.state, 1);
  plane.normal = Vector3();
  EXPECT_TRUE(plane.IsValid());
}

TEST(Plane, IsDegenerateWithoutANormal) {
  EXPECT_FALSE(Plane3().IsValid());
  EXPECT_FALSE(Plane3(Vector3(9e-11, 0, 0), 1).IsValid());
}

TEST(Plane, HasADistanceToAPoint) {
  EXPECT_DOUBLE_EQ(Plane3(Vector3(0, 0, 2), -6).SquaredDistance(Point3(9, 9, 5)), 4);
  EXPECT_EQ(Plane3().SquaredDistance(Point3(9, 9, 5)), 0);
}

TEST(Plane, IntersectsALine) {
  Plane3 plane(Vector3(0, 0, 2), -6);
  Line3 line(Point3(1, 1, 0), Vector3(1, 0, 1), 0.001);
  const LineHit3 hit = plane.Intersect(line);
  EXPECT_TRUE(hit.found);
  EXPECT_THAT(hit.point, IsNear3(4, 1, 3));
}

TEST(Plane, DoesNotIntersectAParallelLine) {
  Plane3 plane(AxisZ, -3);
  Line3 beside(Point3(1, 1, 0), AxisX, 0.001);
  EXPECT_FALSE(plane.Intersect(beside).found);
  EXPECT_THAT(plane.Intersect(beside).point, IsNear3(0, 0, 0));
}

TEST(Plane, DoesNotIntersectALineInsideIt) {
  Plane3 plane(AxisZ, -3);
  Line3 inside(Point3(1, 1, 3), AxisX, 0.001);
  EXPECT_FALSE(plane.Intersect(inside).found);
  EXPECT_THAT(plane.Intersect(inside).point, IsNear3(1, 1, 3));
}

TEST(Plane, DoesNotIntersectIfEitherIsDegenerate) {
  Plane3 plane(AxisZ, -3);
  Plane3 none;
  Line3 line(Point3(1, 1, 0), AxisZ, 0.001);
  Line3 noLine(Point3(1, 1, 0), Vector3(), 0.001);
  EXPECT_FALSE(none.Intersect(line).found);
  EXPECT_FALSE(plane.Intersect(noLine).found);
}

}  // namespace
}  // namespace KelIFC
