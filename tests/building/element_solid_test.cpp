#include "kelifc/building/element_solid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

#include "tests/building/made_building.h"
#include "tests/building/mesh_volume.h"

namespace KelIFC {
namespace {

constexpr double kPi = 3.14159265358979323846;

Building WithProfile() {
  Building building;
  BuildingProfile& profile = building.profiles.emplace_back();
  profile.outline = {{-0.1, -0.2}, {0.1, -0.2}, {0.1, 0.2}, {-0.1, 0.2}};
  profile.holes = {{{-0.05, -0.1}, {-0.05, 0.1}, {0.05, 0.1}, {0.05, -0.1}}};
  return building;
}

TEST(SolidOf, AMemberIsItsProfileAlongItsAxis) {
  const Building building = WithProfile();
  EXPECT_NEAR(VolumeOf(SolidOf(building, MemberFrom(1, {5.0, 6.0, 1.0}))), 3.0 * 0.06, 1e-9);
}

TEST(SolidOf, AnInclinedEndCutsAMember) {
  const Building building = WithProfile();
  BuildingElement column = MemberFrom(1, {5.0, 6.0, 1.0});
  column.member->ends[1] = EndPlane{{5.0, 6.0, 4.0}, {std::sqrt(0.5), 0.0, std::sqrt(0.5)}};
  const Mesh solid = SolidOf(building, column);
  double top = 0.0;
  for (const Point3& p : solid.points) top = std::max(top, p.z);
  EXPECT_NEAR(top, 4.1, 1e-9);
  EXPECT_NEAR(VolumeOf(solid), 3.0 * 0.06, 1e-9);
}

TEST(SolidOf, TheEndsOfAWedgeMayOverlapALittle) {
  const Building building = WithProfile();
  BuildingElement wedge = MemberFrom(1, {0.0, 0.0, 0.0}, 0.1);
  const double slope = std::sqrt(0.5);
  wedge.member->ends[1] = EndPlane{{0.0, 0.0, 0.1 - 1e-5}, {slope, 0.0, slope}};
  EXPECT_NEAR(VolumeOf(SolidOf(building, wedge)), 0.1 * 0.06, 1e-5);
  wedge.member->ends[1] = EndPlane{{0.0, 0.0, 0.09}, {slope, 0.0, slope}};
  EXPECT_TRUE(SolidOf(building, wedge).IsEmpty());
}

TEST(SolidOf, ASurfaceHasItsThicknessAndHoles) {
  BuildingElement slab = Slab(1, 5.0, 4.0);
  slab.surface->holes = {{{1.0, 1.0, 0.0}, {1.0, 2.0, 0.0}, {3.0, 2.0, 0.0}, {3.0, 1.0, 0.0}}};
  EXPECT_NEAR(VolumeOf(SolidOf({}, slab)), 18.0 * 0.2, 1e-9);
}

TEST(SolidOf, ACurvedWallIsSweptAlongItsBaseLine) {
  BuildingElement wall = Slab(1, 1.0, 1.0);
  wall.surface->sweep = {
      CurveForm::kArc, {{2.0, 0.0, 0.0}, {0.0, 2.0, 0.0}, {-2.0, 0.0, 0.0}}, {0.0, 0.0, 1.0}, 3.0};
  EXPECT_NEAR(VolumeOf(SolidOf({}, wall)), 2.0 * kPi * 3.0 * 0.2, 1e-2);
}

TEST(SolidOf, ABodyIsItsBoundary) {
  BuildingElement body;
  EXPECT_TRUE(SolidOf({}, body).IsEmpty());
  auto mesh = std::make_shared<Mesh>();
  mesh->points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}};
  for (const auto& face : {std::vector<Mesh::Index>{0, 2, 1}, {0, 1, 3}, {1, 2, 3}, {2, 0, 3}}) {
    mesh->AddFace(face);
  }
  body.body.mesh = mesh;
  EXPECT_NEAR(VolumeOf(SolidOf({}, body)), 1.0 / 6.0, 1e-12);
}

TEST(SolidOf, OfUnusableElementsIsEmptyOrHasNoTriangles) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  const Building building = WithProfile();
  EXPECT_TRUE(SolidOf(building, MemberFrom(1, {}, 3.0, 1)).IsEmpty());
  BuildingElement tapered = MemberFrom(1, {});
  tapered.member->endProfile = 7;
  EXPECT_TRUE(SolidOf(building, tapered).IsEmpty());
  EXPECT_TRUE(SolidOf(building, MemberFrom(1, {}, 0.0)).IsEmpty());
  EXPECT_TRUE(SolidOf(building, Slab(1, 5.0, 4.0, 0.0)).IsEmpty());
  BuildingElement wall = Slab(1, 1.0, 1.0);
  wall.surface->sweep.emplace();
  EXPECT_TRUE(SolidOf(building, wall).IsEmpty());
  EXPECT_TRUE(TrianglesOf(SolidOf(building, Slab(1, kNaN, 4.0))).empty());
}

}  // namespace
}  // namespace KelIFC
