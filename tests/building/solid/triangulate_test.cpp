#include "kelifc/building/solid/triangulate.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "kelifc/building/solid/vector_math.h"
#include "solid_samples.h"

namespace KelIFC::building {
namespace {

/// The area of the triangles; no triangle may be clockwise.
double AreaOfTriangles(std::vector<Point2> points, const std::vector<PointLoop>& loops) {
  double sum = 0.0;
  for (const Triangle2& t : Triangulate(points, loops)) {
    const double twice = Turn(points[t[0]], points[t[1]], points[t[2]]);
    EXPECT_GT(twice, 0.0);
    sum += twice / 2.0;
  }
  return sum;
}

TEST(Triangulate, OfAConvexOutlineIsAFan) {
  std::vector<Point2> points = {{0.0, 0.0}, {2.0, 0.0}, {2.0, 1.0}, {0.0, 1.0}};
  EXPECT_EQ(Triangulate(points, {{0, 1, 2, 3}}).size(), 2U);
  EXPECT_NEAR(AreaOfTriangles(points, {{0, 1, 2, 3}}), 2.0, 1e-12);
}

TEST(Triangulate, OfAnOutlineWithReflexCorners) {
  const std::vector<Point2> points = {{0.0, 0.0}, {3.0, 0.0}, {3.0, 3.0}, {2.0, 3.0},
                                      {2.0, 1.0}, {1.0, 1.0}, {1.0, 3.0}, {0.0, 3.0}};
  EXPECT_NEAR(AreaOfTriangles(points, {{0, 1, 2, 3, 4, 5, 6, 7}}), 7.0, 1e-12);
}

TEST(Triangulate, LeavesHolesOut) {
  std::vector<Point2> points = {{0.0, 0.0}, {20.0, 0.0}, {20.0, 20.0}, {0.0, 20.0}};
  std::vector<PointLoop> loops = {{0, 1, 2, 3}};
  for (int x = 0; x < 6; ++x) {
    for (int y = 0; y < 6; ++y) {
      const auto first = static_cast<std::uint32_t>(points.size());
      const Point2 c = {1.0 + 3.0 * x, 1.0 + 3.0 * y};
      points.insert(points.end(),
                    {c, {c.x - 0.3, c.y + 1.0}, {c.x + 1.0, c.y + 1.3}, {c.x + 1.0, c.y}});
      loops.push_back({first, first + 1, first + 2, first + 3});
    }
  }
  double holes = 0.0;
  for (std::size_t i = 1; i < loops.size(); ++i) holes -= AreaOf(points, loops[i]);
  EXPECT_NEAR(AreaOfTriangles(points, loops), 400.0 - holes, 1e-9);
}

TEST(Triangulate, OfRandomStarsKeepsTheArea) {
  std::mt19937 random(4);
  for (int round = 0; round < 200; ++round) {
    std::vector<Point2> points;
    PointLoop loop;
    const std::uint32_t count = 5 + random() % 60;
    for (std::uint32_t i = 0; i < count; ++i) {
      const double angle = 6.283185307179586 * i / count;
      const double radius = 0.1 + static_cast<double>(random() % 1000) / 500.0;
      points.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
      loop.push_back(i);
    }
    EXPECT_NEAR(AreaOfTriangles(points, {loop}), AreaOf(points, loop), 1e-9) << round;
  }
}

TEST(Triangulate, OfOutlinesWithoutAreaIsDefined) {
  std::vector<Point2> points = {{0.0, 0.0}, {1.0, 0.0}, {2.0, 0.0}, {3.0, 0.0}};
  EXPECT_TRUE(Triangulate(points, {{0, 1, 2, 3}}).empty());
  EXPECT_TRUE(Triangulate(points, {{0, 1}}).empty());
  EXPECT_TRUE(Triangulate(points, {}).empty());
  std::vector<Point2> eight = {{0.0, 0.0}, {1.0, 1.0}, {1.0, 0.0}, {0.0, 1.0}, {-1.0, 0.5}};
  EXPECT_LE(Triangulate(eight, {{0, 1, 2, 3, 4}}).size(), 3U);
}

TEST(AppendTriangles, KeepsTheSideOfTheFace) {
  std::vector<Triangle3> triangles;
  const Mesh tube = TubeMesh();
  for (std::size_t face = 0; face < tube.FaceCount(); ++face) {
    AppendTriangles(tube, face, triangles);
  }
  double volume = 0.0;
  for (const Triangle3& t : triangles) {
    volume += Dot(ToVector(t[0]), Cross(ToVector(t[1]), ToVector(t[2]))) / 6.0;
  }
  EXPECT_NEAR(volume, 9.0, 1e-9);
}

}  // namespace
}  // namespace KelIFC::building
