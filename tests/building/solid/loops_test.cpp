#include "kelifc/building/solid/loops.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace KelIFC::building {
namespace {

/// Adds a square as directed edges; clockwise if `isHole`.
void AddSquare(double x, double y, double size, bool isHole, std::vector<Point2>& points,
               std::vector<DirectedEdge>& edges) {
  const auto first = static_cast<std::uint32_t>(points.size());
  points.insert(points.end(), {{x, y}, {x + size, y}, {x + size, y + size}, {x, y + size}});
  for (std::uint32_t i = 0; i < 4; ++i) {
    const std::uint32_t from = first + i;
    const std::uint32_t to = first + (i + 1) % 4;
    edges.push_back(isHole ? DirectedEdge(to, from) : DirectedEdge(from, to));
  }
}

TEST(TraceLoops, JoinsEdgesInAnyOrder) {
  std::vector<Point2> points;
  std::vector<DirectedEdge> edges;
  AddSquare(0.0, 0.0, 4.0, false, points, edges);
  AddSquare(1.0, 1.0, 1.0, true, points, edges);
  std::swap(edges[1], edges[6]);
  std::swap(edges[0], edges[3]);
  const TracedLoops traced = TraceLoops(points, edges);
  EXPECT_TRUE(traced.isComplete);
  ASSERT_EQ(traced.loops.size(), 2U);
  EXPECT_NEAR(AreaOf(points, traced.loops[0]) + AreaOf(points, traced.loops[1]), 15.0, 1e-12);
}

TEST(TraceLoops, SeparatesSquaresThatTouchInACorner) {
  const std::vector<Point2> points = {{0.0, 0.0}, {1.0, 0.0}, {1.0, 1.0}, {0.0, 1.0},
                                      {2.0, 1.0}, {2.0, 2.0}, {1.0, 2.0}};
  const std::vector<DirectedEdge> edges = {{0, 1}, {1, 2}, {2, 3}, {3, 0},
                                           {2, 4}, {4, 5}, {5, 6}, {6, 2}};
  const TracedLoops traced = TraceLoops(points, edges);
  ASSERT_EQ(traced.loops.size(), 2U);
  for (const PointLoop& loop : traced.loops) EXPECT_NEAR(AreaOf(points, loop), 1.0, 1e-12);
}

TEST(TraceLoops, SaysThatALineIsNoLoop) {
  const std::vector<Point2> points = {{0.0, 0.0}, {1.0, 0.0}, {1.0, 1.0}};
  const TracedLoops traced = TraceLoops(points, {{0, 1}, {1, 2}});
  EXPECT_FALSE(traced.isComplete);
  EXPECT_TRUE(traced.loops.empty());
}

TEST(CancelOpposite, LeavesWhatIsNotMatched) {
  std::vector<DirectedEdge> edges = {{0, 1}, {1, 0}, {2, 3}, {3, 2}, {3, 2}, {4, 4}};
  CancelOpposite(edges);
  EXPECT_EQ(edges, (std::vector<DirectedEdge>{{3, 2}}));
}

TEST(NestLoops, FindsTheInnermostLoopAroundAHole) {
  std::vector<Point2> points;
  std::vector<DirectedEdge> edges;
  AddSquare(0.0, 0.0, 10.0, false, points, edges);
  AddSquare(1.0, 1.0, 8.0, true, points, edges);
  AddSquare(2.0, 2.0, 6.0, false, points, edges);
  AddSquare(3.0, 3.0, 1.0, true, points, edges);
  AddSquare(5.0, 3.0, 1.0, true, points, edges);
  const TracedLoops traced = TraceLoops(points, edges);
  bool isComplete = true;
  const auto nested = NestLoops(points, traced.loops, isComplete);
  EXPECT_TRUE(isComplete);
  ASSERT_EQ(nested.size(), 2U);
  EXPECT_EQ(nested[0].holes.size(), 1U);
  EXPECT_EQ(nested[1].holes.size(), 2U);
}

TEST(NestLoops, KnowsHolesThatAreFilled) {
  // The hole and its filling have the same edges.
  std::vector<Point2> points;
  std::vector<DirectedEdge> edges;
  AddSquare(0.0, 0.0, 10.0, false, points, edges);
  AddSquare(1.0, 1.0, 8.0, false, points, edges);
  for (std::uint32_t i = 0; i < 4; ++i) edges.emplace_back(4 + (i + 1) % 4, 4 + i);
  const TracedLoops traced = TraceLoops(points, edges);
  bool isComplete = true;
  const auto nested = NestLoops(points, traced.loops, isComplete);
  EXPECT_TRUE(isComplete);
  ASSERT_EQ(nested.size(), 2U);
  for (const NestedLoop& loop : nested) {
    const bool isOuter = AreaOf(points, traced.loops[loop.outer]) > 90.0;
    EXPECT_EQ(loop.holes.size(), isOuter ? 1U : 0U);
  }
}

TEST(NestLoops, DropsAHoleThatNothingContains) {
  std::vector<Point2> points;
  std::vector<DirectedEdge> edges;
  AddSquare(0.0, 0.0, 1.0, false, points, edges);
  AddSquare(5.0, 0.0, 1.0, true, points, edges);
  bool isComplete = true;
  const auto nested = NestLoops(points, TraceLoops(points, edges).loops, isComplete);
  EXPECT_FALSE(isComplete);
  ASSERT_EQ(nested.size(), 1U);
  EXPECT_TRUE(nested[0].holes.empty());
}

}  // namespace
}  // namespace KelIFC::building
