#include "export/solids/drawn_edges.h"

#include <gtest/gtest.h>

#include <cmath>

#include "kelifc/building/element_solid.h"
#include "tests/building/made_building.h"

namespace KelIFC::exporting {
namespace {

TEST(DrawnEdges, OfABoxAreTwelve) {
  EXPECT_EQ(DrawnEdgesOf(SolidOf({}, Slab(1, 5.0, 4.0))).size(), 12U);
}

TEST(DrawnEdges, OfARoundColumnAreTheTwoCircles) {
  Building building;
  BuildingProfile& circle = building.profiles.emplace_back();
  constexpr int kChords = 38;
  for (int i = 0; i < kChords; ++i) {
    const double angle = 6.283185307179586 * i / kChords;
    circle.outline.emplace_back(0.2 * std::cos(angle), 0.2 * std::sin(angle));
  }
  EXPECT_EQ(DrawnEdgesOf(SolidOf(building, MemberFrom(1, {}))).size(), 2U * kChords);
}

TEST(DrawnEdges, BetweenFacesInOnePlaneAreLeftOut) {
  Mesh mesh;
  mesh.points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {1.0, 1.0, 0.0}, {0.0, 1.0, 0.0}};
  mesh.AddFace({0, 1, 2});
  mesh.AddFace({0, 2, 3});
  const std::vector<MeshEdge> edges = DrawnEdgesOf(mesh);
  const std::vector<MeshEdge> expected = {{0, 1}, {0, 3}, {1, 2}, {2, 3}};
  EXPECT_EQ(edges, expected);
}

TEST(DrawnEdges, OfUnusableFacesAreNone) {
  Mesh mesh;
  mesh.points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {2.0, 0.0, 0.0}};
  mesh.AddFace({0, 1, 2});
  mesh.AddFace({0, 1, 9});
  mesh.AddFace({});
  mesh.BeginFace();
  EXPECT_TRUE(DrawnEdgesOf(mesh).empty());
}

}  // namespace
}  // namespace KelIFC::exporting
