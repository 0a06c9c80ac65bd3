#include "kelifc/building/profile/crane_rail.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/profile/section_moments.h"

namespace KelIFC::building {
namespace {

// 75 mm high, with a head of 65 mm and a base of 175 mm.
CraneRail SampleRail() {
  CraneRail rail;
  rail.height = 0.075;
  rail.headWidth = 0.065;
  rail.headAtWeb = 0.034;
  rail.headAtEdge = 0.030;
  rail.headRadius = 0.006;
  rail.webThickness = 0.038;
  rail.baseWidth = 0.175;
  rail.baseAtWeb = 0.020;
  rail.baseAtEdge = 0.010;
  rail.bendWidth = 0.078;
  rail.baseAtBend = 0.014;
  return rail;
}

TEST(CraneRail, IsCentredOnItsBoxWithTheHeadAtTheTop) {
  const auto region = CraneRailRegion(SampleRail());
  ASSERT_TRUE(region);
  const auto flat = Flatten(*region);
  ASSERT_TRUE(flat);
  double low = 0.0, high = 0.0, left = 0.0, right = 0.0, top = 0.0;
  for (const Point2& point : flat->outer) {
    low = std::fmin(low, point.y);
    high = std::fmax(high, point.y);
    left = std::fmin(left, point.x);
    right = std::fmax(right, point.x);
    if (point.y > 0.02) top = std::fmax(top, point.x);
  }
  EXPECT_NEAR(low, -0.0375, 1e-12);
  EXPECT_NEAR(high, 0.0375, 1e-12);
  EXPECT_NEAR(left, -0.0875, 1e-12);
  EXPECT_NEAR(right, 0.0875, 1e-12);
  EXPECT_NEAR(top, 0.0325, 1e-12);
}

TEST(CraneRail, HasTheAreaOfItsPartsLessTheRoundedEdges) {
  const double head = 65.0 * 30.0 + 4.0 * (65.0 + 38.0) / 2.0;
  const double web = 38.0 * (75.0 - 34.0 - 20.0);
  const double base = 38.0 * 20.0 + 2.0 * 20.0 * (20.0 + 14.0) / 2.0 + 2.0 * 48.5 * 12.0;
  const double edges = 2.0 * 36.0 * (1.0 - std::numbers::pi / 4.0);
  const auto region = CraneRailRegion(SampleRail());
  ASSERT_TRUE(region);
  EXPECT_NEAR(PropertiesOf(*region).area * 1e6, head + web + base - edges, 1e-6);
}

TEST(CraneRail, IsNoneIfTheSizesMakeNoRail) {
  for (double CraneRail::*const size :
       {&CraneRail::height, &CraneRail::headWidth, &CraneRail::headAtWeb, &CraneRail::headAtEdge,
        &CraneRail::webThickness, &CraneRail::baseWidth, &CraneRail::baseAtWeb,
        &CraneRail::baseAtEdge, &CraneRail::baseAtBend}) {
    for (const double bad : {0.0, -0.01, std::numeric_limits<double>::quiet_NaN()}) {
      CraneRail rail = SampleRail();
      rail.*size = bad;
      EXPECT_FALSE(CraneRailRegion(rail)) << bad;
    }
  }
  CraneRail rail = SampleRail();
  rail.webThickness = 0.065;  // as thick as the head is wide
  EXPECT_FALSE(CraneRailRegion(rail));
  rail = SampleRail();
  rail.headAtWeb = 0.055;  // the head meets the base
  EXPECT_FALSE(CraneRailRegion(rail));
  rail = SampleRail();
  rail.headRadius = 0.04;  // more than half the width of the head
  EXPECT_FALSE(CraneRailRegion(rail));
}

}  // namespace
}  // namespace KelIFC::building
