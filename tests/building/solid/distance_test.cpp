#include "kelifc/building/solid/distance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "solid_samples.h"

namespace KelIFC::building {
namespace {

TEST(SurfaceDistance, IsThatOfTheNearestFaceEdgeOrCorner) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {2.0, 2.0, 2.0});
  const SurfaceDistance surface(box);
  EXPECT_NEAR(surface.To({1.0, 1.0, 5.0}), 3.0, 1e-12);
  EXPECT_NEAR(surface.To({1.0, 1.0, 1.5}), 0.5, 1e-12);
  EXPECT_NEAR(surface.To({5.0, 6.0, 1.0}), 5.0, 1e-12);
  EXPECT_NEAR(surface.To({3.0, 4.0, 4.0}), 3.0, 1e-12);
  EXPECT_NEAR(surface.To({2.0, 0.7, 0.3}), 0.0, 1e-12);
}

TEST(SurfaceDistance, KnowsHolesOfFaces) {
  const Mesh tube = TubeMesh();
  const SurfaceDistance surface(tube);
  EXPECT_NEAR(surface.To({1.0, 1.0, 3.0}), 0.5, 1e-12);
  EXPECT_FALSE(surface.Contains({1.0, 1.0, 1.5}, 0.0));
  EXPECT_TRUE(surface.Contains({0.2, 1.0, 1.5}, 0.0));
  EXPECT_NEAR(surface.Outside({1.0, 1.0, 1.5}), 0.5, 1e-12);
  EXPECT_EQ(surface.Outside({0.2, 1.0, 1.5}), 0.0);
}

TEST(SurfaceDistance, CountsTheSurfaceAsInsideWithinATolerance) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {2.0, 2.0, 2.0});
  const SurfaceDistance surface(box);
  EXPECT_TRUE(surface.Contains({2.0, 1.0, 1.0}, 1e-6));
  EXPECT_TRUE(surface.Contains({2.0 + 9e-7, 1.0, 1.0}, 1e-6));
  EXPECT_FALSE(surface.Contains({2.0 + 2e-6, 1.0, 1.0}, 1e-6));
}

TEST(SurfaceDistance, OfAnEmptyMeshIsInfinite) {
  const Mesh empty;
  const SurfaceDistance surface(empty);
  EXPECT_TRUE(std::isinf(surface.To({1.0, 1.0, 1.0})));
  EXPECT_FALSE(surface.Contains({1.0, 1.0, 1.0}, 1.0));
}

TEST(SurfaceDistance, OfOverlappingSolidsContainsWhatEitherContains) {
  const Mesh both = EvaluateBody({Block({0.0, 0.0, 0.0}, {2.0, 2.0, 2.0}),
                                  Block({1.0, 0.0, 0.0}, {3.0, 2.0, 2.0})},
                                 Transform3())
                        .body.mesh;
  const SurfaceDistance surface(both);
  for (const double x : {0.5, 1.5, 2.5}) EXPECT_TRUE(surface.Contains({x, 1.0, 1.0}, 0.0)) << x;
}

TEST(SurfaceDistance, AgreesWithTheFormulaOfASphere) {
  Primitive solid;
  solid.form = Primitive::Form::kSphere;
  solid.sizes = {1.0, 1.0, 1.0};
  const Mesh sphere = Evaluate(SolidOf(solid)).body.mesh;
  const SurfaceDistance surface(sphere);
  std::mt19937 random(1);
  for (int i = 0; i < 500; ++i) {
    const auto next = [&] { return static_cast<double>(random() % 30001) / 10000.0 - 1.5; };
    const Point3 p = {next(), next(), next()};
    const double radius = std::sqrt(p.x * p.x + p.y * p.y + p.z * p.z);
    EXPECT_NEAR(surface.To(p), std::abs(radius - 1.0), 5e-4);
    if (std::abs(radius - 1.0) > 1e-3) {
      EXPECT_EQ(surface.Contains(p, 0.0), radius < 1.0);
    }
  }
}

TEST(SurfaceDistance, StaysRightOnLinesThroughCorners) {
  const Mesh box = BoxMesh({-1.0, -1.0, -1.0}, {1.0, 1.0, 1.0});
  const SurfaceDistance surface(box);
  for (int x = -2; x <= 2; ++x) {
    for (int y = -2; y <= 2; ++y) {
      for (int z = -2; z <= 2; ++z) {
        if (std::abs(x) == 1 || std::abs(y) == 1 || std::abs(z) == 1) continue;
        const Point3 p = {static_cast<double>(x), static_cast<double>(y), static_cast<double>(z)};
        EXPECT_EQ(surface.Contains(p, 0.0), x == 0 && y == 0 && z == 0);
      }
    }
  }
}

}  // namespace
}  // namespace KelIFC::building
