#include "kelifc/geometry/polygon_normal.h"

#include <algorithm>

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

constexpr double kTolerance = 1.1920928955078125e-7;

Vector3 NormalOf(std::initializer_list<Point3> points) {
  return PolygonNormal(Points3(points), kTolerance);
}

TEST(PolygonNormal, HasLengthOneForATriangle) {
  EXPECT_THAT(NormalOf({{0, 0, 0}, {3, 0, 0}, {0, 4, 0}}), IsNear3(0, 0, 1));
  EXPECT_THAT(NormalOf({{0, 0, 5}, {0, 4, 5}, {3, 0, 5}}), IsNear3(0, 0, -1));
  EXPECT_THAT(NormalOf({{7, 0, 0}, {7, 1, 0}, {7, 0, 1}}), IsNear3(1, 0, 0));
}

TEST(PolygonNormal, IsZeroWithoutThreePoints) {
  EXPECT_THAT(NormalOf({}), IsNear3(0, 0, 0));
  EXPECT_THAT(NormalOf({{1, 2, 3}}), IsNear3(0, 0, 0));
  EXPECT_THAT(NormalOf({{1, 2, 3}, {4, 5, 6}}), IsNear3(0, 0, 0));
}

TEST(PolygonNormal, IsZeroForPointsOnALine) {
  EXPECT_THAT(NormalOf({{0, 0, 0}, {1, 1, 1}, {2, 2, 2}, {5, 5, 5}}), IsNear3(0, 0, 0));
  EXPECT_THAT(NormalOf({{1, 1, 1}, {1, 1, 1}, {1, 1, 1}}), IsNear3(0, 0, 0));
}

TEST(PolygonNormal, SkipsPointsOnALineWithTheFirstTwo) {
  EXPECT_THAT(NormalOf({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {2, 2, 0}}), IsNear3(0, 0, 1));
}

TEST(PolygonNormal, IsNegatedWhenThePointsAreReversed) {
  // The first three points form a reflex corner.
  auto arrow = Points3({{4, 0, 0}, {1, 0, 0}, {0, -3, 0}, {5, 5, 0}});
  const Vector3 normal = PolygonNormal(arrow, kTolerance);
  std::reverse(arrow.begin(), arrow.end());
  const Vector3 reversed = PolygonNormal(arrow, kTolerance);
  EXPECT_THAT(reversed, IsNear3(-normal.x, -normal.y, -normal.z));
  EXPECT_NEAR(Length(normal), 1, 1e-12);
}

TEST(PolygonNormal, IgnoresAReflexCornerAtTheStart) {
  EXPECT_THAT(
      NormalOf({{2, 1, 0}, {0, 0, 0}, {1, 2, 0}, {9, 9, 0}, {-9, 9, 0}, {-9, -9, 0}, {9, -9, 0}}),
      IsNear3(0, 0, 1));
}

TEST(PolygonNormal, IsTheNegatedAxisForAPolygonWithoutArea) {
  // The polygon runs back on its own sides.
  EXPECT_THAT(NormalOf({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {1, 0, 0}}), IsNear3(0, 0, -1));
}

}  // namespace
}  // namespace KelIFC
