#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "kelifc/building/profile/make_profile.h"

namespace KelIFC::building {
namespace {

constexpr double kDegree = std::numbers::pi / 180.0;

FlatRegion RectangleAt(double b, double h, double angle, const Point2& centre) {
  FlatRegion region;
  for (const auto& [x, y] : {std::pair{-b, -h}, {b, -h}, {b, h}, {-b, h}}) {
    region.outer.emplace_back(centre.x + (x * std::cos(angle) - y * std::sin(angle)) / 2.0,
                              centre.y + (x * std::sin(angle) + y * std::cos(angle)) / 2.0);
  }
  return region;
}

TEST(SlicedProfile, TurnsToThePrincipalAxes) {
  const SlicedProfile sliced = MakeProfile(RectangleAt(0.2, 0.4, 30.0 * kDegree, {5, 7}), "beam");
  EXPECT_EQ(sliced.profile.name, "beam");
  EXPECT_NEAR(sliced.rotation, 30.0 * kDegree, 1e-12);
  EXPECT_NEAR(sliced.centroid.x, 5.0, 1e-12);
  EXPECT_NEAR(sliced.centroid.y, 7.0, 1e-12);
  EXPECT_NEAR(sliced.profile.iy, 0.2 * 0.064 / 12.0, 1e-12);
  EXPECT_NEAR(sliced.profile.iyz, 0.0, 1e-12);
  EXPECT_NEAR(sliced.profile.outline[0].x, -0.1, 1e-12);
  EXPECT_NEAR(sliced.profile.outline[0].y, -0.2, 1e-12);
}

TEST(SlicedProfile, TurnsAFlatRectangleByAQuarterExactly) {
  const SlicedProfile sliced = MakeProfile(RectangleAt(0.5, 0.25, 0.0, {}), "");
  EXPECT_EQ(sliced.rotation, std::numbers::pi / 2.0);
  EXPECT_EQ(std::abs(sliced.profile.outline[0].x), 0.125);
  EXPECT_GT(sliced.profile.iy, sliced.profile.iz);
}

TEST(SlicedProfile, LeavesAnOutlineAsItIsWithinAHundredthOfADegree) {
  EXPECT_EQ(MakeProfile(RectangleAt(0.2, 0.4, 0.009 * kDegree, {}), "").rotation, 0.0);
  EXPECT_NE(MakeProfile(RectangleAt(0.2, 0.4, 0.011 * kDegree, {}), "").rotation, 0.0);
}

TEST(SlicedProfile, TurnsASquareToItsEdges) {
  const SlicedProfile sliced = MakeProfile(RectangleAt(0.3, 0.3, 20.0 * kDegree, {}), "");
  EXPECT_NEAR(sliced.rotation, 20.0 * kDegree, 1e-12);
  EXPECT_NEAR(std::abs(sliced.profile.outline[0].x), 0.15, 1e-12);
}

TEST(SlicedProfile, OfAnEmptyRegionIsEmpty) {
  const SlicedProfile sliced = MakeProfile(FlatRegion{}, "");
  EXPECT_EQ(sliced.profile.area, 0.0);
  EXPECT_TRUE(sliced.profile.outline.empty());
}

}  // namespace
}  // namespace KelIFC::building
