#include "kelifc/building/solid/unite_regions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace KelIFC::building {
namespace {

constexpr double kTolerance = 5e-5;

FlatRegion Box(double x0, double y0, double x1, double y1) {
  return {{{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}}, {}};
}

double AreaOf(const Outline& outline) {
  double twice = 0.0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    twice += Cross(outline[i] - Point2(), outline[(i + 1) % outline.size()] - Point2());
  }
  return twice / 2;
}

double AreaOf(const std::vector<FlatRegion>& regions) {
  double area = 0.0;
  for (const FlatRegion& region : regions) {
    area += AreaOf(region.outer);
    for (const Outline& hole : region.holes) area += AreaOf(hole);
  }
  return area;
}

TEST(UniteRegions, JoinsRegionsThatShareAPartOfAnEdge) {
  const std::vector<FlatRegion> united =
      UniteRegions({Box(0.0, 0.0, 1.0, 1.0), Box(1.0, 0.2, 2.0, 0.8)}, kTolerance);
  ASSERT_EQ(united.size(), 1U);
  EXPECT_EQ(united[0].outer.size(), 8U);
  EXPECT_NEAR(AreaOf(united), 1.6, 1e-12);
}

TEST(UniteRegions, CountsAnOverlapOnce) {
  const std::vector<FlatRegion> united =
      UniteRegions({Box(0.0, 0.0, 2.0, 1.0), Box(1.0, -1.0, 1.5, 3.0)}, kTolerance);
  ASSERT_EQ(united.size(), 1U);
  EXPECT_EQ(united[0].outer.size(), 12U);
  EXPECT_NEAR(AreaOf(united), 2.0 + 2.0 - 0.5, 1e-12);
}

TEST(UniteRegions, DropsARegionInsideOfAnother) {
  const std::vector<FlatRegion> united =
      UniteRegions({Box(0.0, 0.0, 2.0, 2.0), Box(0.5, 0.5, 1.0, 1.0)}, kTolerance);
  ASSERT_EQ(united.size(), 1U);
  EXPECT_TRUE(united[0].holes.empty());
  EXPECT_NEAR(AreaOf(united), 4.0, 1e-12);
}

TEST(UniteRegions, KeepsTheHoleBetweenRegionsThatFormAFrame) {
  const std::vector<FlatRegion> united =
      UniteRegions({Box(0.0, 0.0, 3.0, 1.0), Box(0.0, 2.0, 3.0, 3.0), Box(0.0, 1.0, 1.0, 2.0),
                    Box(2.0, 1.0, 3.0, 2.0)},
                   kTolerance);
  ASSERT_EQ(united.size(), 1U);
  ASSERT_EQ(united[0].holes.size(), 1U);
  EXPECT_EQ(united[0].outer.size(), 4U);
  EXPECT_NEAR(AreaOf(united), 8.0, 1e-12);
}

TEST(UniteRegions, FillsAHoleWithARegion) {
  FlatRegion ring = Box(0.0, 0.0, 3.0, 3.0);
  ring.holes.push_back({{1.0, 1.0}, {1.0, 2.0}, {2.0, 2.0}, {2.0, 1.0}});
  const std::vector<FlatRegion> united = UniteRegions({ring, Box(1.0, 1.0, 2.0, 2.0)}, kTolerance);
  ASSERT_EQ(united.size(), 1U);
  EXPECT_TRUE(united[0].holes.empty());
  EXPECT_NEAR(AreaOf(united), 9.0, 1e-12);
}

TEST(UniteRegions, ClosesAGapWithinTheTolerance) {
  EXPECT_EQ(UniteRegions({Box(0.0, 0.0, 1.0, 1.0), Box(1.00003, 0.2, 2.0, 0.8)}, kTolerance).size(),
            1U);
  EXPECT_EQ(UniteRegions({Box(0.0, 0.0, 1.0, 1.0), Box(1.001, 0.2, 2.0, 0.8)}, kTolerance).size(),
            2U);
}

TEST(UniteRegions, UnitesEqualRegionsAtAnyAngle) {
  for (int i = 0; i < 36; ++i) {
    const double angle = i * std::numbers::pi / 18 + 0.01;
    const Vector2 x{std::cos(angle), std::sin(angle)};
    const Vector2 y{-x.y, x.x};
    const Point2 o{3.0, -2.0};
    const auto turned = [&](double x0, double y0, double x1, double y1) {
      return FlatRegion{
          {o + x * x0 + y * y0, o + x * x1 + y * y0, o + x * x1 + y * y1, o + x * x0 + y * y1}, {}};
    };
    const std::vector<FlatRegion> united =
        UniteRegions({turned(0.0, 0.0, 1.0, 1.0), turned(0.0, 0.0, 1.0, 1.0),
                      turned(1.0, 0.0, 2.0, 1.0), turned(0.5, 0.25, 1.5, 0.75)},
                     kTolerance);
    ASSERT_EQ(united.size(), 1U) << i;
    EXPECT_EQ(united[0].outer.size(), 4U) << i;
    EXPECT_NEAR(AreaOf(united), 2.0, 1e-3) << i;
  }
}

TEST(UniteRegions, UnitesOutlinesOfManyPoints) {
  // Discs of 100 chords in a row, each of which overlaps the next one.
  std::vector<FlatRegion> discs;
  for (int i = 0; i < 20; ++i) {
    FlatRegion& disc = discs.emplace_back();
    for (int k = 0; k < 100; ++k) {
      const double angle = (k + 0.5) * std::numbers::pi / 50;
      disc.outer.push_back({1.5 * i + std::cos(angle), std::sin(angle)});
    }
  }
  const std::vector<FlatRegion> united = UniteRegions(discs, kTolerance);
  ASSERT_EQ(united.size(), 1U);
  // Two discs at a distance of 1.5 radii share a lens.
  const double half = std::acos(0.75);
  const double lens = 2.0 * half - std::sin(2.0 * half);
  EXPECT_NEAR(AreaOf(united), 20 * std::numbers::pi - 19 * lens, 0.1);
}

TEST(UniteRegions, LeavesOneRegionAndVeryManyPointsAsTheyAre) {
  EXPECT_TRUE(UniteRegions({}, kTolerance).empty());
  EXPECT_EQ(UniteRegions({Box(0.0, 0.0, 1.0, 1.0)}, kTolerance).size(), 1U);
  const std::vector<FlatRegion> many(1100, Box(0.0, 0.0, 1.0, 1.0));
  EXPECT_EQ(UniteRegions(many, kTolerance).size(), 1100U);
}

TEST(UniteRegions, LeavesRegionsAsTheyAreThatCrossEachOtherVeryOften) {
  std::vector<FlatRegion> grid;
  for (int i = 0; i < 400; ++i) {
    grid.push_back(Box(i, 0.0, i + 0.5, 400.0));
    grid.push_back(Box(0.0, i, 400.0, i + 0.5));
  }
  EXPECT_EQ(UniteRegions(grid, kTolerance).size(), 800U);
}

}  // namespace
}  // namespace KelIFC::building
