#include "export/svg/cut_with_gaps.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/export/svg/made_storeys.h"

namespace KelIFC::exporting::svg {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

// The cut of a wall from (0, 0) to (5, 0), 0.2 m thick.
std::vector<CutRegion> WallCut() {
  return {{{{0.0, -0.1}, {5.0, -0.1}, {5.0, 0.1}, {0.0, 0.1}}, {}}};
}

Outline Box(double left, double bottom, double right, double top) {
  return {{left, bottom}, {right, bottom}, {right, top}, {left, top}};
}

double AreaOf(const std::vector<std::vector<Outline>>& fills) {
  double area = 0.0;
  for (const std::vector<Outline>& loops : fills) {
    for (const Outline& loop : loops) {
      for (std::size_t i = 2; i < loop.size(); ++i) {
        area += 0.5 * Cross(loop[i - 1] - loop[0], loop[i] - loop[0]);
      }
    }
  }
  return area;
}

double LengthOf(const std::vector<PlanLine>& lines) {
  double length = 0.0;
  for (const PlanLine& line : lines) {
    for (std::size_t i = line.isClosed ? 0 : 1; i < line.points.size(); ++i) {
      length += Distance(line.points[i > 0 ? i - 1 : line.points.size() - 1], line.points[i]);
    }
  }
  return length;
}

TEST(CutWithGaps, IsTheCutIfThereAreNoGaps) {
  const CutWithGaps cut = TakeOut(WallCut(), {});
  EXPECT_THAT(cut.fills, SizeIs(1));
  ASSERT_THAT(cut.edges, SizeIs(1));
  EXPECT_TRUE(cut.edges[0].isClosed);
  EXPECT_NEAR(LengthOf(cut.edges), 10.4, 1e-12);
  EXPECT_THAT(cut.gaps, IsEmpty());
}

TEST(CutWithGaps, LosesTheWidthOfADoor) {
  const CutWithGaps cut = TakeOut(WallCut(), {{3, Box(1.0, -0.11, 2.0, 0.11)}});
  EXPECT_NEAR(AreaOf(cut.fills), 0.8, 1e-12);
  EXPECT_THAT(cut.fills, SizeIs(2));
  // Both faces lose 1 m, and there are two more ends of 0.2 m.
  EXPECT_NEAR(LengthOf(cut.edges), 8.8, 1e-12);
  ASSERT_THAT(cut.gaps, SizeIs(1));
  EXPECT_EQ(cut.gaps[0].opening, 3U);
  EXPECT_NEAR(LengthOf(cut.gaps[0].faces), 2.0, 1e-12);
  ASSERT_THAT(cut.gaps[0].middle, SizeIs(2));
  EXPECT_NEAR(cut.gaps[0].middle[0].y, 0.0, 1e-12);
  EXPECT_NEAR(Distance(cut.gaps[0].middle[0], cut.gaps[0].middle[1]), 1.0, 1e-12);
}

TEST(CutWithGaps, CountsOverlappingGapsOnce) {
  const CutWithGaps cut =
      TakeOut(WallCut(), {{0, Box(1.0, -0.11, 2.0, 0.11)}, {1, Box(1.5, -0.11, 3.0, 0.11)}});
  EXPECT_NEAR(AreaOf(cut.fills), 0.6, 1e-12);
  EXPECT_NEAR(LengthOf(cut.edges), 6.8, 1e-12);
}

TEST(CutWithGaps, KeepsTheBackOfANiche) {
  const CutWithGaps cut = TakeOut(WallCut(), {{0, Box(1.0, 0.0, 2.0, 0.2)}});
  EXPECT_NEAR(AreaOf(cut.fills), 0.9, 1e-12);
  // The face loses 1 m. The niche has two sides of 0.1 m and a back of 1 m.
  EXPECT_NEAR(LengthOf(cut.edges), 10.6, 1e-12);
}

TEST(CutWithGaps, ReachesTheEndOfAWall) {
  const CutWithGaps cut = TakeOut(WallCut(), {{0, Box(4.0, -0.2, 6.0, 0.2)}});
  EXPECT_NEAR(AreaOf(cut.fills), 0.8, 1e-12);
  EXPECT_NEAR(LengthOf(cut.edges), 8.4, 1e-12);
}

TEST(CutWithGaps, IgnoresAGapBesideTheWall) {
  const CutWithGaps cut = TakeOut(WallCut(), {{0, Box(1.0, 1.0, 2.0, 2.0)}});
  EXPECT_NEAR(AreaOf(cut.fills), 1.0, 1e-12);
  EXPECT_NEAR(LengthOf(cut.edges), 10.4, 1e-12);
  EXPECT_THAT(cut.gaps, IsEmpty());
}

TEST(CutWithGaps, KeepsTheHolesOfARegion) {
  const std::vector<CutRegion> ring = {
      {Box(0.0, 0.0, 4.0, 4.0), {{{1.0, 1.0}, {1.0, 3.0}, {3.0, 3.0}, {3.0, 1.0}}}}};
  const CutWithGaps cut = TakeOut(ring, {{0, Box(1.5, -0.1, 2.5, 1.1)}});
  EXPECT_NEAR(AreaOf(cut.fills), 11.0, 1e-12);
  EXPECT_NEAR(LengthOf(cut.edges), 16.0 + 8.0 - 2.0 + 2.0, 1e-12);
}

TEST(CutWithGaps, CountsAtMost500Gaps) {
  std::vector<Gap> gaps;
  for (int i = 0; i < 5000; ++i) {
    const double x = 0.001 * i;
    gaps.push_back({0, Box(x + 0.0002, -0.2, x + 0.0008, 0.2)});
  }
  EXPECT_NEAR(AreaOf(TakeOut(WallCut(), gaps).fills), 1.0 - 500 * 0.0006 * 0.2, 1e-9);
}

TEST(GapsAt, ReturnsTheOpeningsAtTheHeight) {
  BuildingElement wall = Wall(1, 0, {}, 5.0, 3.0);
  wall.openings.push_back(OpeningAt(OpeningKind::kDoor, {1.0, 0.0, 0.0}, 1.0, 2.0));
  wall.openings.push_back(OpeningAt(OpeningKind::kWindow, {3.0, 0.0, 2.0}, 1.0, 0.8));
  const std::vector<Gap> low = GapsAt(wall, 1.2);
  ASSERT_THAT(low, SizeIs(1));
  EXPECT_EQ(low[0].opening, 0U);
  // It is 10 mm deeper than the wall, so that its faces do not coincide with those of the wall.
  EXPECT_NEAR(AreaOf({{low[0].outline}}), 1.0 * 0.21, 1e-9);
  const std::vector<Gap> high = GapsAt(wall, 2.5);
  ASSERT_THAT(high, SizeIs(1));
  EXPECT_EQ(high[0].opening, 1U);
  EXPECT_THAT(GapsAt(wall, 2.9), IsEmpty());
}

TEST(GapsAt, KeepsTheDepthOfARecess) {
  BuildingElement wall = Wall(1, 0, {}, 5.0, 3.0);
  wall.openings.push_back(OpeningAt(OpeningKind::kVoid, {1.0, 0.0, 0.0}, 1.0, 2.0, 0.05));
  const std::vector<Gap> gaps = GapsAt(wall, 1.2);
  ASSERT_THAT(gaps, SizeIs(1));
  EXPECT_NEAR(AreaOf({{gaps[0].outline}}), 0.05, 1e-9);
}

TEST(GapsAt, IgnoresOpeningsWithoutAShape) {
  BuildingElement wall = Wall(1, 0, {}, 5.0, 3.0);
  wall.openings.resize(2);
  wall.openings[1] = OpeningAt(OpeningKind::kVoid, {1.0, 0.0, 0.0}, 1.0, 2.0, 0.0);
  wall.surface->thickness = 0.0;
  EXPECT_THAT(GapsAt(wall, 1.2), SizeIs(1));
  wall.openings[1].outline.resize(2);
  EXPECT_THAT(GapsAt(wall, 1.2), IsEmpty());
}

}  // namespace
}  // namespace KelIFC::exporting::svg
