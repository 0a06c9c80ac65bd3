#include "kelifc/building/solid/point_index.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace KelIFC::building {
namespace {

TEST(PointIndex, NumbersPointsInTheOrderOfTheirFirstUse) {
  PointIndex index(1e-3);
  EXPECT_EQ(index.Add({0.0, 0.0, 0.0}), 0U);
  EXPECT_EQ(index.Add({1.0, 0.0, 0.0}), 1U);
  EXPECT_EQ(index.Add({0.0, 0.0, 0.0}), 0U);
  EXPECT_EQ(index.Points().size(), 2U);
}

TEST(PointIndex, TakesPointsWithinTheDistanceAsOne) {
  PointIndex index(1e-3);
  for (const double x : {0.0, 0.002, -0.002, 1e6, -1e6}) {
    const auto number = index.Add({x, 0.0, 0.0});
    EXPECT_EQ(index.Add({x + 9e-4, 0.0, 0.0}), number);
    EXPECT_EQ(index.Add({x, -9e-4, 0.0}), number);
    EXPECT_NE(index.Add({x, 0.0, 1.1e-3}), number);
  }
}

TEST(PointIndex, FindsTheNearestOfSeveralPoints) {
  PointIndex index(1.0);
  index.Add({0.0, 0.0, 0.0});
  index.Add({1.5, 0.0, 0.0});
  EXPECT_EQ(index.Add({0.7, 0.0, 0.0}), 0U);
  EXPECT_EQ(index.Add({0.8, 0.0, 0.0}), 1U);
}

TEST(PointIndex, KeepsTheNumbersWhenItGrows) {
  PointIndex index(1e-6);
  std::mt19937 random(3);
  std::vector<Point3> points;
  for (int i = 0; i < 5000; ++i) {
    const auto next = [&] { return static_cast<double>(random() % 100000) / 100.0; };
    points.emplace_back(next(), next(), i);
    EXPECT_EQ(index.Add(points.back()), static_cast<Mesh::Index>(i));
  }
  for (std::size_t i = 0; i < points.size(); ++i) EXPECT_EQ(index.Add(points[i]), i);
}

}  // namespace
}  // namespace KelIFC::building
