#include "kelifc/building/profile/section_moments.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace KelIFC::building {
namespace {

constexpr double kPi = std::numbers::pi;

TEST(SectionMoments, OfARectangleAreThoseOfTheFormula) {
  const RegionProperties p = PropertiesOf(FlatRegion{{{1, 2}, {1.3, 2}, {1.3, 2.6}, {1, 2.6}}, {}});
  EXPECT_NEAR(p.area, 0.18, 1e-15);
  EXPECT_NEAR(p.centroid.x, 1.15, 1e-15);
  EXPECT_NEAR(p.centroid.y, 2.3, 1e-15);
  EXPECT_NEAR(p.iy, 0.3 * 0.216 / 12.0, 1e-16);
  EXPECT_NEAR(p.iz, 0.6 * 0.027 / 12.0, 1e-16);
  EXPECT_NEAR(p.iyz, 0.0, 1e-16);
}

TEST(SectionMoments, OfARightTriangleHaveAMixedMoment) {
  const RegionProperties p = PropertiesOf(FlatRegion{{{0, 0}, {3, 0}, {0, 6}}, {}});
  EXPECT_NEAR(p.area, 9.0, 1e-14);
  EXPECT_NEAR(p.iy, 3.0 * 216.0 / 36.0, 1e-13);
  EXPECT_NEAR(p.iz, 6.0 * 27.0 / 36.0, 1e-13);
  EXPECT_NEAR(p.iyz, -9.0 * 36.0 / 72.0, 1e-13);
}

TEST(SectionMoments, SubtractHolesOfAnyOrientation) {
  const Outline outer{{-2, -2}, {2, -2}, {2, 2}, {-2, 2}};
  const Outline hole{{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
  const Outline reversed(hole.rbegin(), hole.rend());
  for (const Outline& loop : {hole, reversed}) {
    const RegionProperties p = PropertiesOf(FlatRegion{outer, {loop}});
    EXPECT_NEAR(p.area, 12.0, 1e-14);
    EXPECT_NEAR(p.iy, (256.0 - 16.0) / 12.0, 1e-13);
  }
}

TEST(SectionMoments, OfACircleAreExact) {
  const Contour circle{{{1.25, 7}, {0.75, 7}}, {{0, {1, 7.25}}, {1, {1, 6.75}}}};
  const RegionProperties p = PropertiesOf(Region{circle, {}});
  EXPECT_NEAR(p.area, kPi * 0.0625, 1e-14);
  EXPECT_NEAR(p.centroid.x, 1.0, 1e-14);
  EXPECT_NEAR(p.centroid.y, 7.0, 1e-14);
  EXPECT_NEAR(p.iy, kPi * std::pow(0.25, 4) / 4.0, 1e-15);
  EXPECT_NEAR(p.iz, kPi * std::pow(0.25, 4) / 4.0, 1e-15);
  EXPECT_NEAR(p.iyz, 0.0, 1e-16);
}

TEST(SectionMoments, OfAHalfDiskAreExact) {
  const Contour half{{{-1, 0}, {1, 0}}, {{1, {0, 1}}}};
  const RegionProperties p = PropertiesOf(Region{half, {}});
  EXPECT_NEAR(p.area, kPi / 2.0, 1e-13);
  EXPECT_NEAR(p.centroid.y, 4.0 / (3.0 * kPi), 1e-13);
  EXPECT_NEAR(p.iy, kPi / 8.0 - 8.0 / (9.0 * kPi), 1e-13);
  EXPECT_NEAR(p.iz, kPi / 8.0, 1e-13);
}

TEST(SectionMoments, ArePreciseFarFromTheOrigin) {
  const RegionProperties p = PropertiesOf(
      FlatRegion{{{1e6, 1e6}, {1e6 + 0.5, 1e6}, {1e6 + 0.5, 1e6 + 0.25}, {1e6, 1e6 + 0.25}}, {}});
  EXPECT_NEAR(p.area, 0.125, 1e-9);
  EXPECT_NEAR(p.iz, 0.25 * 0.125 / 12.0, 1e-9);
}

TEST(SectionMoments, AreZeroWithoutAnArea) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const Outline& outline :
       {Outline{}, Outline{{1, 1}}, Outline{{0, 0}, {1, 0}, {2, 0}},
        Outline{{0, 0}, {nan, 1}, {2, 2}}, Outline{{0, 0}, {1e200, 0}, {1e200, 1e200}}}) {
    const RegionProperties p = PropertiesOf(FlatRegion{outline, {}});
    EXPECT_EQ(p.area, 0.0);
    EXPECT_EQ(p.iy, 0.0);
    EXPECT_EQ(p.centroid.x, 0.0);
  }
}

}  // namespace
}  // namespace KelIFC::building
