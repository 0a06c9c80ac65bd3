#include "export/solids/round_edges.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "kelifc/building/element_solid.h"
#include "kelifc/geometry/point.h"

#include "tests/building/made_building.h"

namespace KelIFC::exporting {
namespace {

Outline Polygon(std::size_t corners, double radius) {
  Outline outline;
  for (std::size_t i = 0; i < corners; ++i) {
    const double angle =
        2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(corners);
    outline.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
  }
  return outline;
}

Mesh ColumnOf(const Outline& outline, const Outline& hole = {}) {
  Building building;
  building.profiles.resize(1);
  building.profiles[0].outline = outline;
  if (!hole.empty()) building.profiles[0].holes = {hole};
  return SolidOf(building, MemberFrom(1, {0.0, 0.0, 0.0}));
}

std::size_t CountOf(const Mesh& mesh, bool isClosed = true) {
  return RoundEdgesOf(mesh, TrianglesOf(mesh), isClosed).size();
}

TEST(RoundEdges, AreTheChordEdgesOfACylinder) {
  EXPECT_EQ(CountOf(ColumnOf(Polygon(24, 0.3))), 24U);
  EXPECT_EQ(CountOf(ColumnOf(Polygon(200, 0.3))), 200U);
}

TEST(RoundEdges, DoNotCountWhereADrawingAlwaysShowsThem) {
  EXPECT_EQ(CountOf(ColumnOf(Polygon(12, 0.3))), 0U);
  EXPECT_EQ(CountOf(ColumnOf(Polygon(4, 0.3))), 0U);
}

TEST(RoundEdges, OfTheInsideOfAClosedPipeAreLeftOut) {
  Outline hole = Polygon(24, 0.2);
  std::reverse(hole.begin(), hole.end());
  const Mesh pipe = ColumnOf(Polygon(24, 0.3), hole);
  EXPECT_EQ(CountOf(pipe), 24U);
  EXPECT_EQ(CountOf(pipe, false), 48U);
}

TEST(RoundEdges, HaveTheTrianglesOnTheirSides) {
  const Mesh mesh = ColumnOf(Polygon(24, 0.3));
  for (const RoundEdge& edge : RoundEdgesOf(mesh, TrianglesOf(mesh), true)) {
    const Point3& a = mesh.points[edge.ends[0]];
    const Vector3 along = mesh.points[edge.ends[1]] - a;
    const Vector3 first = Cross(along, mesh.points[edge.beside[0]] - a);
    const Vector3 second = Cross(mesh.points[edge.beside[1]] - a, along);
    const Vector3 outwards(a.x, a.y, 0.0);
    EXPECT_GT(Dot(first, outwards), 0.0);
    EXPECT_GT(Dot(second, outwards), 0.0);
    EXPECT_NEAR(std::abs(along.z), 3.0, 1e-9);
  }
}

TEST(RoundEdges, OfOneFaceAreLeftOut) {
  Mesh mesh;
  mesh.points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {1.0, 1.0, 0.1}, {0.0, 1.0, 0.0}};
  mesh.AddFace({0, 1, 2, 3});
  EXPECT_EQ(CountOf(mesh, false), 0U);
}

}  // namespace
}  // namespace KelIFC::exporting
