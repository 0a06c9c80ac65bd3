#include "kelifc/geometry/set_carver.h"

#include "kelifc/geometry/constants.h"

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

TEST(VerticalProjection, MovesAPointAlongZ) {
  Point3 node(1, 2, 3);
  project_node_vertically2xx(node, Plane3(Vector3(1, 0, 1), -10));
  EXPECT_THAT(node, IsNear3(1, 2, 9));
}

TEST(VerticalProjection, LeavesThePointForAVerticalPlane) {
  Point3 node(1, 2, 3);
  project_node_vertically2xx(node, Plane3(AxisX, -1));
  EXPECT_THAT(node, IsNear3(1, 2, 3));
  project_node_vertically2xx(node, Plane3(AxisX, -7));
  EXPECT_THAT(node, IsNear3(1, 2, 3));
}

TEST(VerticalProjection, LeavesThePointForADegeneratePlane) {
  Point3 node(1, 2, 3);
  project_node_vertically2xx(node, Plane3());
  EXPECT_THAT(node, IsNear3(1, 2, 3));
}

/// A cut along the x axis of the world, through a plane at the height 5.
class Carver : public testing::Test {
 protected:
  void Cut(Point2 a, Point2 b) { SetCarver2xx(a, b, localPlane, plane, sector, line, isSet); }

  LocalPlane localPlane;
  Plane3 plane{AxisZ, -5};
  Sector2 sector;
  Line3 line{Point3(), AxisX, 0.001};
  bool isSet = false;
};

TEST_F(Carver, StartsWithTheFirstEdge) {
  Cut({1, 7}, {4, 9});
  EXPECT_TRUE(isSet);
  EXPECT_THAT(sector.start, IsNear2(1, 5));
  EXPECT_THAT(sector.end, IsNear2(4, 5));
}

TEST_F(Carver, ReversesAnEdgeThatRunsBackwards) {
  Cut({4, 9}, {1, 7});
  EXPECT_THAT(sector.start, IsNear2(1, 5));
  EXPECT_THAT(sector.end, IsNear2(4, 5));
}

TEST_F(Carver, GrowsAtBothEnds) {
  Cut({1, 0}, {4, 0});
  Cut({0, 0}, {6, 0});
  EXPECT_THAT(sector.start, IsNear2(0, 5));
  EXPECT_THAT(sector.end, IsNear2(6, 5));
  Cut({2, 0}, {3, 0});
  EXPECT_THAT(sector.start, IsNear2(0, 5));
  EXPECT_THAT(sector.end, IsNear2(6, 5));
}

TEST_F(Carver, ComparesItsStartWithTheFirstPointAndItsEndWithTheSecond) {
  Cut({1, 0}, {4, 0});
  Cut({6, 0}, {0, 0});
  EXPECT_THAT(sector.start, IsNear2(1, 5));
  EXPECT_THAT(sector.end, IsNear2(4, 5));
}

TEST_F(Carver, ComparesTheFootAndStoresThePoint) {
  line.direction = Vector3(1, 1, 0);
  Cut({1, 0}, {4, 0});
  // The foot of (0, 2) is (1, 1). It is not before the start of the sector, but the point itself
  // is.
  Cut({0, 2}, {9, 0});
  EXPECT_THAT(sector.start, IsNear2(1, 5));
  EXPECT_THAT(sector.end, IsNear2(9, 5));
}

TEST_F(Carver, ChangesNothingForAnEdgeAcrossTheLine) {
  Cut({1, 0}, {1.001, 9});
  EXPECT_FALSE(isSet);
  EXPECT_THAT(sector.end, IsNear2(0, 0));
  Cut({1, 0}, {4, 0});
  Cut({-7, 0}, {-7.0005, 9});
  EXPECT_THAT(sector.start, IsNear2(1, 5));
}

TEST_F(Carver, ChangesNothingForADegenerateLine) {
  line.direction = Vector3();
  Cut({1, 0}, {4, 0});
  EXPECT_FALSE(isSet);
}

TEST_F(Carver, MapsTheEdgeByItsLocalPlane) {
  localPlane.Set(Point3(10, 0, 0), Point3(10, 1, 0), Point3(9, 0, 0));
  Cut({0, -1}, {0, 3});
  EXPECT_TRUE(isSet);
  EXPECT_THAT(sector.start, IsNear2(7, 5));
  EXPECT_THAT(sector.end, IsNear2(11, 5));
}

}  // namespace
}  // namespace KelIFC
