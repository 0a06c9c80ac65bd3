#include "kelifc/building/build/idealise_measure.h"

#include <gtest/gtest.h>

#include "tests/building/build/idealise_samples.h"

namespace KelIFC::building {
namespace {

using idealising::Boundary;
using idealising::Fit;
using idealising::MeasureFit;

Mesh BoxMesh(const Point3& min, const Point3& max) { return Sample({Block(min, max)}).body.mesh; }

/// Compares a body with a box. Both are described by two corners around the centre of the body.
Fit FitOf(const Mesh& body, const Point3& min, const Point3& max) {
  const Sample sample = SampleOf(body);
  Boundary boundary(sample.body);
  Mesh solid = BoxMesh(min, max);
  for (Point3& p : solid.points) p += -boundary.Centre();
  return MeasureFit(boundary, solid);
}

TEST(MeasureFit, IsExactForTheSameSolid) {
  const Fit fit =
      FitOf(BoxMesh({1.0, 1.0, 0.0}, {3.0, 2.0, 4.0}), {1.0, 1.0, 0.0}, {3.0, 2.0, 4.0});
  EXPECT_NEAR(fit.deviation, 0.0, 1e-12);
  EXPECT_NEAR(fit.volume, 8.0, 1e-12);
  ASSERT_TRUE(fit.ratio);
  EXPECT_NEAR(*fit.ratio, 1.0, 1e-12);
  EXPECT_FALSE(fit.isApproximate);
}

TEST(MeasureFit, IsApproximateFromADeviationOfFiveMillimetresOn) {
  const Mesh body = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  const Fit good = FitOf(body, {0.0, 0.0, 0.0}, {0.9951, 1.0, 1.0});
  EXPECT_NEAR(good.deviation, 0.0049, 1e-9);
  EXPECT_NEAR(*good.ratio, 0.9951, 1e-9);
  EXPECT_FALSE(good.isApproximate);
  const Fit bad = FitOf(body, {0.0, 0.0, 0.0}, {0.9949, 1.0, 1.0});
  EXPECT_NEAR(bad.deviation, 0.0051, 1e-9);
  EXPECT_TRUE(bad.isApproximate);
}

TEST(MeasureFit, IsApproximateFromAVolumeOfTwoPercentOn) {
  // A plate of 0.1 m: 1.9 and 2.1 mm are 1.9 and 2.1 % of its volume.
  const Mesh body = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 0.1});
  const Fit good = FitOf(body, {0.0, 0.0, 0.0}, {1.0, 1.0, 0.1019});
  EXPECT_NEAR(good.deviation, 0.0019, 1e-9);
  EXPECT_FALSE(good.isApproximate);
  const Fit bad = FitOf(body, {0.0, 0.0, 0.0}, {1.0, 1.0, 0.1021});
  EXPECT_NEAR(*bad.ratio, 1.021, 1e-9);
  EXPECT_TRUE(bad.isApproximate);
}

TEST(MeasureFit, ACutOutExplainsADifferenceOfTheVolume) {
  // A notch of 0.5 by 0.5 m leaves three quarters of the body; three of its corners are inside.
  const Mesh body =
      Sample({PrismAlongY(
                 PolygonProfile(
                     {{0.0, 0.0}, {1.0, 0.0}, {1.0, 0.5}, {0.5, 0.5}, {0.5, 1.0}, {0.0, 1.0}}),
                 0.2)})
          .body.mesh;
  const BuildingBox box = BoxOf(body);
  const Fit fit = FitOf(body, box.min, box.max);
  EXPECT_NEAR(*fit.ratio, 4.0 / 3.0, 1e-9);
  EXPECT_EQ(fit.cutouts, 1u);
  EXPECT_NEAR(fit.deviation, 0.0, 1e-9);
  EXPECT_FALSE(fit.isApproximate);
}

TEST(MeasureFit, WithoutAVolumeOfTheBodyIsApproximate) {
  Mesh body;
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  body.points = box.points;
  for (std::size_t face = 1; face < box.FaceCount(); ++face) {
    const Mesh::Loop loop = box.LoopOf(face, 0);
    body.AddFace({loop.begin(), loop.end()});
  }
  const Fit fit = FitOf(body, {0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  EXPECT_FALSE(fit.ratio);
  EXPECT_NEAR(fit.deviation, 0.0, 1e-12);
  EXPECT_TRUE(fit.isApproximate);
}

}  // namespace
}  // namespace KelIFC::building
