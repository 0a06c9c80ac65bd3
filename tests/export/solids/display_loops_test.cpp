#include "export/solids/display_loops.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/building/made_building.h"

namespace KelIFC::exporting {
namespace {

TEST(IdealLines, OfAMemberAreItsAxis) {
  BuildingElement column = MemberFrom(1, {1.0, 2.0, 3.0});
  std::vector<IdealLine> lines = IdealLinesOf(column);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].kind, LineKind::kAxis);
  EXPECT_EQ(lines[0].points.size(), 2U);
  column.member->curve = CurveForm::kArc;
  column.member->points = {{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {-1.0, 0.0, 0.0}};
  lines = IdealLinesOf(column);
  EXPECT_GT(lines[0].points.size(), 10U);
  EXPECT_EQ(lines[0].points.front().x, 1.0);
  EXPECT_EQ(lines[0].points.back().x, -1.0);
}

TEST(IdealLines, OfASurfaceAreItsOutlineAndHoles) {
  BuildingElement slab = Slab(1, 5.0, 2.0);
  slab.surface->holes = {{{1.0, 1.0, 0.0}, {1.0, 2.0, 0.0}, {3.0, 2.0, 0.0}}};
  std::vector<IdealLine> lines = IdealLinesOf(slab);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].kind, LineKind::kRegion);
  EXPECT_EQ(lines[0].points.size(), 4U);
  EXPECT_EQ(lines[1].points.size(), 3U);
  slab.surface->arcs = {{1, {6.0, 1.0, 0.0}}, {3, {-1.0, 1.0, 0.0}}, {99, {0.0, 0.0, 0.0}}};
  lines = IdealLinesOf(slab);
  double rightmost = 0.0;
  for (const Point3& p : lines[0].points) rightmost = std::max(rightmost, p.x);
  EXPECT_NEAR(rightmost, 6.0, 2e-3);
  EXPECT_EQ(lines[0].points.front().x, 0.0);
  EXPECT_LT(lines[0].points.back().x, 0.0);
}

TEST(IdealLines, OfACurvedWallGoRoundItsMiddleSurface) {
  BuildingElement wall = Slab(1, 1.0, 1.0);
  wall.surface->sweep = {
      CurveForm::kLine, {{0.0, 0.0, 0.0}, {4.0, 0.0, 0.0}}, {0.0, 0.0, 1.0}, 3.0};
  const std::vector<IdealLine> lines = IdealLinesOf(wall);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].kind, LineKind::kRegion);
  ASSERT_EQ(lines[0].points.size(), 4U);
  EXPECT_EQ(lines[0].points[2].x, 4.0);
  EXPECT_EQ(lines[0].points[2].z, 3.0);
}

TEST(IdealLines, OfABodyAreNone) { EXPECT_TRUE(IdealLinesOf(BuildingElement()).empty()); }

TEST(OpeningLines, AreTheOutlinesOfTheOpenings) {
  BuildingElement slab = Slab(1, 5.0, 2.0);
  slab.openings.resize(2);
  slab.openings[1].outline = {{1.0, 1.0, 0.0}, {2.0, 1.0, 0.0}, {2.0, 1.5, 0.0}};
  const std::vector<IdealLine> lines = OpeningLinesOf(slab);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].kind, LineKind::kOpening);
  EXPECT_EQ(lines[0].points.size(), 3U);
}

}  // namespace
}  // namespace KelIFC::exporting
