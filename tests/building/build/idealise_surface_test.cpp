#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "tests/building/build/idealise_samples.h"

namespace KelIFC::building {
namespace {

constexpr double kTiny = 1e-6;

double AreaOf(const SurfaceRegion& surface) {
  Vector3 sum;
  const std::vector<Point3>& p = surface.outline;
  for (std::size_t i = 1; i + 1 < p.size(); ++i) sum = sum + Cross(p[i] - p[0], p[i + 1] - p[0]);
  return Dot(sum, surface.normal) / 2;
}

void ExpectExact(const Idealisation& element) {
  EXPECT_NEAR(element.deviation, 0.0, kTiny);
  ASSERT_TRUE(element.volumeRatio);
  EXPECT_NEAR(*element.volumeRatio, 1.0, kTiny);
  EXPECT_FALSE(element.isApproximate);
}

TEST(IdealiseSurface, TakesASlabFromItsExtrusion) {
  const Sample sample(
      {Prism(
          PolygonProfile({{0.0, 0.0}, {6.0, 0.0}, {6.0, 4.0}, {3.0, 4.0}, {3.0, 5.0}, {0.0, 5.0}}),
          0.2)},
      At(0.0, 0.0, 3.0));
  const Idealisation slab = sample.ByFacts(ElementRole::kSlab);
  ASSERT_EQ(slab.kind, ElementKind::kSurface);
  ExpectExact(slab);
  EXPECT_NEAR(slab.surface->thickness, 0.2, kTiny);
  EXPECT_NEAR(slab.surface->normal.z, 1.0, kTiny);
  EXPECT_NEAR(slab.surface->outline[0].z, 3.1, kTiny);
  EXPECT_NEAR(slab.surface->reference, 0.1, kTiny);
  EXPECT_NEAR(AreaOf(*slab.surface), 27.0, kTiny);
}

TEST(IdealiseSurface, TurnsASlabThatIsExtrudedDownwards) {
  const Sample sample({PrismAlong(RectangleProfile(0.0, 0.0, 6.0, 4.0), {0.0, 0.0, -1.0}, 0.2)});
  const Idealisation slab = sample.ByFacts(ElementRole::kSlab);
  ASSERT_EQ(slab.kind, ElementKind::kSurface);
  ExpectExact(slab);
  EXPECT_NEAR(slab.surface->normal.z, 1.0, kTiny);
  EXPECT_NEAR(slab.surface->reference, -0.1, kTiny);
  EXPECT_NEAR(AreaOf(*slab.surface), 24.0, kTiny);
}

TEST(IdealiseSurface, KeepsTheStairHoleOfASlab) {
  const SolidPointer solid =
      Minus(Block({0.0, 0.0, 0.0}, {8.0, 6.0, 0.25}), Block({1.0, 1.0, -1.0}, {2.0, 4.0, 1.0}));
  const Idealisation slab = Sample({solid}).BySlices(ElementRole::kSlab);
  ASSERT_EQ(slab.kind, ElementKind::kSurface);
  ExpectExact(slab);
  EXPECT_EQ(slab.cutouts, 0u);
  ASSERT_EQ(slab.surface->holes.size(), 1u);
  EXPECT_EQ(slab.surface->holes[0].size(), 4u);
  EXPECT_NEAR(slab.volume, (48.0 - 3.0) * 0.25, kTiny);
}

TEST(IdealiseSurface, SeesAWallInTheExtrusionOfItsPlan) {
  const Sample sample({Prism(RectangleProfile(0.0, -0.1, 5.0, 0.1), 2.8)}, At(1.0, 1.0, 0.0));
  const Idealisation wall = sample.ByFacts(ElementRole::kWall);
  ASSERT_EQ(wall.kind, ElementKind::kSurface);
  ExpectExact(wall);
  EXPECT_NEAR(wall.surface->thickness, 0.2, kTiny);
  EXPECT_NEAR(wall.surface->normal.y, 1.0, kTiny);
  EXPECT_NEAR(wall.surface->reference, 0.0, kTiny);
  EXPECT_NEAR(AreaOf(*wall.surface), 14.0, kTiny);
}

TEST(IdealiseSurface, TurnsTheNormalOfAWallToItsLayers) {
  Sample sample({Prism(RectangleProfile(0.0, -0.3, 5.0, 0.0), 2.8)});
  sample.product.material.layers = {{"brick", true, 0.2}, {"wool", true, 0.1}};
  sample.product.material.usage = {2, false, 0.0, true};
  const Idealisation wall = sample.ByFacts(ElementRole::kWall);
  ASSERT_EQ(wall.kind, ElementKind::kSurface);
  EXPECT_NEAR(wall.surface->normal.y, -1.0, kTiny);
  EXPECT_NEAR(wall.surface->reference, 0.15, kTiny);
  ASSERT_EQ(wall.surface->layers.size(), 2u);
  EXPECT_EQ(wall.surface->layers[0].material, 0u);
  EXPECT_NEAR(wall.surface->layers[1].thickness, 0.1, kTiny);
}

TEST(IdealiseSurface, FollowsTheRoofOfAClippedWall) {
  // A gable of 6 by 4 m: two roof planes leave a triangle above 2 m, a third cuts its top at 3.5 m.
  SolidPointer wall = Prism(RectangleProfile(0.0, 0.0, 6.0, 0.3), 4.0);
  const double s = std::sqrt(13.0);
  wall = Minus(wall, SolidOf(Below({0.0, 0.0, 2.0}, {2.0 / s, 0.0, -3.0 / s})));
  wall = Minus(wall, SolidOf(Below({6.0, 0.0, 2.0}, {-2.0 / s, 0.0, -3.0 / s})));
  wall = Minus(wall, SolidOf(Below({0.0, 0.0, 3.5}, {0.0, 0.0, -1.0})));
  const Sample sample({wall});
  const Idealisation element = sample.ByFacts(ElementRole::kWall);
  ASSERT_EQ(element.kind, ElementKind::kSurface);
  ExpectExact(element);
  EXPECT_EQ(element.source, BodySource::kBoolean);
  EXPECT_EQ(element.surface->outline.size(), 6u);
  EXPECT_NEAR(element.surface->normal.y, 1.0, kTiny);
  EXPECT_NEAR(element.surface->outline[0].y, 0.15, kTiny);
  // The triangle of 6 by 2 m lacks its top of 1.5 by 0.5 m.
  EXPECT_NEAR(AreaOf(*element.surface), 12.0 + 6.0 - 0.375, kTiny);
}

TEST(IdealiseSurface, KeepsTheNormalOfASlopingSlab) {
  // The slab rises by 3 on 4 and is 0.2 m thick, square to its plane.
  Transform3 placement;
  placement.x = {0.8, 0.0, 0.6};
  placement.z = {-0.6, 0.0, 0.8};
  const Sample sample({Block({0.0, 0.0, 0.0}, {5.0, 4.0, 0.2})}, placement);
  for (const Idealisation& slab :
       {sample.BySlices(ElementRole::kSlab), sample.ByFacts(ElementRole::kSlab)}) {
    ASSERT_EQ(slab.kind, ElementKind::kSurface);
    ExpectExact(slab);
    EXPECT_NEAR(slab.surface->normal.x, -0.6, kTiny);
    EXPECT_NEAR(slab.surface->normal.z, 0.8, kTiny);
    EXPECT_NEAR(slab.surface->thickness, 0.2, kTiny);
    EXPECT_NEAR(AreaOf(*slab.surface), 20.0, kTiny);
  }
}

TEST(IdealiseSurface, ReadsAnUprightPlate) {
  const Idealisation plate =
      Sample({Block({0.0, 0.0, 0.0}, {0.4, 0.01, 0.3})}).BySlices(ElementRole::kPlate);
  ASSERT_EQ(plate.kind, ElementKind::kSurface);
  ExpectExact(plate);
  EXPECT_NEAR(plate.surface->thickness, 0.01, kTiny);
  EXPECT_NEAR(plate.surface->normal.y, 1.0, kTiny);
}

TEST(IdealiseSurface, TellsAPadFromAStripFooting) {
  const Idealisation pad =
      Sample({Block({0.0, 0.0, 0.0}, {2.0, 2.0, 0.5})}).BySlices(ElementRole::kFooting);
  ASSERT_EQ(pad.kind, ElementKind::kSurface);
  ExpectExact(pad);
  EXPECT_NEAR(pad.surface->thickness, 0.5, kTiny);
  const Idealisation strip =
      Sample({Block({0.0, 0.0, 0.0}, {10.0, 0.6, 0.3})}).BySlices(ElementRole::kFooting);
  ASSERT_EQ(strip.kind, ElementKind::kMember);
  ExpectExact(strip);
}

TEST(IdealiseSurface, KeepsTheArcsOfAnOutline) {
  // A square of 4 m with a half circle of 2 m radius at one side.
  Contour contour = ContourOf({{0.0, 0.0}, {4.0, 0.0}, {4.0, 4.0}, {0.0, 4.0}});
  contour.arcs = {{1, {6.0, 2.0}}};
  const Sample sample({Prism(ProfileOf({{contour, {}}}), 0.2)});
  const Idealisation slab = sample.ByFacts(ElementRole::kSlab);
  ASSERT_EQ(slab.kind, ElementKind::kSurface);
  EXPECT_FALSE(slab.isApproximate);
  EXPECT_LT(slab.deviation, 2e-4);
  ASSERT_EQ(slab.surface->outline.size(), 4u);
  ASSERT_EQ(slab.surface->arcs.size(), 1u);
  EXPECT_NEAR(slab.surface->arcs[0].through.x, 6.0, kTiny);
  EXPECT_NEAR(slab.volume, 0.2 * (16.0 + 2.0 * std::numbers::pi), 1e-3);
}

TEST(IdealiseSurface, GivesARoundSlabFourPoints) {
  Contour contour = ContourOf({{2.0, 0.0}, {-2.0, 0.0}});
  contour.arcs = {{0, {0.0, 2.0}}, {1, {0.0, -2.0}}};
  const Idealisation slab =
      Sample({Prism(ProfileOf({{contour, {}}}), 0.2)}).ByFacts(ElementRole::kSlab);
  ASSERT_EQ(slab.kind, ElementKind::kSurface);
  EXPECT_FALSE(slab.isApproximate);
  EXPECT_EQ(slab.surface->outline.size(), 4u);
  EXPECT_EQ(slab.surface->arcs.size(), 4u);
  EXPECT_NEAR(AreaOf(*slab.surface), 8.0, kTiny);
  EXPECT_NEAR(slab.volume, 0.2 * 4.0 * std::numbers::pi, 1e-3);
}

TEST(IdealiseSurface, SweepsACurvedWallAlongItsMiddle) {
  // A quarter ring between 4.8 and 5.2 m, 3 m high.
  Contour contour = ContourOf({{4.8, 0.0}, {5.2, 0.0}, {0.0, 5.2}, {0.0, 4.8}});
  const double c = std::sqrt(0.5);
  contour.arcs = {{1, {5.2 * c, 5.2 * c}}, {3, {4.8 * c, 4.8 * c}}};
  const Sample sample({Prism(ProfileOf({{contour, {}}}), 3.0)});
  for (const Idealisation& wall :
       {sample.ByFacts(ElementRole::kWall), sample.BySlices(ElementRole::kWall)}) {
    ASSERT_EQ(wall.kind, ElementKind::kSurface);
    ASSERT_TRUE(wall.surface->sweep);
    const WallSweep& sweep = *wall.surface->sweep;
    EXPECT_EQ(sweep.curve, CurveForm::kArc);
    ASSERT_EQ(sweep.points.size(), 3u);
    EXPECT_NEAR(wall.surface->thickness, 0.4, 1e-4);
    EXPECT_NEAR(sweep.height, 3.0, kTiny);
    for (const Point3& p : sweep.points) EXPECT_NEAR(std::hypot(p.x, p.y), 5.0, 1e-4);
    EXPECT_FALSE(wall.isApproximate);
    EXPECT_LT(wall.deviation, 5e-4);
    EXPECT_NEAR(wall.volume, 0.5 * std::numbers::pi * 5.0 * 0.4 * 3.0, 1e-2);
  }
}

TEST(IdealiseSurface, ContainsTheMitredAndPointedEndsOfAWall) {
  // In plan 5 m by 0.24 m: cut at 45 degrees on the left, and with a tip of 0.08 m on the right.
  const Sample sample({Prism(
      PolygonProfile({{0.0, 0.0}, {5.0, 0.0}, {5.08, 0.12}, {5.0, 0.24}, {0.24, 0.24}}), 2.5)});
  const Idealisation wall = sample.ByFacts(ElementRole::kWall);
  ASSERT_EQ(wall.kind, ElementKind::kSurface);
  EXPECT_NEAR(wall.deviation, 0.0, 1e-4);
  EXPECT_FALSE(wall.isApproximate);
  EXPECT_EQ(wall.cutouts, 2u);
  EXPECT_NEAR(AreaOf(*wall.surface), 5.08 * 2.5, 1e-3);
  const double plan = 5.0 * 0.24 - 0.24 * 0.24 / 2 + 0.08 * 0.24 / 2;
  EXPECT_NEAR(*wall.volumeRatio, 5.08 * 0.24 / plan, 1e-4);
}

TEST(IdealiseSurface, FollowsASlopeAcrossAWallWhosePointsAreRounded) {
  // The upper edge falls by 0.1 m across the wall, whose faces are up to 0.05 mm from plane.
  const double e = 5e-5;
  const Sample sample = SampleOf(
      LoftOf({{{0.0, e, 0.0}, {0.0, 0.2, -e}, {0.0, 0.2 - e, 3.0}, {0.0, 0.0, 3.1}},
              {{5.0, -e, 0.0}, {5.0, 0.2 + e, 0.0}, {5.0, 0.2, 3.0}, {5.0, 0.0, 3.1 + e}}}));
  const Idealisation wall = sample.BySlices(ElementRole::kWall);
  ASSERT_EQ(wall.kind, ElementKind::kSurface);
  EXPECT_NEAR(wall.surface->thickness, 0.2, 2e-4);
  EXPECT_NEAR(AreaOf(*wall.surface), 5.0 * 3.1, 0.01);
  EXPECT_FALSE(wall.isApproximate);
}

TEST(IdealiseSurface, TakesTheMeanThicknessOfAWedge) {
  // 0.20 m thick at one side, 0.21 m at the other.
  const Sample sample(
      {PrismAlongY(PolygonProfile({{0.0, 0.0}, {4.0, 0.0}, {4.0, 0.21}, {0.0, 0.2}}), 3.0)});
  const Idealisation slab = sample.BySlices(ElementRole::kSlab);
  ASSERT_EQ(slab.kind, ElementKind::kSurface);
  EXPECT_NEAR(slab.surface->thickness, 0.205, 1e-3);
  EXPECT_NEAR(slab.deviation, 0.005, 1e-3);
  EXPECT_NEAR(*slab.volumeRatio, 1.0, 1e-3);
}

TEST(IdealiseSurface, UnitesTheLayersOfAWall) {
  const Sample sample(
      {Block({0.0, 0.0, 0.0}, {5.0, 0.2, 3.0}), Block({0.0, 0.2, 0.0}, {5.0, 0.3, 3.0})});
  const Idealisation wall = sample.BySlices(ElementRole::kWall);
  ASSERT_EQ(wall.kind, ElementKind::kSurface);
  EXPECT_EQ(wall.source, BodySource::kMulti);
  EXPECT_NEAR(wall.surface->thickness, 0.3, kTiny);
  EXPECT_NEAR(wall.deviation, 0.0, kTiny);
  EXPECT_NEAR(*wall.volumeRatio, 1.0, kTiny);
}

TEST(IdealiseSurface, UnitesLayersOfDifferentSizes) {
  // The outer layer begins lower and is longer than the inner one.
  const Sample sample(
      {Block({0.0, 0.0, 0.0}, {5.0, 0.2, 3.0}), Block({-0.1, 0.2, -0.1}, {5.1, 0.22, 3.0})});
  const Idealisation wall = sample.BySlices(ElementRole::kWall);
  ASSERT_EQ(wall.kind, ElementKind::kSurface);
  EXPECT_NEAR(wall.surface->thickness, 0.22, kTiny);
  EXPECT_FALSE(wall.isApproximate);
}

TEST(IdealiseSurface, ReadsAWallThatHasARebateAndASlopingTop) {
  // The inner half ends 0.25 m above the lower edge, and the upper edge slopes across the wall.
  const Sample sample(
      {PrismAlongX(PolygonProfile(
                       {{0.0, 0.25}, {0.1, 0.25}, {0.1, 0.0}, {0.2, 0.0}, {0.2, 2.7}, {0.0, 2.8}}),
                   2.4),
       Block({2.4, 0.0, 0.0}, {4.8, 0.2, 2.7})});
  const Idealisation wall = sample.BySlices(ElementRole::kWall);
  ASSERT_EQ(wall.kind, ElementKind::kSurface);
  EXPECT_NEAR(wall.surface->thickness, 0.2, kTiny);
  EXPECT_FALSE(wall.isApproximate);
  EXPECT_GE(wall.cutouts, 1U);
}

}  // namespace
}  // namespace KelIFC::building
