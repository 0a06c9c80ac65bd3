#include "kelifc/building/triangulation.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <random>
#include <vector>

namespace KelIFC {
namespace {

using Loop = std::vector<Mesh::Index>;

/// A face in the plane z = 2 with an outer loop and holes.
class FlatFace {
 public:
  Mesh mesh;

  FlatFace() { mesh.BeginFace(); }

  void AddLoop(const std::vector<Point2>& corners) {
    Loop loop;
    for (const Point2& p : corners) {
      loop.push_back(static_cast<Mesh::Index>(mesh.points.size()));
      mesh.points.emplace_back(p.x, p.y, 2.0);
    }
    mesh.AddLoop(loop);
    area += AreaOf(loop);
  }

  /// The area of the outer loop minus those of the holes.
  double area = 0.0;

  /// The sum of the areas of the triangles. None of them is clockwise.
  double AreaOfTriangles() const {
    double sum = 0.0;
    for (const MeshTriangle& t : TrianglesOf(mesh)) {
      const double triangle = AreaOf(t.corners);
      EXPECT_GE(triangle, -1e-12);
      sum += triangle;
    }
    return sum;
  }

  /// The area of a loop; positive if it is counter-clockwise.
  template <typename AnyLoop>
  double AreaOf(const AnyLoop& loop) const {
    double twice = 0.0;
    for (std::size_t i = 1; i + 1 < loop.size(); ++i) {
      twice += Cross(mesh.points[loop[i]] - mesh.points[loop[0]],
                     mesh.points[loop[i + 1]] - mesh.points[loop[0]])
                   .z;
    }
    return twice / 2.0;
  }
};

std::vector<Point2> Star(const Point2& centre, std::size_t count, double radius, bool isClockwise,
                         std::mt19937& random) {
  std::vector<Point2> points;
  for (std::size_t i = 0; i < count; ++i) {
    const double turn = (isClockwise ? -6.283185307179586 : 6.283185307179586);
    const double angle = turn * static_cast<double>(i) / static_cast<double>(count);
    const double r = radius * (0.1 + 0.9 * static_cast<double>(random() % 1000) / 1000.0);
    points.emplace_back(centre.x + r * std::cos(angle), centre.y + r * std::sin(angle));
  }
  return points;
}

TEST(TrianglesOf, AFaceHasTwoTrianglesLessThanCorners) {
  FlatFace face;
  face.AddLoop({{0.0, 0.0}, {4.0, 0.0}, {4.0, 3.0}, {2.0, 1.0}, {0.0, 3.0}});
  EXPECT_EQ(TrianglesOf(face.mesh).size(), 3U);
  EXPECT_NEAR(face.AreaOfTriangles(), face.area, 1e-12);
}

TEST(TrianglesOf, NamesTheFaceOfEachTriangle) {
  Mesh mesh;
  mesh.points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {1.0, 1.0, 0.0}, {0.0, 1.0, 0.0}};
  mesh.AddFace({0, 1, 2});
  mesh.AddFace({3, 2, 1, 0});
  const std::vector<MeshTriangle> triangles = TrianglesOf(mesh);
  ASSERT_EQ(triangles.size(), 3U);
  EXPECT_EQ(triangles[0].corners, (std::array<Mesh::Index, 3>{0, 1, 2}));
  EXPECT_EQ(triangles[0].face, 0U);
  EXPECT_EQ(triangles[1].face, 1U);
  EXPECT_EQ(triangles[2].face, 1U);
}

TEST(TrianglesOf, LeavesOutHolesWithoutNewPoints) {
  FlatFace face;
  face.AddLoop({{0.0, 0.0}, {20.0, 0.0}, {20.0, 20.0}, {0.0, 20.0}});
  for (int x = 0; x < 6; ++x) {
    for (int y = 0; y < 6; ++y) {
      const Point2 c(1.0 + 3.0 * x, 1.0 + 3.0 * y);
      face.AddLoop({c, {c.x - 0.3, c.y + 1.0}, {c.x + 1.0, c.y + 1.3}, {c.x + 1.0, c.y}});
    }
  }
  EXPECT_NEAR(face.AreaOfTriangles(), face.area, 1e-9);
  for (const MeshTriangle& t : TrianglesOf(face.mesh)) {
    for (const Mesh::Index corner : t.corners) EXPECT_LT(corner, face.mesh.points.size());
  }
}

TEST(TrianglesOf, KeepsTheAreaOfRandomRegions) {
  std::mt19937 random(7);
  for (int round = 0; round < 100; ++round) {
    FlatFace face;
    face.AddLoop({{-1.5, -1.0}, {20.0, -2.0}, {22.0, 21.0}, {3.0, 23.0}, {-4.0, 18.0}});
    for (int cell = 0; cell < 100; ++cell) {
      if (random() % 3 == 0) continue;
      const Point2 centre(2.0 * (cell % 10), 2.0 * (cell / 10));
      face.AddLoop(Star(centre, 3 + random() % 20, 0.95, true, random));
    }
    EXPECT_NEAR(face.AreaOfTriangles(), face.area, 1e-9) << round;
  }
}

TEST(TrianglesOf, TakesHolesOfEitherOrientation) {
  FlatFace face;
  face.AddLoop({{0.0, 0.0}, {4.0, 0.0}, {4.0, 4.0}, {0.0, 4.0}});
  face.AddLoop({{1.0, 1.0}, {2.0, 1.0}, {2.0, 2.0}, {1.0, 2.0}});
  EXPECT_NEAR(face.AreaOfTriangles(), 15.0, 1e-12);
}

TEST(TrianglesOf, HolesThatTouchOrLieOutsideAreDefined) {
  FlatFace face;
  face.AddLoop({{0.0, 0.0}, {4.0, 0.0}, {4.0, 4.0}, {0.0, 4.0}});
  face.AddLoop({{0.0, 1.0}, {1.0, 2.0}, {1.0, 1.0}});            // touches the edge at x = 0
  face.AddLoop({{1.0, 1.0}, {2.0, 2.0}, {2.0, 1.0}});            // touches the hole before
  face.AddLoop({{10.0, 1.0}, {11.0, 2.0}, {11.0, 1.0}});         // outside
  face.AddLoop({{2.5, 2.5}, {2.5, 2.5}, {2.5, 2.5}, {3., 3.}});  // without area
  for (const MeshTriangle& t : TrianglesOf(face.mesh)) {
    for (const Mesh::Index corner : t.corners) EXPECT_LT(corner, face.mesh.points.size());
  }
}

TEST(TrianglesOf, SkipsFacesThatCannotBeTriangulated) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  Mesh mesh;
  mesh.points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0},  {2.0, 0.0, 0.0},
                 {0.0, 1.0, 0.0}, {kNaN, 0.0, 0.0}, {0.0, 1e300, 0.0}};
  mesh.AddFace({0, 1, 2});
  mesh.AddFace({0, 1});
  mesh.AddFace({});
  mesh.AddFace({0, 1, 99});
  mesh.AddFace({0, 1, 4});
  mesh.AddFace({0, 1, 5});
  mesh.BeginFace();
  EXPECT_TRUE(TrianglesOf(mesh).empty());
  mesh.AddFace({0, 1, 3});
  EXPECT_EQ(TrianglesOf(mesh).size(), 1U);
  EXPECT_TRUE(TrianglesOf(Mesh()).empty());
}

TEST(TrianglesOf, FacesThatCrossThemselvesKeepTheirSignedArea) {
  std::mt19937 random(3);
  for (const std::size_t count : {5U, 6U, 7U, 10U, 20U, 50U, 300U, 20000U}) {
    FlatFace face;
    std::vector<Point2> corners;
    for (std::size_t i = 0; i < count; ++i) {
      corners.emplace_back(static_cast<double>(random() % 1000),
                           static_cast<double>(random() % 1000));
    }
    face.AddLoop(corners);
    double sum = 0.0;
    for (const MeshTriangle& t : TrianglesOf(face.mesh)) sum += face.AreaOf(t.corners);
    EXPECT_NEAR(sum, face.area, 1e-6 * std::abs(face.area)) << count;
  }
}

}  // namespace
}  // namespace KelIFC
