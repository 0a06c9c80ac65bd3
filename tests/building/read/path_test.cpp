#include "kelifc/building/read/path.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

constexpr double kPi = 3.14159265358979323846;

Path LineOf(std::initializer_list<Point3> points) {
  Path path;
  for (const Point3& p : points) path.AddPoint(p, 1.0);
  return path;
}

// A quarter of a circle of radius 1 about the origin, from x to y.
Path QuarterTurn() {
  Path path;
  path.AddPoint({1.0, 0.0, 0.0}, 0.0);
  path.AddArc({std::sqrt(0.5), std::sqrt(0.5), 0.0}, {0.0, 1.0, 0.0}, 90.0);
  return path;
}

TEST(ArcOfPoints, FindsCircleAndSweep) {
  const ArcOfPoints arc({1.0, 0.0, 2.0}, {-1.0, 0.0, 2.0}, {0.0, -1.0, 2.0});
  ASSERT_TRUE(arc.IsArc());
  EXPECT_NEAR(arc.Radius(), 1.0, 1e-12);
  EXPECT_NEAR(arc.Sweep(), 1.5 * kPi, 1e-12);
  ExpectPoint(arc.At(1.0 / 3.0), 0.0, 1.0, 2.0);
}

TEST(ArcOfPoints, IsStraightForPointsOnALine) {
  const ArcOfPoints arc({0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {2.0, 0.0, 0.0});
  EXPECT_FALSE(arc.IsArc());
  ExpectPoint(arc.At(0.25), 0.5, 0.0, 0.0);
  EXPECT_FALSE(ArcOfPoints({}, {}, {}).IsArc());
}

TEST(ChordsOf, KeepsTheErrorOfAChord) {
  for (const double radius : {0.01, 0.5, 30.0}) {
    const std::size_t count = ChordsOf(radius, 2.0 * kPi);
    const double error = radius * (1.0 - std::cos(kPi / static_cast<double>(count)));
    EXPECT_LE(error, kChordError * 1.0001) << radius;
  }
  EXPECT_EQ(ChordsOf(0.0, 1.0), 1U);
  EXPECT_EQ(ChordsOf(std::nan(""), 1.0), 1U);
}

TEST(Reverse, MovesArcsToTheirEdges) {
  Path path = QuarterTurn();
  path.AddPoint({0.0, 5.0, 0.0}, 4.0);
  Reverse(path);
  ASSERT_EQ(path.arcs.size(), 1U);
  EXPECT_EQ(path.arcs[0].first, 1U);
  EXPECT_EQ(path.widths, (std::vector<double>{4.0, 90.0}));
  ExpectPoint(path.points.front(), 0.0, 5.0, 0.0);
}

TEST(Append, JoinsEndsThatMeetAndConnectsOthers) {
  Path path = LineOf({{0, 0, 0}, {1, 0, 0}});
  Append(path, LineOf({{1, 0, 0.00005}, {2, 0, 0}}));
  EXPECT_EQ(path.points.size(), 3U);
  Append(path, LineOf({{3, 0, 0}, {4, 0, 0}}));
  EXPECT_EQ(path.points.size(), 5U);
  EXPECT_EQ(path.widths, (std::vector<double>{1.0, 1.0, 0.0, 1.0}));
}

TEST(Join, TurnsSegmentsThatFitTheOtherWayRound) {
  const Path path = Join({LineOf({{1, 0, 0}, {0, 0, 0}}), LineOf({{1, 0, 0}, {1, 1, 0}}),
                          LineOf({{0, 2, 0}, {1, 1, 0}})});
  ASSERT_EQ(path.points.size(), 4U);
  ExpectPoint(path.points.front(), 0.0, 0.0, 0.0);
  ExpectPoint(path.points.back(), 0.0, 2.0, 0.0);
}

TEST(Cut, KeepsThePartBetweenTwoParameters) {
  const Path line = LineOf({{0, 0, 0}, {10, 0, 0}, {10, 20, 0}});
  const std::optional<Path> part = Cut(line, 0.5, 1.25);
  ASSERT_TRUE(part);
  ASSERT_EQ(part->points.size(), 3U);
  ExpectPoint(part->points[0], 5.0, 0.0, 0.0);
  ExpectPoint(part->points[2], 10.0, 5.0, 0.0);
  EXPECT_NEAR(WidthOf(*part), 0.75, 1e-12);
}

TEST(Cut, KeepsArcsAndRunsBackwards) {
  const std::optional<Path> part = Cut(QuarterTurn(), 90.0, 45.0);
  ASSERT_TRUE(part);
  ExpectPoint(part->points.front(), 0.0, 1.0, 0.0);
  ExpectPoint(part->points.back(), std::sqrt(0.5), std::sqrt(0.5), 0.0);
  ASSERT_EQ(part->arcs.size(), 1U);
  ExpectPoint(part->arcs[0].second, std::cos(kPi * 0.375), std::sin(kPi * 0.375), 0.0);
}

TEST(Cut, IsNoneWithoutALength) {
  EXPECT_FALSE(Cut(QuarterTurn(), 20.0, 20.0));
  EXPECT_FALSE(Cut(QuarterTurn(), 100.0, 200.0));
  EXPECT_FALSE(Cut(Path(), 0.0, 1.0));
}

TEST(NearestParameter, FindsPointsOnLinesAndArcs) {
  Path path = QuarterTurn();
  path.AddPoint({-10.0, 1.0, 0.0}, 5.0);
  EXPECT_NEAR(NearestParameter(path, {std::cos(0.5), std::sin(0.5), 0.0}), 0.5 * 180.0 / kPi, 0.1);
  EXPECT_NEAR(NearestParameter(path, {-5.0, 1.0, 0.0}), 92.5, 1e-9);
}

TEST(ToContour, RepeatsNoPointAndNeedsAnArea) {
  const auto triangle = ToContour(LineOf({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 0}}));
  ASSERT_TRUE(triangle);
  EXPECT_EQ(triangle->points.size(), 3U);
  EXPECT_FALSE(ToContour(LineOf({{0, 0, 0}, {1, 0, 0}})));
  EXPECT_TRUE(ToContour(QuarterTurn()));
}

}  // namespace
}  // namespace KelIFC::building
