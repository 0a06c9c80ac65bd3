#include "export/saf/node_list.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace KelIFC::exporting::saf {
namespace {

constexpr double kTolerance = 1e-3;

TEST(NodeList, MergesPointsWithinTheTolerance) {
  NodeList nodes(kTolerance);
  EXPECT_EQ(nodes.Add({1.0, 2.0, 3.0}), 0U);
  EXPECT_EQ(nodes.Add({1.0009, 2.0, 3.0}), 0U);
  EXPECT_EQ(nodes.Add({1.0, 1.9991, 3.0}), 0U);
  EXPECT_EQ(nodes.Add({1.0, 2.0, 3.0011}), 1U);
  EXPECT_EQ(nodes.GetCount(), 2U);
  EXPECT_EQ(nodes[0].x, 1.0);
}

TEST(NodeList, TakesTheNearestNode) {
  NodeList nodes(kTolerance);
  nodes.Add({0.0, 0.0, 0.0});
  nodes.Add({0.0015, 0.0, 0.0});
  EXPECT_EQ(nodes.Add({0.0007, 0.0, 0.0}), 0U);
  EXPECT_EQ(nodes.Add({0.0009, 0.0, 0.0}), 1U);
}

TEST(NodeList, FindsNodesAcrossTheEdgesOfItsCells) {
  // Points at multiples and halves of the size of a cell, where rounding decides the cell.
  NodeList nodes(kTolerance);
  for (int i = -2000; i < 2000; ++i) {
    const Point3 point(i * kTolerance * 1.005, 21.153 + i * 0.01, 3.08);
    const NodeList::Index node = nodes.Add(point);
    EXPECT_EQ(nodes.Add(point), node) << i;
    EXPECT_EQ(nodes.Add(point + Vector3(0.0, 0.0009, 0.0)), node) << i;
  }
  EXPECT_EQ(nodes.GetCount(), 4000U);
}

TEST(NodeList, AgreesWithAComparisonOfAllPoints) {
  NodeList nodes(0.05);
  std::vector<Point3> kept;
  std::uint32_t state = 1;
  const auto Next = [&] {
    state = state * 1664525U + 1013904223U;
    return static_cast<double>(state >> 8) / (1 << 24);
  };
  for (int i = 0; i < 3000; ++i) {
    const Point3 point(Next(), Next(), Next() - 0.5);
    std::size_t nearest = kept.size();
    double distance = 0.05;
    for (std::size_t j = 0; j < kept.size(); ++j) {
      const double length = Length(kept[j] - point);
      if (length > distance || (length == distance && nearest < kept.size())) continue;
      distance = length;
      nearest = j;
    }
    if (nearest == kept.size()) kept.push_back(point);
    ASSERT_EQ(nodes.Add(point), nearest) << i;
  }
}

TEST(NodeList, ForgetsTruncatedNodes) {
  NodeList nodes(kTolerance);
  nodes.Add({0.0, 0.0, 0.0});
  nodes.Add({0.0, 0.0, 0.0015});  // the same cell
  nodes.Add({5.0, 0.0, 0.0});
  nodes.Truncate(1);
  EXPECT_EQ(nodes.GetCount(), 1U);
  EXPECT_EQ(nodes.Add({5.0, 0.0, 0.0}), 1U);
  EXPECT_EQ(nodes.Add({0.0, 0.0, 0.0015}), 2U);
  EXPECT_EQ(nodes.Add({0.0, 0.0, 0.0}), 0U);
}

TEST(NodeList, MergesEqualPointsWhateverTheTolerance) {
  for (const double tolerance : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
    NodeList nodes(tolerance);
    EXPECT_EQ(nodes.Add({1.0, 2.0, 3.0}), 0U);
    EXPECT_EQ(nodes.Add({1.0, 2.0, 3.0}), 0U);
    EXPECT_EQ(nodes.Add({1.0, 2.0, 3.0 + 1e-6}), 1U);
  }
}

TEST(NodeList, NamesNodesFromOne) { EXPECT_EQ(NodeList::NamesOf({0, 11, 2}), "N1; N12; N3"); }

}  // namespace
}  // namespace KelIFC::exporting::saf
