#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <optional>

#include "tests/building/build/idealise_samples.h"

namespace KelIFC::building {
namespace {

// In which direction surfaces look and profiles lie. The expected directions follow from the sizes
// of the bodies.

constexpr double kTiny = 1e-9;

void ExpectDirection(const Vector3& v, double x, double y, double z) {
  EXPECT_NEAR(v.x, x, kTiny);
  EXPECT_NEAR(v.y, y, kTiny);
  EXPECT_NEAR(v.z, z, kTiny);
}

/// The area vector of an outline, which is its normal if it is counter-clockwise against it.
Vector3 AreaVectorOf(const std::vector<Point3>& outline) {
  Vector3 sum;
  for (std::size_t i = 1; i + 1 < outline.size(); ++i) {
    sum = sum + Cross(outline[i] - outline[0], outline[i + 1] - outline[0]) * 0.5;
  }
  return sum;
}

/// A wall of 5 by 3 m that lies between y = 0 and y = 0.2 m.
Sample Wall(const Transform3& placement = {}) {
  return Sample({Block({0.0, 0.0, 0.0}, {5.0, 0.2, 3.0})}, placement);
}

SurfaceRegion SurfaceOf(const Sample& sample, ElementRole role) {
  const Idealisation ideal = sample.ByFacts(role);
  EXPECT_TRUE(ideal.surface);
  return ideal.surface.value_or(SurfaceRegion());
}

TEST(Orientation, OfAWallWithoutLayersIsToTheLeftOfItsPlacement) {
  ExpectDirection(SurfaceOf(Wall(), ElementRole::kWall).normal, 0.0, 1.0, 0.0);
  Transform3 turned;
  turned.x = {0.0, 1.0, 0.0};
  turned.y = {-1.0, 0.0, 0.0};
  turned.origin = {10.0, 20.0, 1.0};
  const SurfaceRegion wall = SurfaceOf(Wall(turned), ElementRole::kWall);
  ExpectDirection(wall.normal, -1.0, 0.0, 0.0);
  EXPECT_NEAR(wall.reference, 0.1, kTiny);
  EXPECT_NEAR(wall.outline[0].x, 9.9, kTiny);
}

TEST(Orientation, OfAWallFollowsItsAxis) {
  Sample wall = Wall();
  wall.product.axis = SpaceCurve{{{5.0, 0.0, 0.0}, {0.0, 0.0, 0.0}}, {}, false};
  const SurfaceRegion surface = SurfaceOf(wall, ElementRole::kWall);
  ExpectDirection(surface.normal, 0.0, -1.0, 0.0);
  EXPECT_NEAR(surface.reference, -0.1, kTiny);
}

TEST(Orientation, OfAWallFollowsItsLayersBeforeItsAxis) {
  Sample wall = Wall();
  wall.product.axis = SpaceCurve{{{5.0, 0.0, 0.0}, {0.0, 0.0, 0.0}}, {}, false};
  wall.product.material.usage = {2, true, 0.0, true};
  ExpectDirection(SurfaceOf(wall, ElementRole::kWall).normal, 0.0, 1.0, 0.0);
  wall.product.material.usage.isPositive = false;
  ExpectDirection(SurfaceOf(wall, ElementRole::kWall).normal, 0.0, -1.0, 0.0);
}

TEST(Orientation, OfASlabIsUpwardsWhateverItsLayers) {
  for (const bool isPositive : {true, false}) {
    Sample slab({Block({0.0, 0.0, -0.2}, {5.0, 4.0, 0.0})});
    slab.product.material.usage = {3, isPositive, 0.0, true};
    const SurfaceRegion surface = SurfaceOf(slab, ElementRole::kSlab);
    ExpectDirection(surface.normal, 0.0, 0.0, 1.0);
    EXPECT_NEAR(surface.thickness, 0.2, kTiny);
  }
}

TEST(Orientation, OutlinesAreCounterClockwiseAgainstTheNormal) {
  Sample reversed = Wall();
  reversed.product.material.usage = {2, false, 0.0, true};
  for (const Sample& wall : {Wall(), reversed}) {
    const SurfaceRegion surface = SurfaceOf(wall, ElementRole::kWall);
    EXPECT_NEAR(Dot(AreaVectorOf(surface.outline), surface.normal), 15.0, kTiny);
  }
}

/// The member that is found in the boundary of a prism along world x.
Idealisation BeamOf(ProfilePointer profile) {
  Idealisation beam = Sample({PrismAlongX(std::move(profile), 5.0)}).BySlices(ElementRole::kMember);
  EXPECT_TRUE(beam.member && beam.profile);
  return beam;
}

TEST(Orientation, TheZAxisOfABeamPointsUp) {
  const Idealisation beam = BeamOf(RectangleProfile(0.0, 0.0, 0.3, 0.5));
  ASSERT_TRUE(beam.member && beam.profile);
  ExpectDirection(beam.member->y, 0.0, 1.0, 0.0);
  EXPECT_NEAR(beam.profile->iy, 0.3 * 0.5 * 0.5 * 0.5 / 12, kTiny);
}

TEST(Orientation, TheLargerMomentOfAProfileIsAboutItsYAxis) {
  const Idealisation beam = BeamOf(RectangleProfile(0.0, 0.0, 0.5, 0.3));
  ASSERT_TRUE(beam.member && beam.profile);
  EXPECT_NEAR(std::abs(beam.member->y.z), 1.0, kTiny);  // so z is horizontal
  EXPECT_NEAR(beam.profile->iy, 0.3 * 0.5 * 0.5 * 0.5 / 12, kTiny);
  EXPECT_NEAR(beam.profile->iz, 0.5 * 0.3 * 0.3 * 0.3 / 12, kTiny);
}

TEST(Orientation, TheZAxisOfAnInvertedTPointsUp) {
  // A flange of 0.2 by 0.02 m below or above a web of 0.02 by 0.18 m.
  const double centroid = (0.2 * 0.02 * 0.01 + 0.02 * 0.18 * 0.11) / (0.2 * 0.02 + 0.02 * 0.18);
  for (const bool isInverted : {true, false}) {
    const auto z = [&](double height) { return isInverted ? height : 0.2 - height; };
    const Idealisation beam = BeamOf(PolygonProfile({{-0.1, z(0.0)},
                                                     {0.1, z(0.0)},
                                                     {0.1, z(0.02)},
                                                     {0.01, z(0.02)},
                                                     {0.01, z(0.2)},
                                                     {-0.01, z(0.2)},
                                                     {-0.01, z(0.02)},
                                                     {-0.1, z(0.02)}}));
    ASSERT_TRUE(beam.member && beam.profile);
    EXPECT_EQ(beam.profile->shape, ProfileShape::kT);
    ExpectDirection(beam.member->y, 0.0, 1.0, 0.0);
    EXPECT_NEAR(beam.member->points[0].z, z(centroid), kTiny);
    double highest = -1.0;
    for (const Point2& p : beam.profile->outline) highest = std::fmax(highest, p.y);
    EXPECT_NEAR(highest, isInverted ? 0.2 - centroid : centroid, kTiny);
  }
}

TEST(Orientation, TheZAxisOfAColumnPointsToWorldY) {
  // The strong axis of the profile is along world x.
  const Idealisation column =
      Sample({Block({0.0, 0.0, 0.0}, {0.3, 0.5, 3.0})}).BySlices(ElementRole::kMember);
  ASSERT_TRUE(column.member && column.profile);
  EXPECT_GT(column.member->points[1].z, column.member->points[0].z);
  ExpectDirection(column.member->y, 1.0, 0.0, 0.0);
  EXPECT_NEAR(column.profile->iy, 0.3 * 0.5 * 0.5 * 0.5 / 12, kTiny);
}

}  // namespace
}  // namespace KelIFC::building
