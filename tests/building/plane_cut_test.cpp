#include "kelifc/building/plane_cut.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace KelIFC {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

// A box between two corners.
void AddBox(Mesh& mesh, const Point3& min, const Point3& max, bool isHole = false) {
  const auto first = static_cast<Mesh::Index>(mesh.points.size());
  for (int i = 0; i < 8; ++i) {
    mesh.points.emplace_back((i & 1) != 0 ? max.x : min.x, (i & 2) != 0 ? max.y : min.y,
                             (i & 4) != 0 ? max.z : min.z);
  }
  for (const std::vector<Mesh::Index>& face : std::vector<std::vector<Mesh::Index>>{
           {0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4}, {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}}) {
    std::vector<Mesh::Index> loop(face.begin(), face.end());
    if (isHole) std::reverse(loop.begin(), loop.end());
    for (Mesh::Index& index : loop) index += first;
    mesh.AddFace(loop);
  }
}

double AreaOf(const Outline& loop) {
  double area = 0.0;
  for (std::size_t i = 0; i < loop.size(); ++i) {
    const Point2& a = loop[i];
    const Point2& b = loop[(i + 1) % loop.size()];
    area += 0.5 * (a.x * b.y - b.x * a.y);
  }
  return area;
}

TEST(PlaneCut, CutsABoxInItsSection) {
  Mesh mesh;
  AddBox(mesh, {1.0, 2.0, 0.0}, {4.0, 4.0, 3.0});
  const std::vector<CutRegion> cut = CutAtHeight(mesh, 1.2);
  ASSERT_THAT(cut, SizeIs(1));
  EXPECT_THAT(cut[0].holes, IsEmpty());
  EXPECT_THAT(cut[0].outer, SizeIs(4));
  EXPECT_NEAR(AreaOf(cut[0].outer), 6.0, 1e-12);
  for (const Point2& p : cut[0].outer) {
    EXPECT_TRUE(std::abs(p.x - 1.0) < 1e-12 || std::abs(p.x - 4.0) < 1e-12) << p.x;
    EXPECT_TRUE(std::abs(p.y - 2.0) < 1e-12 || std::abs(p.y - 4.0) < 1e-12) << p.y;
  }
}

TEST(PlaneCut, ReturnsHolesClockwise) {
  Mesh mesh;
  AddBox(mesh, {0.0, 0.0, 0.0}, {4.0, 4.0, 3.0});
  AddBox(mesh, {1.0, 1.0, 1.0}, {2.0, 2.0, 2.0}, true);
  const std::vector<CutRegion> cut = CutAtHeight(mesh, 1.5);
  ASSERT_THAT(cut, SizeIs(1));
  ASSERT_THAT(cut[0].holes, SizeIs(1));
  EXPECT_NEAR(AreaOf(cut[0].outer), 16.0, 1e-12);
  EXPECT_NEAR(AreaOf(cut[0].holes[0]), -1.0, 1e-12);
}

TEST(PlaneCut, ReturnsSeparateRegionsByFallingArea) {
  Mesh mesh;
  AddBox(mesh, {0.0, 0.0, 0.0}, {1.0, 1.0, 3.0});
  AddBox(mesh, {5.0, 0.0, 0.0}, {8.0, 1.0, 3.0});
  const std::vector<CutRegion> cut = CutAtHeight(mesh, 1.0);
  ASSERT_THAT(cut, SizeIs(2));
  EXPECT_NEAR(AreaOf(cut[0].outer), 3.0, 1e-12);
  EXPECT_NEAR(AreaOf(cut[1].outer), 1.0, 1e-12);
}

TEST(PlaneCut, KeepsItsDigitsFarFromTheOrigin) {
  Mesh mesh;
  AddBox(mesh, {4.5e6, 5.5e6, 0.0}, {4.5e6 + 0.25, 5.5e6 + 0.5, 3.0});
  const std::vector<CutRegion> cut = CutAtHeight(mesh, 1.0);
  ASSERT_THAT(cut, SizeIs(1));
  ASSERT_THAT(cut[0].outer, SizeIs(4));
  for (const Point2& p : cut[0].outer) {
    EXPECT_TRUE(p.x == 4.5e6 || p.x == 4.5e6 + 0.25) << p.x - 4.5e6;
    EXPECT_TRUE(p.y == 5.5e6 || p.y == 5.5e6 + 0.5) << p.y - 5.5e6;
  }
}

TEST(PlaneCut, IsEmptyWhereThePlaneMissesTheMesh) {
  Mesh mesh;
  EXPECT_THAT(CutAtHeight(mesh, 0.0), IsEmpty());
  AddBox(mesh, {0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  EXPECT_THAT(CutAtHeight(mesh, -0.1), IsEmpty());
  EXPECT_THAT(CutAtHeight(mesh, 1.1), IsEmpty());
  EXPECT_THAT(CutAtHeight(mesh, std::numeric_limits<double>::quiet_NaN()), IsEmpty());
  EXPECT_THAT(CutAtHeight(mesh, std::numeric_limits<double>::infinity()), IsEmpty());
}

}  // namespace
}  // namespace KelIFC
