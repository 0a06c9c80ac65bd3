#include "kelifc/geometry/point.h"

#include <cmath>

#include "kelifc/geometry/constants.h"

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

TEST(Point, IsZeroAtFirst) {
  EXPECT_THAT(Point2(), IsNear2(0, 0));
  EXPECT_THAT(Vector2(), IsNear2(0, 0));
  EXPECT_THAT(Point3(), IsNear3(0, 0, 0));
  EXPECT_THAT(Vector3(), IsNear3(0, 0, 0));
}

TEST(Point, DiffersFromAnotherByAVector) {
  EXPECT_THAT(Point3(5, 7, 9) - Point3(1, 2, 3), IsNear3(4, 5, 6));
  EXPECT_THAT(Point2(5, 7) - Point2(1, 2), IsNear2(4, 5));
  EXPECT_THAT(Point3(1, 2, 3) + Vector3(4, 5, 6), IsNear3(5, 7, 9));
  EXPECT_THAT(Point2(1, 2) + Vector2(4, 5), IsNear2(5, 7));
  Point3 moved(1, 2, 3);
  moved += Vector3(1, 1, 1);
  EXPECT_THAT(moved, IsNear3(2, 3, 4));
}

TEST(Vector, IsScaled) {
  EXPECT_THAT(Vector3(1, 2, 3) * 2, IsNear3(2, 4, 6));
  EXPECT_THAT(2 * Vector3(1, 2, 3), IsNear3(2, 4, 6));
  EXPECT_THAT(Vector3(2, 4, 6) / 2, IsNear3(1, 2, 3));
  EXPECT_THAT(-Vector3(1, 2, 3), IsNear3(-1, -2, -3));
  EXPECT_THAT(Vector2(1, 2) * 2, IsNear2(2, 4));
  Vector3 scaled(1, 2, 3);
  scaled *= 3;
  EXPECT_THAT(scaled, IsNear3(3, 6, 9));
}

TEST(Vector, HasAProductOfEachKind) {
  EXPECT_EQ(Dot(Vector3(1, 2, 3), Vector3(4, 5, 6)), 32);
  EXPECT_EQ(Dot(Vector2(1, 2), Vector2(3, 4)), 11);
  EXPECT_THAT(Cross(AxisX, AxisY), IsNear3(0, 0, 1));
  EXPECT_THAT(Cross(AxisY, AxisZ), IsNear3(1, 0, 0));
  EXPECT_THAT(Cross(AxisZ, AxisX), IsNear3(0, 1, 0));
  EXPECT_EQ(Cross(Vector2(1, 2), Vector2(3, 4)), -2);
}

TEST(Vector, HasALength) {
  EXPECT_EQ(Length(Vector3(2, 3, 6)), 7);
  EXPECT_EQ(Length(Vector2(3, 4)), 5);
  EXPECT_EQ(Distance(Point2(1, 1), Point2(4, 5)), 5);
}

TEST(Vector, HasLengthOneAfterItIsNormalised) {
  Vector3 space(0, 3, 4);
  Normalise(space);
  EXPECT_THAT(space, IsNear3(0, 0.6, 0.8));
  Vector2 plane(3, 4);
  Normalise(plane);
  EXPECT_THAT(plane, IsNear2(0.6, 0.8));
}

TEST(Vector, StaysZeroAfterItIsNormalised) {
  Vector3 space;
  Normalise(space);
  EXPECT_THAT(space, IsNear3(0, 0, 0));
  Vector2 plane;
  Normalise(plane);
  EXPECT_THAT(plane, IsNear2(0, 0));
}

TEST(Vector, HasAnAngleFromZeroToPi) {
  const double pi = std::acos(-1.0);
  EXPECT_DOUBLE_EQ(Angle(AxisX, AxisX), 0);
  EXPECT_DOUBLE_EQ(Angle(AxisX, AxisY), pi / 2);
  EXPECT_DOUBLE_EQ(Angle(AxisY, AxisX), pi / 2);
  EXPECT_DOUBLE_EQ(Angle(AxisX, -AxisX), pi);
  EXPECT_DOUBLE_EQ(Angle(Vector3(), AxisX), 0);
}

TEST(Constants, AreUnitVectorsAndZeros) {
  EXPECT_THAT(AxisX2, IsNear2(1, 0));
  EXPECT_THAT(AxisY2, IsNear2(0, 1));
  EXPECT_THAT(Zero2, IsNear2(0, 0));
  EXPECT_THAT(Zero3, IsNear3(0, 0, 0));
  EXPECT_THAT(Origin2, IsNear2(0, 0));
  EXPECT_THAT(Origin3, IsNear3(0, 0, 0));
  EXPECT_THAT(ProfileOrigin, IsNear2(0, 0));
}

}  // namespace
}  // namespace KelIFC
