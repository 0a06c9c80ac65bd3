#include <gtest/gtest.h>

#include <cmath>

#include "tests/building/build/idealise_samples.h"

namespace KelIFC::building {
namespace {

constexpr double kTiny = 1e-6;

TEST(IdealiseCutTaper, IsExactForATaperedBeamWithSkewEnds) {
  // The beam runs along x and is 0.2 m wide. Its lower edge is level from 0.3 to 8 m, its upper
  // edge falls from 0.8 m at 0 to 0.4 m at 7.6 m.
  const Sample sample(
      {PrismAlongY(PolygonProfile({{0.3, 0.0}, {8.0, 0.0}, {7.6, 0.4}, {0.0, 0.8}}), 0.2)});
  const Idealisation beam = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(beam.kind, ElementKind::kMember);
  ASSERT_TRUE(beam.endProfile);
  EXPECT_NEAR(beam.deviation, 0.0, kTiny);
  EXPECT_NEAR(*beam.volumeRatio, 1.0, kTiny);
  EXPECT_FALSE(beam.isApproximate);
  // A trapezium up to 7.6 m and a triangle beyond it, less a triangle at the start.
  EXPECT_NEAR(beam.volume, 0.2 * (7.6 * 0.6 + 0.4 * 0.4 / 2.0 - 0.3 * 0.8 / 2.0), kTiny);
  // The axis ends in the middle of each end face.
  EXPECT_NEAR(beam.member->points[0].x, 0.15, kTiny);
  EXPECT_NEAR(beam.member->points[0].z, 0.4, kTiny);
  EXPECT_NEAR(beam.member->points[1].x, 7.8, kTiny);
  EXPECT_NEAR(beam.member->points[1].z, 0.2, kTiny);
  ASSERT_TRUE(beam.member->ends[0]);
  ASSERT_TRUE(beam.member->ends[1]);
  EXPECT_NEAR(beam.member->ends[0]->normal.x, -0.8 / std::hypot(0.8, 0.3), kTiny);
  EXPECT_NEAR(beam.member->ends[1]->normal.x, std::sqrt(0.5), kTiny);
}

TEST(IdealiseCutTaper, IsExactForATaperedBarThatIsCutInTwoDirections) {
  // A bar along x whose square section has 0.4 m at its start and 0.2 m at 6 m. It starts at
  // x = 0.5 z and ends at x = 6 - y.
  const auto section = [](double side, double at, double alongY, double alongZ) {
    std::vector<Point3> points;
    for (const auto& [y, z] : {std::pair{-0.5, -0.5}, {0.5, -0.5}, {0.5, 0.5}, {-0.5, 0.5}}) {
      points.emplace_back(at + side * (alongY * y + alongZ * z), y * side, z * side);
    }
    return points;
  };
  // The lines between corresponding points are the edges of the bar, whatever its sides do.
  const Sample sample =
      SampleOf(LoftOf({section(0.4, 0.0, 0.0, 0.5), section(0.2, 6.0, -1.0, 0.0)}));
  ASSERT_TRUE(sample.body.isClosed);
  ASSERT_GT(sample.body.volume, 0.0);
  const Idealisation bar = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(bar.kind, ElementKind::kMember);
  ASSERT_TRUE(bar.endProfile);
  ASSERT_TRUE(bar.member->ends[0]);
  EXPECT_NEAR(bar.member->ends[0]->normal.z / bar.member->ends[0]->normal.x, -0.5, kTiny);
  ASSERT_TRUE(bar.member->ends[1]);
  EXPECT_NEAR(bar.member->ends[1]->normal.y / bar.member->ends[1]->normal.x, 1.0, kTiny);
  EXPECT_LT(bar.deviation, 2e-3);
  EXPECT_FALSE(bar.isApproximate);
}

}  // namespace
}  // namespace KelIFC::building
