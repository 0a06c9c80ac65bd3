#include "export/solids/arc_chords.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace KelIFC::exporting {
namespace {

TEST(ArcChords, AreNearTheArc) {
  std::vector<Point3> points{{5.0, 0.0, 1.0}};
  AppendArc(points, {5.0, 0.0, 1.0}, {-3.0, 4.0, 1.0}, {0.0, -5.0, 1.0});  // three quarters
  ASSERT_GT(points.size(), 50U);
  EXPECT_EQ(points.back().y, -5.0);
  for (std::size_t i = 1; i < points.size(); ++i) {
    EXPECT_NEAR(std::hypot(points[i].x, points[i].y), 5.0, 1e-9);
    EXPECT_NEAR(points[i].z, 1.0, 1e-12);
    const Vector3 half = (points[i] - points[i - 1]) / 2.0;
    const Point3 middle = points[i - 1] + half;
    EXPECT_GT(std::hypot(middle.x, middle.y), 5.0 - 1.001e-3);
  }
}

TEST(ArcChords, OfASmallArcAreTwo) {
  std::vector<Point3> points;
  AppendArc(points, {1e-4, 0.0, 0.0}, {0.0, 1e-4, 0.0}, {-1e-4, 0.0, 0.0});
  EXPECT_EQ(points.size(), 2U);
}

TEST(ArcChords, OfPointsOnALineAreOne) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  std::vector<Point3> points;
  AppendArc(points, {0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {2.0, 0.0, 0.0});
  EXPECT_EQ(points.size(), 1U);
  AppendArc(points, {0.0, 0.0, 0.0}, {1.0, 1.0, 0.0}, {0.0, 0.0, 0.0});
  EXPECT_EQ(points.size(), 2U);
  AppendArc(points, {0.0, 0.0, 0.0}, {kNaN, 1.0, 0.0}, {2.0, 0.0, 0.0});
  EXPECT_EQ(points.size(), 3U);
}

TEST(ArcChords, AreNeverMoreThan200) {
  std::vector<Point3> points;
  AppendArc(points, {1e8, 0.0, 0.0}, {0.0, 1e8, 0.0}, {-1e8, 0.0, 0.0});
  EXPECT_EQ(points.size(), 200U);
}

}  // namespace
}  // namespace KelIFC::exporting
