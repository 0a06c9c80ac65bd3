#include "kelifc/building/profile/find_corners.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/building/profile/profile_samples.h"

namespace KelIFC::building {
namespace {

TEST(FindCorners, KeepsSharpCorners) {
  const auto corners = FindCorners({{0, 0}, {1, 0}, {1, 1}, {0.5, 1.00001}, {0, 1}}, 12);
  ASSERT_EQ(corners.size(), 4U);
  EXPECT_EQ(corners[2].radius, 0.0);
  EXPECT_EQ(corners[2].point.x, 1.0);
}

TEST(FindCorners, MakesOneCornerOfAFillet) {
  for (const int chords : {2, 3, 5, 8, 20}) {
    const Outline outline = RoundedSquare(0.4, 0.05, chords);
    const auto corners = FindCorners(outline, 12);
    ASSERT_EQ(corners.size(), 4U) << chords;
    for (const RoundedCorner& corner : corners) {
      EXPECT_NEAR(corner.radius, 0.05, 1e-9);
      EXPECT_NEAR(std::abs(corner.point.x), 0.2, 1e-9);
      EXPECT_NEAR(std::abs(corner.point.y), 0.2, 1e-9);
    }
  }
}

TEST(FindCorners, BeginsAnywhere) {
  Outline outline = RoundedSquare(0.4, 0.05, 6);
  for (std::size_t i = 0; i < outline.size(); ++i) {
    std::rotate(outline.begin(), outline.begin() + 1, outline.end());
    EXPECT_EQ(FindCorners(outline, 12).size(), 4U);
  }
}

TEST(FindCorners, LeavesChamfersAsTheyAre) {
  EXPECT_EQ(FindCorners(RoundedSquare(0.4, 0.05, 1), 12).size(), 8U);
  EXPECT_EQ(FindCorners(RegularPolygon(8, 0.2, {}), 12).size(), 8U);
}

TEST(FindCorners, MakesTwoCornersOfHalfACircle) {
  const auto corners = FindCorners(RoundedSquare(0.4, 0.2, 7), 12);
  EXPECT_TRUE(corners.empty() || corners.size() > 4U);  // a circle has no corners
  Outline stadium;
  for (const Point2& point : RegularPolygon(24, 0.1, {})) {
    stadium.emplace_back(point.x + (point.x > 1e-9 ? 0.2 : -0.2), point.y);
    if (std::abs(point.x) < 1e-9) stadium.emplace_back(0.2, point.y);
  }
  // Order the two points at the top, which were added in the order left, right.
  for (std::size_t i = 0; i + 1 < stadium.size(); ++i) {
    if (stadium[i].y > 0.0 && stadium[i].y == stadium[i + 1].y)
      std::swap(stadium[i], stadium[i + 1]);
  }
  const auto found = FindCorners(stadium, 12);
  ASSERT_EQ(found.size(), 4U);
  for (const RoundedCorner& corner : found) {
    EXPECT_NEAR(corner.radius, 0.1, 1e-9);
    EXPECT_NEAR(std::abs(corner.point.x), 0.3, 1e-9);
  }
}

TEST(FindCornersBetween, MakesOneCornerOfPointsBetweenLongEdges) {
  const Outline outline{{0, 0}, {1, 0}, {1, 0.9}, {0.994, 0.94}, {0.96, 0.99}, {0.9, 1}, {0, 1}};
  const auto corners = FindCornersBetween(outline, 4);
  ASSERT_EQ(corners.size(), 4U);
  EXPECT_EQ(corners[0].radius, 0.0);
  EXPECT_NEAR(corners[1].radius, 0.1, 1e-12);
  EXPECT_NEAR(corners[1].point.x, 1.0, 1e-12);
  EXPECT_NEAR(corners[1].point.y, 1.0, 1e-12);
}

TEST(FindCornersBetween, RefusesChamfersAndWhatHasNoArc) {
  EXPECT_TRUE(FindCornersBetween(RoundedSquare(0.4, 0.05, 1), 4).empty());
  EXPECT_TRUE(FindCornersBetween({{0, 0}, {1, 0}, {1, 1}, {0, 1}}, 4).empty());
  // The tangents differ.
  EXPECT_TRUE(
      FindCornersBetween({{0, 0}, {1, 0}, {1, 0.9}, {0.9, 0.98}, {0.7, 1}, {0, 1}}, 4).empty());
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(FindCornersBetween({{nan, 0}, {1, 0}, {2, nan}, {2, 2}, {0, 1}}, 4).empty());
  EXPECT_TRUE(FindCornersBetween(Outline(50, Point2(1, 1)), 4).empty());
}

TEST(FindCorners, GivesUpBeyondTheLimit) {
  EXPECT_TRUE(FindCorners(RegularPolygon(100'000, 0.2, {}), 12).empty());
  Outline zigzag{{100, -1}, {-1, -1}};
  for (int i = 0; i < 50'000; ++i) zigzag.emplace_back(i * 0.001, i % 2 * 0.1);
  EXPECT_TRUE(FindCorners(zigzag, 12).empty());
}

TEST(FindCorners, SurvivesAnyPoints) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(FindCorners({}, 12).empty());
  FindCorners({{nan, 0}, {1, nan}, {2, 2}, {0, 1}}, 12);
  FindCorners(Outline(50, Point2(1, 1)), 12);
  EXPECT_LE(FindCorners({{1e300, 0}, {-1e300, 5}, {0, 1e300}, {1, 1}}, 12).size(), 12U);
}

}  // namespace
}  // namespace KelIFC::building
