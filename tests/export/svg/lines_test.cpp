#include "export/svg/lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kelifc/building/element_solid.h"

#include "tests/export/svg/made_storeys.h"

namespace KelIFC::exporting::svg {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

double AreaOf(const Outline& loop) {
  double area = 0.0;
  for (std::size_t i = 2; i < loop.size(); ++i) {
    area += 0.5 * Cross(loop[i - 1] - loop[0], loop[i] - loop[0]);
  }
  return area;
}

TEST(ConvexHull, IsCounterClockwiseWithoutInnerPoints) {
  const Outline hull =
      ConvexHull({{0.0, 0.0}, {1.0, 1.0}, {2.0, 0.0}, {2.0, 2.0}, {1.0, 0.0}, {0.0, 2.0}});
  ASSERT_THAT(hull, SizeIs(4));
  EXPECT_DOUBLE_EQ(AreaOf(hull), 4.0);
}

TEST(ConvexHull, OfALineIsEmpty) {
  EXPECT_THAT(ConvexHull({}), IsEmpty());
  EXPECT_THAT(ConvexHull({{1.0, 1.0}, {1.0, 1.0}}), IsEmpty());
  EXPECT_THAT(ConvexHull({{0.0, 0.0}, {1.0, 1.0}, {2.0, 2.0}}), IsEmpty());
}

TEST(LinesFromAbove, ShowTheOutlineAndTheHolesOfASlab) {
  Building building;
  BuildingElement floor = Floor(1, 0, {}, 4.0, 3.0);
  floor.surface->holes.push_back(
      {{1.0, 1.0, -0.1}, {1.0, 2.0, -0.1}, {2.0, 2.0, -0.1}, {2.0, 1.0, -0.1}});
  const std::vector<PlanLine> lines = LinesFromAbove(SolidOf(building, floor));
  ASSERT_THAT(lines, SizeIs(2));
  EXPECT_TRUE(lines[0].isClosed);
  EXPECT_TRUE(lines[1].isClosed);
  EXPECT_DOUBLE_EQ(AreaOf(lines[0].points) + AreaOf(lines[1].points), 11.0);
}

TEST(LinesFromAbove, ShowABeamAsTheOutlineOfItsProfile) {
  Building building;
  BuildingProfile profile;
  // An I: the web is not seen from above.
  profile.outline = {{-0.2, -0.2}, {0.2, -0.2},  {0.2, -0.1},   {0.05, -0.1},
                     {0.05, 0.1},  {0.2, 0.1},   {0.2, 0.2},    {-0.2, 0.2},
                     {-0.2, 0.1},  {-0.05, 0.1}, {-0.05, -0.1}, {-0.2, -0.1}};
  building.profiles.push_back(profile);
  const BuildingElement beam = Beam(1, 0, {1.0, 2.0, 3.0}, 5.0);
  const std::vector<PlanLine> lines = LinesFromAbove(beam, SolidOf(building, beam));
  ASSERT_THAT(lines, SizeIs(1));
  EXPECT_THAT(lines[0].points, SizeIs(4));
  EXPECT_NEAR(AreaOf(lines[0].points), 2.0, 1e-12);
}

// Two steps of 1 m by 1 m, 0.2 m high each.
Mesh Stair() {
  Mesh mesh;
  const double section[][2] = {{0.0, 0.0}, {2.0, 0.0}, {2.0, 0.4},
                               {1.0, 0.4}, {1.0, 0.2}, {0.0, 0.2}};
  for (const double y : {0.0, 1.0}) {
    for (const auto& p : section) mesh.points.emplace_back(p[0], y, p[1]);
  }
  mesh.AddFace({0, 1, 2, 3, 4, 5});
  mesh.AddFace({11, 10, 9, 8, 7, 6});
  for (Mesh::Index i = 0; i < 6; ++i) {
    const Mesh::Index next = (i + 1) % 6;
    mesh.AddFace({next, i, i + 6, next + 6});
  }
  return mesh;
}

TEST(LinesFromAbove, ShowTheStepsOfAStair) {
  const std::vector<PlanLine> lines = LinesFromAbove(Stair());
  ASSERT_THAT(lines, SizeIs(2));
  for (const PlanLine& line : lines) {
    EXPECT_TRUE(line.isClosed);
    EXPECT_DOUBLE_EQ(AreaOf(line.points), 1.0);
  }
}

TEST(LinesFromAbove, ShowOnlyTheEdgesInARangeOfHeights) {
  EXPECT_THAT(LinesFromAbove(Stair(), {-1.0, 0.3}), SizeIs(1));
  EXPECT_THAT(LinesFromAbove(Stair(), {0.3, 1.0}), SizeIs(1));
  EXPECT_THAT(LinesFromAbove(Stair(), {0.5, 1.0}), IsEmpty());
}

TEST(LinesFromAbove, HideTheEdgesBetweenFacesOfOnePlane) {
  Mesh mesh;
  mesh.points = {{0.0, 0.0, 1.0}, {1.0, 0.0, 1.0}, {1.0, 1.0, 1.0}, {0.0, 1.0, 1.0}};
  mesh.AddFace({0, 1, 2});
  mesh.AddFace({0, 2, 3});
  const std::vector<PlanLine> lines = LinesFromAbove(mesh);
  ASSERT_THAT(lines, SizeIs(1));
  EXPECT_THAT(lines[0].points, SizeIs(4));
}

TEST(LinesFromAbove, ShowTheRidgeOfARoof) {
  Mesh mesh;
  mesh.points = {{0.0, 0.0, 0.0}, {4.0, 0.0, 0.0}, {4.0, 2.0, 2.0},
                 {0.0, 2.0, 2.0}, {4.0, 4.0, 0.0}, {0.0, 4.0, 0.0}};
  mesh.AddFace({0, 1, 2, 3});
  mesh.AddFace({3, 2, 4, 5});
  std::size_t edges = 0;
  for (const PlanLine& line : LinesFromAbove(mesh)) {
    edges += line.points.size() - (line.isClosed ? 0 : 1);
  }
  EXPECT_EQ(edges, 7U);
}

TEST(LinesFromAbove, ShowTheHullIfNoFaceLooksUpwards) {
  Mesh mesh;
  mesh.points = {{0.0, 0.0, 1.0}, {1.0, 0.0, 1.0}, {1.0, 1.0, 1.0}};
  mesh.AddFace({0, 2, 1});
  const std::vector<PlanLine> lines = LinesFromAbove(mesh);
  ASSERT_THAT(lines, SizeIs(1));
  EXPECT_THAT(lines[0].points, SizeIs(3));
  EXPECT_THAT(LinesFromAbove(Mesh()), IsEmpty());
}

}  // namespace
}  // namespace KelIFC::exporting::svg
