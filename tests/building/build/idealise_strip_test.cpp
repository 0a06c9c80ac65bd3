#include "kelifc/building/build/idealise_strip.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace KelIFC::building::idealising {
namespace {

constexpr double kQuarter = std::numbers::pi / 2;

// A quarter of a ring between the radii 4 and 5 m, with so many chords on each side.
Outline QuarterRing(int outer, int inner) {
  Outline outline;
  const auto add = [&](double radius, double angle) {
    outline.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
  };
  for (int i = 0; i <= outer; ++i) add(5.0, kQuarter * i / outer);
  for (int i = inner; i >= 0; --i) add(4.0, kQuarter * i / inner);
  return outline;
}

TEST(Strip, OfARingHasTheCirclesOfTheRing) {
  const auto strip = FindStrip(QuarterRing(20, 16));
  ASSERT_TRUE(strip);
  const auto circles = FindCircles(*strip);
  ASSERT_TRUE(circles);
  EXPECT_NEAR(circles->left.radius + circles->right.radius, 9.0, 1e-9);
  EXPECT_NEAR(Length(circles->left.centre - Point2()), 0.0, 1e-9);
  EXPECT_NEAR(Distance(strip->left.front(), strip->right.front()), 1.0, 1e-9);
  // The chords of the smaller circle are longer: 5.6 instead of 4.5 degrees.
  EXPECT_NEAR(circles->chordError, 4.0 * (1.0 - std::cos(kQuarter / 32)), 1e-9);
}

TEST(Strip, WithParallelSidesMayTurnSharply) {
  // A knee: 3 m along x, then 2 m along y, 0.2 m wide.
  const Outline knee = {{0.0, 0.0}, {3.0, 0.0}, {3.0, 2.0}, {2.8, 2.0}, {2.8, 0.2}, {0.0, 0.2}};
  EXPECT_FALSE(FindStrip(knee));
  const auto strip = FindParallelStrip(knee);
  ASSERT_TRUE(strip);
  EXPECT_EQ(strip->left.size(), 3u);
  EXPECT_EQ(strip->right.size(), 3u);
  EXPECT_NEAR(Distance(strip->left.front(), strip->right.front()), 0.2, 1e-9);
  EXPECT_NEAR(Distance(strip->left.back(), strip->right.back()), 0.2, 1e-9);
  EXPECT_FALSE(FindCircles(*strip));
}

// The same with a point in the middle of each chord, 0.03 mm off it on alternating sides.
Outline WithBrokenChords(const Outline& outline) {
  Outline broken;
  double off = 3e-5;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point2& next = outline[(i + 1) % outline.size()];
    Vector2 along = next - outline[i];
    Normalise(along);
    broken.push_back(outline[i]);
    broken.push_back(Between(outline[i], next) + Vector2{along.y, -along.x} * off);
    off = -off;
  }
  return broken;
}

TEST(Strip, OfAnArcMayHaveBrokenChords) {
  // In the middle of a chord of the outer side, the circle is 1.5 mm away.
  const Outline ring = QuarterRing(32, 32);
  ASSERT_TRUE(FindArcStrip(ring));
  const auto arcs = FindArcStrip(WithBrokenChords(ring));
  ASSERT_TRUE(arcs);
  EXPECT_NEAR(arcs->circles.left.radius + arcs->circles.right.radius, 9.0, 1e-6);
  EXPECT_EQ(arcs->strip.left.size(), 33u);
}

TEST(Strip, OfAnArcHasShortChords) {
  EXPECT_TRUE(FindStrip(QuarterRing(8, 8)));
  EXPECT_FALSE(FindArcStrip(QuarterRing(8, 8)));
}

TEST(Strip, IsNoneForOtherOutlines) {
  EXPECT_FALSE(FindParallelStrip({}));
  EXPECT_FALSE(FindParallelStrip({{0.0, 0.0}, {4.0, 0.0}, {4.0, 1.0}, {0.0, 1.0}}));
  // The legs of this angle differ in width.
  EXPECT_FALSE(
      FindParallelStrip({{0.0, 0.0}, {3.0, 0.0}, {3.0, 2.0}, {2.6, 2.0}, {2.6, 0.2}, {0.0, 0.2}}));
  EXPECT_FALSE(FindStrip({{0.0, 0.0}, {4.0, 0.0}, {4.0, 1.0}, {0.0, 1.0}}));
  EXPECT_FALSE(FindStrip(QuarterRing(2, 2)));
}

}  // namespace
}  // namespace KelIFC::building::idealising
