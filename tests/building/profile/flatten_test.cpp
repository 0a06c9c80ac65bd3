#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/profile/simplify.h"

namespace KelIFC::building {
namespace {

Contour CircleOf(double radius, const Point2& centre = {}) {
  return {{{centre.x + radius, centre.y}, {centre.x - radius, centre.y}},
          {{0, {centre.x, centre.y + radius}}, {1, {centre.x, centre.y - radius}}}};
}

TEST(Flatten, CutsSmallCirclesIntoThirtyEightChords) {
  const Outline outline = Flatten(CircleOf(0.005));
  EXPECT_EQ(outline.size(), 38U);
  for (const Point2& point : outline) EXPECT_NEAR(std::hypot(point.x, point.y), 0.005, 1e-12);
}

TEST(Flatten, KeepsChordsWithinATenthOfAMillimetreOfTheArc) {
  for (const double radius : {0.03, 0.5, 4.0, 100.0}) {
    const Outline outline = Flatten(CircleOf(radius));
    for (std::size_t i = 0; i < outline.size(); ++i) {
      const Point2 next = outline[(i + 1) % outline.size()];
      const Point2 middle((outline[i].x + next.x) / 2.0, (outline[i].y + next.y) / 2.0);
      EXPECT_GE(std::hypot(middle.x, middle.y), radius - 1e-4 - 1e-9);
    }
  }
}

TEST(Flatten, BoundsTheChordsOfHugeArcs) { EXPECT_LE(Flatten(CircleOf(1e8)).size(), 10'000U); }

TEST(Flatten, TakesAnArcOnALineAsAStraightEdge) {
  const Contour contour{{{0, 0}, {2, 0}, {2, 1}}, {{0, {1, 0}}}};
  EXPECT_EQ(Flatten(contour).size(), 3U);
}

TEST(Flatten, RemovesRepeatedAndCollinearPointsAndSpikes) {
  const Contour contour{{{1, 0}, {2, 0}, {2, 0}, {2, 1}, {2, 3}, {2, 1}, {0, 1}, {0, 5e-8}, {0, 0}},
                        {}};
  const Outline outline = Flatten(contour);
  ASSERT_EQ(outline.size(), 4U);
  EXPECT_NEAR(AreaOf(outline), 2.0, 1e-7);
}

TEST(Flatten, DoesNotStraightenACircleOfTinySteps) {
  Contour contour;
  constexpr int kCount = 200'000;
  for (int i = 0; i < kCount; ++i) {
    const double angle = 2.0 * std::numbers::pi * i / kCount;
    contour.points.emplace_back(std::cos(angle), std::sin(angle));
  }
  const Outline outline = Flatten(contour);
  EXPECT_NEAR(AreaOf(outline), std::numbers::pi, 1e-5);
}

TEST(Flatten, IsPreciseFarFromTheOrigin) {
  const Outline outline = Flatten(CircleOf(0.2, {1e6, -1e6}));
  for (const Point2& point : outline) {
    EXPECT_NEAR(std::hypot(point.x - 1e6, point.y + 1e6), 0.2, 1e-8);
  }
}

TEST(Flatten, OrientsLoops) {
  const Contour clockwise{{{0, 0}, {0, 2}, {2, 2}, {2, 0}}, {}};
  const Contour hole{{{0.5, 0.5}, {1, 0.5}, {1, 1}}, {}};
  const auto flat = Flatten(Region{clockwise, {hole}});
  ASSERT_TRUE(flat);
  EXPECT_GT(AreaOf(flat->outer), 0.0);
  ASSERT_EQ(flat->holes.size(), 1U);
  EXPECT_LT(AreaOf(flat->holes[0]), 0.0);
  EXPECT_EQ(flat->outer.front().x, 0.0);
}

TEST(Flatten, LeavesOutHolesWithoutArea) {
  const Contour outer{{{0, 0}, {2, 0}, {2, 2}, {0, 2}}, {}};
  const Contour line{{{0.5, 0.5}, {1, 0.5}, {1.5, 0.5}}, {}};
  const auto flat = Flatten(Region{outer, {line}});
  ASSERT_TRUE(flat);
  EXPECT_TRUE(flat->holes.empty());
}

TEST(Flatten, RefusesWhatIsNoRegion) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const Contour square{{{0, 0}, {2, 0}, {2, 2}, {0, 2}}, {}};
  EXPECT_FALSE(Flatten(Region{}));
  EXPECT_FALSE(Flatten(Region{{{{0, 0}, {1, 0}}, {}}, {}}));
  EXPECT_FALSE(Flatten(Region{{{{0, 0}, {1, 0}, {2, 0}}, {}}, {}}));
  EXPECT_FALSE(Flatten(Region{{{{0, 0}, {1, nan}, {2, 3}}, {}}, {}}));
  EXPECT_FALSE(Flatten(Region{{{{0, 0}, {1e300, 0}, {0, 1e300}}, {}}, {}}));
  EXPECT_FALSE(Flatten(Region{{{{0, 0}, {2, 2}, {2, 0}, {0, 3}}, {}}, {}}));
  EXPECT_FALSE(Flatten(Region{square, {CircleOf(0.3, {2, 1})}}));
  EXPECT_FALSE(Flatten(Region{square, {CircleOf(0.3, {5, 1})}}));
  EXPECT_FALSE(Flatten(Region{square, {square}}));
  EXPECT_TRUE(Flatten(Region{square, {CircleOf(0.3, {1, 1})}}));
}

}  // namespace
}  // namespace KelIFC::building
