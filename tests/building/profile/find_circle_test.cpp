#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kelifc/building/profile/find_corners.h"

#include "tests/building/profile/profile_samples.h"

namespace KelIFC::building {
namespace {

TEST(FindCircle, TakesTwelveChordsOrMoreForACircle) {
  for (const int count : {12, 13, 16, 36, 500, 100'000}) {
    const auto circle = FindCircle(RegularPolygon(count, 0.2, {3, -4}));
    ASSERT_TRUE(circle) << count;
    EXPECT_NEAR(circle->radius, 0.2, 1e-9);
    EXPECT_NEAR(circle->centre.x, 3.0, 1e-9);
    EXPECT_NEAR(circle->centre.y, -4.0, 1e-9);
  }
}

TEST(FindCircle, LeavesAnOctagonAsItIs) {
  for (const int count : {3, 4, 6, 8, 10}) {
    EXPECT_FALSE(FindCircle(RegularPolygon(count, 0.2, {})));
  }
}

TEST(FindCircle, AllowsHalfAMillimetre) {
  Outline outline = RegularPolygon(24, 0.2, {});
  outline[5].x *= 0.998;
  outline[5].y *= 0.998;
  EXPECT_TRUE(FindCircle(outline));
  outline[5].x *= 0.99;
  outline[5].y *= 0.99;
  EXPECT_FALSE(FindCircle(outline));
}

TEST(FindCircle, RefusesArcsStarsAndPointsThatAreNotFinite) {
  Outline half = RegularPolygon(48, 0.2, {});
  half.resize(25);
  EXPECT_FALSE(FindCircle(half));
  Outline twice = RegularPolygon(24, 0.2, {});
  twice.insert(twice.end(), twice.begin(), twice.end());
  EXPECT_FALSE(FindCircle(twice));
  Outline broken = RegularPolygon(24, 0.2, {});
  broken[3].x = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(FindCircle(broken));
  EXPECT_FALSE(FindCircle(Outline(20, Point2(1, 1))));
  EXPECT_FALSE(FindCircle({}));
}

}  // namespace
}  // namespace KelIFC::building
