#include "kelifc/geo/reading/element_points.h"

#include <gtest/gtest.h>

#include <cmath>

namespace KelIFC {
namespace {

void ExpectNear(const Point3& point, const Point3& wanted) {
  EXPECT_NEAR(point.x, wanted.x, 1e-9);
  EXPECT_NEAR(point.y, wanted.y, 1e-9);
  EXPECT_NEAR(point.z, wanted.z, 1e-9);
}

/// A square of 2 m whose side from (2, 0) to (2, 2) is a half circle to the outside, at a level.
SurfaceRegion RoundedSquare(double z) {
  SurfaceRegion surface;
  surface.outline = {{0.0, 0.0, z}, {2.0, 0.0, z}, {2.0, 2.0, z}, {0.0, 2.0, z}};
  surface.arcs = {{1, {3.0, 1.0, z}}};
  surface.normal = {0.0, 0.0, 1.0};
  return surface;
}

TEST(ElementPoints, AnOutlineWithoutArcsStaysExactly) {
  SurfaceRegion surface = RoundedSquare(0.1);
  surface.arcs.clear();
  const Mvector<Point3> points = ChordedOutline(surface);
  ASSERT_EQ(points.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(points[i].x, surface.outline[i].x);
    EXPECT_EQ(points[i].y, surface.outline[i].y);
    EXPECT_EQ(points[i].z, surface.outline[i].z);
  }
}

TEST(ElementPoints, ChordsAreOnTheirArcAndNearIt) {
  const Mvector<Point3> points = ChordedOutline(RoundedSquare(5.0));
  ASSERT_GT(points.size(), 20U);
  const std::size_t arcEnd = points.size() - 2;
  for (std::size_t i = 1; i <= arcEnd; ++i) {
    EXPECT_NEAR(std::hypot(points[i].x - 2.0, points[i].y - 1.0), 1.0, 1e-9);
    EXPECT_GE(points[i].x, 2.0 - 1e-9);
    EXPECT_NEAR(points[i].z, 5.0, 1e-9);
    if (i == arcEnd) break;
    const Point3& next = points[i + 1];
    const double middle =
        std::hypot(0.5 * (points[i].x + next.x) - 2.0, 0.5 * (points[i].y + next.y) - 1.0);
    EXPECT_GT(middle, 1.0 - 1.001e-4);
    EXPECT_LT(points[i].y, next.y);
  }
  EXPECT_EQ(points[arcEnd].y, 2.0);
}

TEST(ElementPoints, TheLastEdgeCanBeAnArc) {
  SurfaceRegion surface = RoundedSquare(0.0);
  surface.arcs = {{3, {-1.0, 1.0, 0.0}}};
  const Mvector<Point3> points = ChordedOutline(surface);
  ASSERT_GT(points.size(), 20U);
  const Point3& last = points[points.size() - 1];
  EXPECT_LT(last.x, 0.0);
  EXPECT_LT(last.y, 0.2);
}

TEST(ElementPoints, ADegenerateArcIsItsChord) {
  SurfaceRegion surface = RoundedSquare(0.0);
  surface.arcs = {{1, {2.0, 1.0, 0.0}}, {2, {2.0, 2.0, 0.0}}};
  EXPECT_EQ(ChordedOutline(surface).size(), 4U);
}

TEST(ElementPoints, ADiagonalGoesFromTheFootOfOneEndToTheHeadOfTheOther) {
  // A gable in the plane y = 1. The normal to the left of the x direction is the y direction.
  const std::vector<Point3> gable = {
      {1.0, 1.0, 0.5}, {5.0, 1.0, 0.5}, {5.0, 1.0, 3.0}, {3.0, 1.0, 4.0}, {1.0, 1.0, 3.0}};
  const auto diagonal = DiagonalOf(gable, {0.0, 1.0, 0.0});
  ExpectNear(diagonal[0], {1.0, 1.0, 0.5});
  ExpectNear(diagonal[1], {5.0, 1.0, 4.0});
  const auto back = DiagonalOf(gable, {0.0, -1.0, 0.0});
  ExpectNear(back[0], {5.0, 1.0, 0.5});
  ExpectNear(back[1], {1.0, 1.0, 4.0});
}

TEST(ElementPoints, ADiagonalOfAPlaneThatIsHorizontalIsInThePlane) {
  const std::vector<Point3> floor = {{0.0, 0.0, 2.0}, {3.0, 0.0, 2.0}, {3.0, 4.0, 2.0}};
  const auto diagonal = DiagonalOf(floor, {0.0, 0.0, 1.0});
  EXPECT_NEAR(diagonal[0].z, 2.0, 1e-9);
  EXPECT_NEAR(Length(diagonal[1] - diagonal[0]), 5.0, 1e-9);
}

TEST(ElementPoints, TheLowerCentreIsInTheLowerFaceOfTheBox) {
  ExpectNear(LowerCentreOf({{1.0, 2.0, -1.0}, {3.0, 6.0, 0.0}}), {2.0, 4.0, -1.0});
}

}  // namespace
}  // namespace KelIFC
