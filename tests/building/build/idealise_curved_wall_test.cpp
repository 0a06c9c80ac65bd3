#include <gtest/gtest.h>

#include <cmath>

#include "tests/building/build/idealise_samples.h"

namespace KelIFC::building {
namespace {

// A wall on an arc of 1.5 radians and 5 m, 0.2 m thick and 2.8 m high, of 24 chords.
SolidPointer WallOnAnArc() {
  std::vector<Point2> plan;
  for (int i = 0; i <= 24; ++i)
    plan.emplace_back(5.1 * std::cos(i / 16.0), 5.1 * std::sin(i / 16.0));
  for (int i = 24; i >= 0; --i)
    plan.emplace_back(4.9 * std::cos(i / 16.0), 4.9 * std::sin(i / 16.0));
  return Prism(PolygonProfile(plan), 2.8);
}

void ExpectWallOnAnArc(const Idealisation& wall) {
  ASSERT_EQ(wall.kind, ElementKind::kSurface);
  ASSERT_TRUE(wall.surface->sweep);
  EXPECT_EQ(wall.surface->sweep->curve, CurveForm::kArc);
  EXPECT_NEAR(wall.surface->sweep->height, 2.8, 1e-6);
  EXPECT_NEAR(wall.surface->thickness, 0.2, 1e-3);
  EXPECT_FALSE(wall.isApproximate);
  EXPECT_LT(wall.deviation, 3e-3);
}

TEST(IdealiseCurvedWall, CountsAWindowAsACutOut) {
  const Sample sample({Minus(WallOnAnArc(), Block({4.0, 1.0, 0.9}, {6.0, 2.0, 2.1}))});
  const Idealisation wall = sample.BySlices(ElementRole::kWall);
  ExpectWallOnAnArc(wall);
  EXPECT_EQ(wall.cutouts, 1u);
  EXPECT_GT(*wall.volumeRatio, 1.05);
}

TEST(IdealiseCurvedWall, FindsThePlanAboveADoor) {
  // The door is higher than half of the wall, whose section it divides.
  const Sample sample({Minus(WallOnAnArc(), Block({4.0, 1.0, -0.1}, {6.0, 2.0, 2.1}))});
  const Idealisation wall = sample.BySlices(ElementRole::kWall);
  ExpectWallOnAnArc(wall);
  EXPECT_EQ(wall.cutouts, 1u);
}

}  // namespace
}  // namespace KelIFC::building
