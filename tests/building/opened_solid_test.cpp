#include "kelifc/building/opened_solid.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <memory>
#include <vector>

#include "kelifc/building/element_solid.h"

#include "tests/building/made_building.h"
#include "tests/building/mesh_volume.h"

namespace KelIFC {
namespace {

/// An upright opening in the plane y = 0.
BuildingOpening OpeningFrom(double x, double z, double width, double height, double depth = 0.3) {
  BuildingOpening opening;
  opening.outline = {
      {x, 0.0, z}, {x + width, 0.0, z}, {x + width, 0.0, z + height}, {x, 0.0, z + height}};
  opening.depth = depth;
  return opening;
}

/// A wall of 6 m x 3 m x 0.3 m in the plane y = 0.
BuildingElement Wall() {
  BuildingElement wall = Slab(1, 6.0, 3.0, 0.3);
  wall.surface->outline = {{0.0, 0.0, 0.0}, {6.0, 0.0, 0.0}, {6.0, 0.0, 3.0}, {0.0, 0.0, 3.0}};
  wall.surface->normal = {0.0, -1.0, 0.0};
  return wall;
}

OpenedSolid Opened(const BuildingElement& element) { return OpenedSolidOf({}, element); }

constexpr double kWallVolume = 6.0 * 3.0 * 0.3;

TEST(OpenedSolidOf, AWindowIsAHoleInAWall) {
  BuildingElement wall = Wall();
  wall.openings = {OpeningFrom(1.0, 1.0, 1.2, 1.0)};
  const OpenedSolid opened = Opened(wall);
  EXPECT_NEAR(VolumeOf(opened.mesh), kWallVolume - 1.2 * 0.3, 1e-9);
  EXPECT_TRUE(opened.uncut.empty());
  EXPECT_EQ(opened.mesh.FaceCount(), 10U);
}

TEST(OpenedSolidOf, ADoorReachesTheLowerEdgeOfAWall) {
  BuildingElement wall = Wall();
  wall.openings = {OpeningFrom(1.0, 0.0, 1.0, 2.0)};
  const OpenedSolid opened = Opened(wall);
  EXPECT_NEAR(VolumeOf(opened.mesh), kWallVolume - 2.0 * 0.3, 1e-9);
  EXPECT_EQ(opened.mesh.FaceCount(), 10U);  // the bottom is in two parts
}

TEST(OpenedSolidOf, OpeningsMayTouchAndOverlap) {
  BuildingElement wall = Wall();
  wall.openings = {OpeningFrom(1.0, 0.0, 1.0, 2.0), OpeningFrom(2.0, 1.0, 1.0, 1.0),
                   OpeningFrom(2.5, 1.0, 1.0, 1.0)};
  const OpenedSolid opened = Opened(wall);
  EXPECT_NEAR(VolumeOf(opened.mesh), kWallVolume - (2.0 + 1.5) * 0.3, 1e-9);
  EXPECT_TRUE(opened.uncut.empty());
}

TEST(OpenedSolidOf, AnOpeningAboutAsDeepAsAWallGoesThroughIt) {
  BuildingElement wall = Wall();
  wall.openings = {OpeningFrom(1.0, 1.0, 1.0, 1.0, 0.28)};
  EXPECT_NEAR(VolumeOf(Opened(wall).mesh), kWallVolume - 0.3, 1e-9);
}

TEST(OpenedSolidOf, ANicheOfASurfaceIsNotSubtracted) {
  BuildingElement wall = Wall();
  wall.openings = {OpeningFrom(1.0, 1.0, 1.0, 1.0, 0.1), OpeningFrom(3.0, 1.0, 1.0, 1.0)};
  const OpenedSolid opened = Opened(wall);
  EXPECT_NEAR(VolumeOf(opened.mesh), kWallVolume - 0.3, 1e-9);
  EXPECT_EQ(opened.uncut, std::vector<std::size_t>{0});
}

TEST(OpenedSolidOf, AnOpeningWithoutAShapeIsNotSubtracted) {
  BuildingElement wall = Wall();
  wall.openings = {BuildingOpening(), OpeningFrom(1.0, 1.0, 0.0, 1.0),
                   OpeningFrom(1.0, 1.0, 1.0, 1.0, std::numeric_limits<double>::infinity())};
  const OpenedSolid opened = Opened(wall);
  EXPECT_NEAR(VolumeOf(opened.mesh), kWallVolume, 1e-9);
  EXPECT_EQ(opened.uncut, (std::vector<std::size_t>{0, 1, 2}));
}

TEST(OpenedSolidOf, AnElementDoesNotVanishInAnOpening) {
  BuildingElement wall = Wall();
  wall.openings = {OpeningFrom(-1.0, -1.0, 9.0, 9.0)};
  const OpenedSolid opened = Opened(wall);
  EXPECT_NEAR(VolumeOf(opened.mesh), kWallVolume, 1e-9);
  EXPECT_EQ(opened.uncut, std::vector<std::size_t>{0});
}

TEST(OpenedSolidOf, AMemberHasAnOpening) {
  Building building;
  building.profiles.resize(1);
  building.profiles[0].outline = {{-1.0, -0.2}, {1.0, -0.2}, {1.0, 0.2}, {-1.0, 0.2}};
  BuildingElement column = MemberFrom(1, {0.0, 0.0, 0.0});
  column.openings = {OpeningFrom(-0.5, 1.0, 1.0, 0.5, 0.4)};
  EXPECT_NEAR(VolumeOf(OpenedSolidOf(building, column).mesh), 3.0 * 0.8 - 0.5 * 0.4, 1e-9);
}

TEST(OpenedSolidOf, ABodyWithGapsKeepsItsShape) {
  auto mesh = std::make_shared<Mesh>(SolidOf({}, Wall()));
  BuildingElement body;
  body.body.mesh = mesh;
  body.openings = {OpeningFrom(1.0, 1.0, 1.0, 1.0)};
  EXPECT_EQ(Opened(body).uncut, std::vector<std::size_t>{0});
  body.body.isClosed = true;
  EXPECT_TRUE(Opened(body).uncut.empty());
}

TEST(OpenedSolidOf, AnElementWithoutASolidStaysEmpty) {
  BuildingElement member = MemberFrom(1, {0.0, 0.0, 0.0});
  member.openings = {OpeningFrom(-0.5, 1.0, 1.0, 0.5)};
  const OpenedSolid opened = Opened(member);
  EXPECT_TRUE(opened.mesh.IsEmpty());
  EXPECT_EQ(opened.uncut, std::vector<std::size_t>{0});
}

TEST(OpeningBodyOf, LiesOnBothSidesOfTheOutline) {
  const Mesh body = OpeningBodyOf(OpeningFrom(0.0, 0.0, 2.0, 1.0), 0.5);
  EXPECT_NEAR(VolumeOf(body), 1.0, 1e-12);
  for (const Point3& p : body.points) EXPECT_NEAR(p.y * p.y, 0.0625, 1e-12);
}

TEST(OpeningBodyOf, IsEmptyWithoutAnAreaOrADepth) {
  EXPECT_TRUE(OpeningBodyOf(OpeningFrom(0.0, 0.0, 2.0, 0.0), 0.5).IsEmpty());
  EXPECT_TRUE(OpeningBodyOf(OpeningFrom(0.0, 0.0, 2.0, 1.0), 0.0).IsEmpty());
  EXPECT_TRUE(OpeningBodyOf({}, 0.5).IsEmpty());
}

}  // namespace
}  // namespace KelIFC
