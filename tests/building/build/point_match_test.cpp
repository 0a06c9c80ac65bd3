#include "kelifc/building/build/point_match.h"

#include <gtest/gtest.h>

namespace KelIFC::building::idealising {
namespace {

TEST(PointMatch, FindsTheNearestPointWithinTheTolerance) {
  const PointMatch match({{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {1.00001, 0.0, 0.0}});
  EXPECT_EQ(match.Find({0.0, 0.0, 1e-6}, 1e-5), 0u);
  EXPECT_EQ(match.Find({1.000009, 0.0, 0.0}, 1e-4), 2u);
  EXPECT_EQ(match.Find({0.5, 0.0, 0.0}, 0.1), PointMatch::kNone);
}

TEST(PointMatch, FindsNothingWithoutPoints) {
  EXPECT_EQ(PointMatch({}).Find({0.0, 0.0, 0.0}, 1.0), PointMatch::kNone);
}

TEST(Weld, GivesPointsThatCoincideOneIndex) {
  const std::vector<Point3> points{
      {0.0, 0.0, 0.0}, {1.0, 2.0, 3.0}, {1e-9, 0.0, 0.0}, {1.0, 2.0, 3.0}};
  const std::vector<std::size_t> welded = Weld(points, 1e-7);
  EXPECT_EQ(welded[0], welded[2]);
  EXPECT_EQ(welded[1], welded[3]);
  EXPECT_NE(welded[0], welded[1]);
}

}  // namespace
}  // namespace KelIFC::building::idealising
