#include "kelifc/building/read/bezier.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

TEST(FlattenBezier, FollowsAParabolaWithinTheError) {
  const auto path = FlattenBezier({{0, 0, 0}, {1, 2, 0}, {2, 0, 0}}, {}, 2.0);
  ASSERT_TRUE(path);
  for (std::size_t i = 0; i + 1 < path->points.size(); ++i) {
    const Point3& a = path->points[i];
    const Point3& b = path->points[i + 1];
    EXPECT_NEAR(a.y, a.x * (2.0 - a.x), 1e-12);
    const double x = 0.5 * (a.x + b.x);
    EXPECT_NEAR(0.5 * (a.y + b.y), x * (2.0 - x), kChordError * 1.01);
  }
  ExpectPoint(path->points.back(), 2.0, 0.0, 0.0);
}

TEST(FlattenBezier, FollowsACircleWithWeights) {
  const double w = std::sqrt(0.5);
  const auto path = FlattenBezier({{1, 0, 0}, {1, 1, 0}, {0, 1, 0}}, {1.0, w, 1.0}, 2.0);
  ASSERT_TRUE(path);
  EXPECT_GT(path->points.size(), 10U);
  for (const Point3& p : path->points) EXPECT_NEAR(std::hypot(p.x, p.y), 1.0, 1e-12);
}

TEST(FlattenBezier, ConnectsSeveralCurves) {
  const auto path = FlattenBezier({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 1, 0}, {4, 0, 0}}, {}, 2.0);
  ASSERT_TRUE(path);
  EXPECT_NEAR(WidthOf(*path), 2.0, 1e-9);
  ExpectPoint(path->points.back(), 4.0, 0.0, 0.0);
}

TEST(FlattenBezier, IsNoneForADegreeThatDoesNotFit) {
  const std::vector<Point3> points(6);
  for (const double degree : {0.0, -1.0, 4.0, 33.0, std::nan("")}) {
    EXPECT_FALSE(FlattenBezier(points, {}, degree)) << degree;
  }
}

}  // namespace
}  // namespace KelIFC::building
