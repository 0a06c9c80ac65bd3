#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "tests/building/build/idealise_samples.h"

namespace KelIFC::building {
namespace {

constexpr double kTiny = 1e-6;

// A section swept about the y axis from -angle / 2 to angle / 2 (0 is straight up) in so many steps
// of chords. The section is given by (y, r): r is the distance from the axis.
Mesh ArchOf(const std::vector<Point2>& section, double angle, int steps) {
  std::vector<std::vector<Point3>> sections;
  for (int i = 0; i <= steps; ++i) {
    const double at = angle * (static_cast<double>(i) / steps - 0.5);
    sections.emplace_back();
    for (const Point2& p : section) {
      sections.back().emplace_back(p.y * std::sin(at), p.x, p.y * std::cos(at));
    }
  }
  return LoftOf(sections);
}

// An I of 300 by 150 mm as (y, z), counter-clockwise, whose web is in the plane of the arch.
std::vector<Point2> SmallI() {
  const double h = 0.15, b = 0.075, w = 0.005, t = 0.14;
  return {{b, -h}, {b, -t}, {w, -t}, {w, t},   {b, t},   {b, h},
          {-b, h}, {-b, t}, {-w, t}, {-w, -t}, {-b, -t}, {-b, -h}};
}

// The area of a section (by the shoelace formula) and the distance of its centroid from the axis.
const std::vector<Point2> kRectangle = {{0.1, 9.8}, {0.1, 10.2}, {-0.1, 10.2}, {-0.1, 9.8}};

TEST(IdealiseBentMember, FindsTheArcOfAnArchOfFineChords) {
  const double angle = std::numbers::pi / 3;
  const Sample sample = SampleOf(ArchOf(kRectangle, angle, 60));
  ASSERT_TRUE(sample.body.isClosed);
  ASSERT_GT(sample.body.volume, 0.0);
  const Idealisation arch = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(arch.kind, ElementKind::kMember);
  EXPECT_EQ(arch.source, BodySource::kBrep);
  EXPECT_EQ(arch.member->curve, CurveForm::kArc);
  ASSERT_EQ(arch.member->points.size(), 3u);
  EXPECT_NEAR(arch.member->points[0].x, -5.0, kTiny);
  EXPECT_NEAR(arch.member->points[0].z, 10.0 * std::cos(angle / 2), kTiny);
  EXPECT_NEAR(arch.member->points[1].z, 10.0, kTiny);
  EXPECT_NEAR(arch.member->points[2].x, 5.0, kTiny);
  EXPECT_NEAR((*arch.profile)[ProfileParameter::kH], 0.4, 1e-4);
  EXPECT_NEAR((*arch.profile)[ProfileParameter::kB], 0.2, kTiny);
  // The chords of one degree are 0.39 mm below the outer arc.
  EXPECT_NEAR(arch.deviation, 10.2 * (1.0 - std::cos(angle / 120)), 2e-4);
  EXPECT_NEAR(*arch.volumeRatio, 1.0, 2e-4);
  EXPECT_FALSE(arch.isApproximate);
}

TEST(IdealiseBentMember, FollowsTheChordsOfACoarseArch) {
  // Chords of 10 degrees, which are up to 39 mm away from the arc.
  const double angle = std::numbers::pi / 3;
  const Sample sample = SampleOf(ArchOf(kRectangle, angle, 6));
  const Idealisation arch = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(arch.kind, ElementKind::kMember);
  EXPECT_EQ(arch.member->curve, CurveForm::kPolyline);
  ASSERT_EQ(arch.member->points.size(), 7u);
  EXPECT_NEAR(arch.member->points[0].x, -5.0, kTiny);
  EXPECT_NEAR(arch.member->points[3].z, 10.0, kTiny);
  EXPECT_NEAR((*arch.profile)[ProfileParameter::kH], 0.4 * std::cos(angle / 12), kTiny);
  // The ends are cut along radii, 5 degrees from square.
  ASSERT_TRUE(arch.member->ends[0]);
  EXPECT_NEAR(arch.member->ends[0]->normal.x, -std::cos(angle / 2), kTiny);
  EXPECT_NEAR(arch.deviation, 0.0, kTiny);
  EXPECT_NEAR(*arch.volumeRatio, 1.0, kTiny);
  EXPECT_FALSE(arch.isApproximate);
}

TEST(IdealiseBentMember, RecognisesTheProfileOfABentIBeam) {
  std::vector<Point2> section = SmallI();
  for (Point2& p : section) p.y += 10.0;
  const Sample sample = SampleOf(ArchOf(section, 1.0, 60));
  ASSERT_GT(sample.body.volume, 0.0);
  const Idealisation arch = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(arch.kind, ElementKind::kMember);
  EXPECT_EQ(arch.member->curve, CurveForm::kArc);
  EXPECT_EQ(arch.profile->shape, ProfileShape::kI);
  EXPECT_NEAR((*arch.profile)[ProfileParameter::kTw], 0.01, 1e-5);
  EXPECT_NEAR(std::fabs(arch.member->y.y), 1.0, kTiny);
  EXPECT_FALSE(arch.isApproximate);
}

TEST(IdealiseBentMember, KeepsTheProfileOfAnAngleOnItsSide) {
  // The profile has no symmetry: the leg along y lies at the inside of the arc, towards +y.
  std::vector<Point2> section = {{0.1, 0.0},   {0.1, 0.01}, {0.01, 0.01},
                                 {0.01, 0.15}, {0.0, 0.15}, {0.0, 0.0}};
  for (Point2& p : section) p.y += 8.0;
  const Sample sample = SampleOf(ArchOf(section, 0.8, 50));
  ASSERT_GT(sample.body.volume, 0.0);
  const Idealisation arch = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(arch.kind, ElementKind::kMember);
  EXPECT_LT(arch.deviation, 1e-3);
  EXPECT_FALSE(arch.isApproximate);
}

TEST(IdealiseBentMember, FollowsAKneeWithItsMitre) {
  // A column of 3 m and a rafter of 4 m that rises by 10 degrees, 0.3 m deep and 0.2 m wide.
  const double angle = std::numbers::pi / 18;
  const Vector2 rafter(std::cos(angle), std::sin(angle));
  const Point2 outer{0.0, 3.0};
  // The mitre runs along the bisector of the column and the rafter.
  const double mitre = (std::numbers::pi / 2 + angle) / 2;
  const Point2 inner{0.3, 3.0 - 0.3 / std::tan(mitre)};
  const Point2 top = outer + rafter * 4.0;
  const Point2 below = top + Vector2(rafter.y, -rafter.x) * 0.3;
  std::vector<Point2> frame = {{0.0, 0.0}, {0.3, 0.0}, inner, below, top, outer};
  const Sample sample({PrismAlongY(PolygonProfile(frame), 0.2)});
  const Idealisation knee = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(knee.kind, ElementKind::kMember);
  EXPECT_EQ(knee.member->curve, CurveForm::kPolyline);
  ASSERT_EQ(knee.member->points.size(), 3u);
  EXPECT_NEAR(knee.member->points[0].x, 0.15, kTiny);
  EXPECT_NEAR(knee.member->points[0].z, 0.0, kTiny);
  EXPECT_NEAR(knee.member->points[0].y, 0.1, kTiny);
  EXPECT_NEAR((*knee.profile)[ProfileParameter::kH], 0.3, kTiny);
  EXPECT_FALSE(knee.member->ends[0]);
  EXPECT_FALSE(knee.member->ends[1]);
  EXPECT_NEAR(knee.deviation, 0.0, kTiny);
  EXPECT_FALSE(knee.isApproximate);
}

TEST(IdealiseBentMember, CutsAnArchAtLevelSpringings) {
  // Each point of the section runs between the planes z = 6 cos 0.8 on both sides.
  const double level = 6.0 * std::cos(0.8);
  std::vector<std::vector<Point3>> sections(61);
  for (int i = 0; i <= 60; ++i) {
    for (const Point2& p : SmallI()) {
      const double radius = 6.0 + p.y;
      const double at = std::acos(level / radius) * (i / 30.0 - 1.0);
      sections[i].emplace_back(radius * std::sin(at), p.x, radius * std::cos(at));
    }
  }
  const Idealisation arch = SampleOf(LoftOf(sections)).BySlices(ElementRole::kMember);
  ASSERT_EQ(arch.kind, ElementKind::kMember);
  EXPECT_EQ(arch.member->curve, CurveForm::kArc);
  EXPECT_EQ(arch.profile->shape, ProfileShape::kI);
  for (const std::size_t k : {0u, 1u}) {
    ASSERT_TRUE(arch.member->ends[k]);
    EXPECT_NEAR(arch.member->ends[k]->normal.z, -1.0, 1e-6);
    EXPECT_NEAR(arch.member->ends[k]->point.z, level, 1e-6);
    EXPECT_NEAR(arch.member->points[2 * k].z, level, 1e-6);
  }
  EXPECT_NEAR(std::abs(arch.member->points[0].x), 6.0 * std::sin(0.8), 1e-3);
  EXPECT_FALSE(arch.isApproximate);
  EXPECT_EQ(arch.cutouts, 0u);
}

// An arch whose section grows evenly from its size at the start to twice that at the end.
Mesh GrowingArch(const std::vector<Point2>& section, bool isClockwise) {
  std::vector<std::vector<Point3>> sections(49);
  for (int i = 0; i <= 48; ++i) {
    const double at = (isClockwise ? -1.2 : 1.2) * i / 48;
    const double size = 1.0 + i / 48.0;
    for (const Point2& p : section) {
      const double radius = 8.0 + p.y * size;
      sections[i].emplace_back(radius * std::cos(at), radius * std::sin(at), p.x);
    }
  }
  return LoftOf(sections);
}

TEST(IdealiseBentMember, GivesATaperedArchAProfileAtItsEnd) {
  for (const bool isClockwise : {false, true}) {
    std::vector<Point2> section = SmallI();
    if (isClockwise) std::reverse(section.begin(), section.end());
    const Sample sample = SampleOf(GrowingArch(section, isClockwise));
    ASSERT_GT(sample.body.volume, 0.0);
    const Idealisation arch = sample.BySlices(ElementRole::kMember);
    ASSERT_EQ(arch.kind, ElementKind::kMember);
    EXPECT_EQ(arch.member->curve, CurveForm::kArc);
    ASSERT_TRUE(arch.endProfile);
    const double first = (*arch.profile)[ProfileParameter::kH];
    const double last = (*arch.endProfile)[ProfileParameter::kH];
    EXPECT_NEAR(std::min(first, last), 0.3, 1e-3);
    EXPECT_NEAR(std::max(first, last), 0.6, 1e-3);
    for (const Point3& p : arch.member->points) EXPECT_NEAR(std::hypot(p.x, p.y), 8.0, 1e-3);
    EXPECT_FALSE(arch.isApproximate);
    EXPECT_LT(arch.deviation, 1e-3);
  }
}

TEST(IdealiseBentMember, LeavesAWallInTheFormOfAnArchASurface) {
  const Sample sample = SampleOf(ArchOf(kRectangle, 1.0, 60));
  EXPECT_EQ(sample.BySlices(ElementRole::kPlate).kind, ElementKind::kSurface);
}

}  // namespace
}  // namespace KelIFC::building
