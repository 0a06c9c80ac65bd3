#include "export/saf/surface_boundary.h"

#include <gtest/gtest.h>

namespace KelIFC::exporting::saf {
namespace {

std::string NodesOf(const SurfaceBoundary& boundary) { return NodeList::NamesOf(boundary.nodes); }

TEST(Boundary, HasANodeForEachLineAndTwoForEachArc) {
  NodeList nodes(1e-3);
  const SurfaceBoundary boundary =
      BoundaryOf(nodes, {{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {2.0, 2.0, 0.0}, {0.0, 2.0, 0.0}},
                 {{1, {3.0, 1.0, 0.0}}, {3, {-1.0, 1.0, 0.0}}});
  EXPECT_EQ(NodesOf(boundary), "N1; N2; N5; N3; N4; N6");
  EXPECT_EQ(boundary.edges, "Line; Circular Arc; Line; Circular Arc");
  EXPECT_TRUE(boundary.IsUsable());
}

TEST(Boundary, OfACircleHasTwoArcs) {
  NodeList nodes(1e-3);
  const SurfaceBoundary boundary = BoundaryOf(nodes, {{1.0, 0.0, 0.0}, {-1.0, 0.0, 0.0}},
                                              {{0, {0.0, 1.0, 0.0}}, {1, {0.0, -1.0, 0.0}}});
  EXPECT_EQ(NodesOf(boundary), "N1; N3; N2; N4");
  EXPECT_EQ(boundary.edges, "Circular Arc; Circular Arc");
  EXPECT_TRUE(boundary.IsUsable());
}

TEST(Boundary, LeavesOutEdgesShorterThanTheTolerance) {
  NodeList nodes(1e-3);
  const SurfaceBoundary boundary = BoundaryOf(
      nodes, {{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {2.0, 0.0005, 0.0}, {0.0, 2.0, 0.0}}, {});
  EXPECT_EQ(NodesOf(boundary), "N1; N2; N3");
  EXPECT_EQ(boundary.edges, "Line; Line; Line");
}

TEST(Boundary, TakesAnArcWithinTheToleranceAsALine) {
  NodeList nodes(1e-3);
  const SurfaceBoundary boundary = BoundaryOf(
      nodes, {{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {0.0, 2.0, 0.0}}, {{0, {0.0005, 0.0, 0.0}}});
  EXPECT_EQ(boundary.edges, "Line; Line; Line");
}

TEST(Boundary, IsNotUsableIfItsPointsMerge) {
  NodeList nodes(0.1);
  const SurfaceBoundary boundary =
      BoundaryOf(nodes, {{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {2.0, 0.05, 0.0}}, {});
  EXPECT_FALSE(boundary.IsUsable());
  EXPECT_FALSE(BoundaryOf(nodes, {}, {}).IsUsable());
}

}  // namespace
}  // namespace KelIFC::exporting::saf
