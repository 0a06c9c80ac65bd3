#include "kelifc/building/read/offset.h"

#include <gtest/gtest.h>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

TEST(OffsetLine, LiesToTheLeftWithMitres) {
  const auto line = OffsetLine({{0, 0}, {10, 0}, {10, 10}}, 1.0, false);
  ASSERT_EQ(line.size(), 3U);
  ExpectPoint(line[0], 0.0, 1.0);
  ExpectPoint(line[1], 9.0, 1.0);
  ExpectPoint(line[2], 9.0, 10.0);
}

TEST(OffsetLine, CutsLongMitresOff) {
  const auto line = OffsetLine({{0, 0}, {10, 0}, {0, 0.1}}, -1.0, false);
  ASSERT_EQ(line.size(), 4U);
  for (const Point2& p : line) EXPECT_LT(p.x, 10.2);
}

TEST(Thicken, MakesAStripWithSquareEnds) {
  const Region region = Thicken({{0, 0}, {10, 0}}, 2.0, false);
  ASSERT_EQ(region.outer.points.size(), 4U);
  ExpectPoint(region.outer.points[0], 0.0, -1.0);
  ExpectPoint(region.outer.points[1], 10.0, -1.0);
  ExpectPoint(region.outer.points[2], 10.0, 1.0);
  EXPECT_TRUE(region.holes.empty());
}

TEST(Thicken, MakesARingOfAClosedLine) {
  const Region region = Thicken({{0, 0}, {0, 10}, {10, 10}, {10, 0}, {0, 0}}, 2.0, true);
  ASSERT_EQ(region.holes.size(), 1U);
  ExpectPoint(region.outer.points[0], -1.0, -1.0);
  ExpectPoint(region.holes[0].points[0], 1.0, 1.0);
}

TEST(Thicken, IsEmptyWithoutThicknessOrLength) {
  EXPECT_TRUE(Thicken({{0, 0}, {1, 0}}, 0.0, false).outer.points.empty());
  EXPECT_TRUE(Thicken({{0, 0}}, 1.0, false).outer.points.empty());
}

}  // namespace
}  // namespace KelIFC::building
