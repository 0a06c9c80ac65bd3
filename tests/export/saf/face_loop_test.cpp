#include "export/saf/face_loop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace KelIFC::exporting::saf {
namespace {

using testing::ElementsAre;

// Adds a rectangle in the plane of x and y; it is clockwise if `isHole`.
std::vector<Mesh::Index> AddRectangle(Mesh& mesh, const Point2& low, const Point2& high,
                                      bool isHole) {
  const auto first = static_cast<Mesh::Index>(mesh.points.size());
  mesh.points.insert(
      mesh.points.end(),
      {{low.x, low.y, 0.0}, {high.x, low.y, 0.0}, {high.x, high.y, 0.0}, {low.x, high.y, 0.0}});
  std::vector<Mesh::Index> loop = {first, first + 1, first + 2, first + 3};
  if (isHole) std::reverse(loop.begin(), loop.end());
  return loop;
}

// The area that a loop in the plane of x and y encloses.
double AreaOf(const Mesh& mesh, const std::vector<Mesh::Index>& loop) {
  double area = 0.0;
  for (std::size_t i = 0; i < loop.size(); ++i) {
    const Point3& a = mesh.points[loop[i]];
    const Point3& b = mesh.points[loop[(i + 1) % loop.size()]];
    area += (a.x * b.y - b.x * a.y) / 2.0;
  }
  return area;
}

TEST(FaceLoop, IsTheOuterLoopOfAFaceWithoutHoles) {
  Mesh mesh;
  mesh.AddFace(AddRectangle(mesh, {0.0, 0.0}, {1.0, 1.0}, false));
  EXPECT_THAT(SingleLoopOf(mesh, 0).points, ElementsAre(0, 1, 2, 3));
}

TEST(FaceLoop, RunsAroundAHoleAndBack) {
  Mesh mesh;
  mesh.BeginFace();
  mesh.AddLoop(AddRectangle(mesh, {0.0, 0.0}, {4.0, 4.0}, false));
  mesh.AddLoop(AddRectangle(mesh, {1.0, 1.0}, {2.0, 2.0}, true));
  const FaceLoop loop = SingleLoopOf(mesh, 0);
  // The hole is entered at its rightmost point from the nearest corner, and left the same way.
  EXPECT_EQ(loop.points.size(), 10U);
  EXPECT_EQ(loop.lostHoles, 0U);
  EXPECT_DOUBLE_EQ(AreaOf(mesh, loop.points), 15.0);
}

TEST(FaceLoop, JoinsManyHoles) {
  Mesh mesh;
  mesh.BeginFace();
  mesh.AddLoop(AddRectangle(mesh, {0.0, 0.0}, {20.0, 20.0}, false));
  for (int i = 0; i < 100; ++i) {
    const double x = 1.0 + 1.8 * (i % 10);
    const double y = 1.0 + 1.8 * (i / 10);
    mesh.AddLoop(AddRectangle(mesh, {x, y}, {x + 1.0, y + 1.0}, true));
  }
  const FaceLoop loop = SingleLoopOf(mesh, 0);
  EXPECT_EQ(loop.points.size(), 4U + 100U * 6U);
  EXPECT_EQ(loop.lostHoles, 0U);
  EXPECT_NEAR(AreaOf(mesh, loop.points), 300.0, 1e-9);
}

TEST(FaceLoop, KeepsItsDirectionInEachPlane) {
  for (int axis = 0; axis < 3; ++axis) {
    for (const bool isReversed : {false, true}) {
      Mesh mesh;
      std::vector<Mesh::Index> outer = AddRectangle(mesh, {0.0, 0.0}, {4.0, 4.0}, isReversed);
      std::vector<Mesh::Index> hole = AddRectangle(mesh, {1.0, 1.0}, {2.0, 2.0}, !isReversed);
      const Mesh flat = mesh;
      for (Point3& p : mesh.points) {
        if (axis == 1) p = {p.z, p.x, p.y};
        if (axis == 2) p = {p.y, p.z, p.x};
      }
      mesh.BeginFace();
      mesh.AddLoop(outer);
      mesh.AddLoop(hole);
      const FaceLoop loop = SingleLoopOf(mesh, 0);
      EXPECT_EQ(loop.lostHoles, 0U);
      EXPECT_DOUBLE_EQ(AreaOf(flat, loop.points), isReversed ? -15.0 : 15.0);
    }
  }
}

TEST(FaceLoop, LosesAHoleOutsideOfTheFace) {
  Mesh mesh;
  mesh.BeginFace();
  mesh.AddLoop(AddRectangle(mesh, {0.0, 0.0}, {4.0, 4.0}, false));
  mesh.AddLoop(AddRectangle(mesh, {5.0, 5.0}, {6.0, 6.0}, true));
  const FaceLoop loop = SingleLoopOf(mesh, 0);
  EXPECT_THAT(loop.points, ElementsAre(0, 1, 2, 3));
  EXPECT_EQ(loop.lostHoles, 1U);
}

}  // namespace
}  // namespace KelIFC::exporting::saf
