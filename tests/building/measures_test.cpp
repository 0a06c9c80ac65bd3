#include "kelifc/building/measures.h"

#include <gtest/gtest.h>

#include "tests/building/made_building.h"

namespace KelIFC {
namespace {

constexpr double kPi = 3.14159265358979323846;

TEST(Measures, AnAxisIsAsLongAsItsCurve) {
  MemberAxis axis;
  axis.points = {{0.0, 0.0, 0.0}, {3.0, 4.0, 0.0}};
  EXPECT_DOUBLE_EQ(LengthOf(axis), 5.0);
  axis.curve = CurveForm::kPolyline;
  axis.points.push_back({3.0, 4.0, 2.0});
  EXPECT_DOUBLE_EQ(LengthOf(axis), 7.0);
  axis.curve = CurveForm::kArc;
  axis.points = {{2.0, 0.0, 0.0}, {0.0, 2.0, 0.0}, {0.0, -2.0, 0.0}};  // three quarters of a circle
  EXPECT_NEAR(LengthOf(axis), 3.0 * kPi, 1e-12);
  axis.points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {3.0, 0.0, 0.0}};
  EXPECT_NEAR(LengthOf(axis), 3.0, 1e-12);
  axis.points = {{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {0.0, 0.0, 0.0}};  // a full circle
  EXPECT_NEAR(LengthOf(axis), 2.0 * kPi, 1e-12);
}

TEST(Measures, AreaAndPerimeterCountHoles) {
  SurfaceRegion slab = *Slab(1, 5.0, 4.0).surface;
  slab.holes = {{{1.0, 1.0, 0.0}, {1.0, 2.0, 0.0}, {3.0, 2.0, 0.0}, {3.0, 1.0, 0.0}}};
  EXPECT_DOUBLE_EQ(AreaOf(slab), 18.0);
  EXPECT_DOUBLE_EQ(PerimeterOf(slab), 24.0);
}

TEST(Measures, EdgesThatAreArcsAreMeasuredAsArcs) {
  SurfaceRegion slab = *Slab(1, 5.0, 2.0).surface;
  slab.arcs = {{1, {6.0, 1.0, 0.0}}};  // half a circle of radius 1 outwards
  EXPECT_NEAR(AreaOf(slab), 10.0 + 0.5 * kPi, 1e-12);
  EXPECT_NEAR(PerimeterOf(slab), 12.0 + kPi, 1e-12);
  slab.arcs = {{1, {4.0, 1.0, 0.0}}};  // inwards
  EXPECT_NEAR(AreaOf(slab), 10.0 - 0.5 * kPi, 1e-12);
  slab.arcs = {{99, {4.0, 1.0, 0.0}}};
  EXPECT_NEAR(AreaOf(slab), 10.0, 1e-12);
}

TEST(Measures, ACurvedWallIsItsBaseLineTimesItsHeight) {
  BuildingElement wall = Slab(1, 1.0, 1.0);
  wall.surface->sweep = {
      CurveForm::kArc, {{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {-1.0, 0.0, 0.0}}, {0.0, 0.0, 1.0}, 3.0};
  EXPECT_NEAR(*LengthOf(wall), kPi, 1e-12);
  EXPECT_NEAR(AreaOf(*wall.surface), 3.0 * kPi, 1e-12);
  EXPECT_NEAR(PerimeterOf(*wall.surface), kPi, 1e-12);
}

TEST(Measures, TheLengthOfAWallIsItsHorizontalExtent) {
  BuildingElement wall = Slab(1, 1.0, 1.0);
  EXPECT_EQ(LengthOf(wall), std::nullopt);
  wall.surface->normal = {0.0, -1.0, 0.0};
  wall.surface->outline = {{1.0, 0.0, 0.0}, {5.0, 0.0, 0.0}, {6.0, 0.0, 9.0}, {0.5, 0.0, 3.0}};
  EXPECT_NEAR(*LengthOf(wall), 5.5, 1e-12);
}

TEST(Measures, OfNothingAreNothing) {
  EXPECT_EQ(LengthOf(MemberAxis()), 0.0);
  EXPECT_EQ(AreaOf(SurfaceRegion()), 0.0);
  EXPECT_EQ(PerimeterOf(SurfaceRegion()), 0.0);
  EXPECT_EQ(LengthOf(BuildingElement()), std::nullopt);
}

}  // namespace
}  // namespace KelIFC
