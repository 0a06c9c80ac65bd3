#include "kelifc/building/solid/mesh_tools.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <tuple>

#include "solid_samples.h"

namespace KelIFC::building {
namespace {

TEST(Weld, DropsWhatRoundingMakesOfSmallFaces) {
  Mesh mesh;
  mesh.points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {1.0, 1e-9, 0.0}};
  mesh.AddFace({0, 1, 2});
  mesh.AddFace({1, 3, 2});
  mesh.AddFace({0, 1, 3, 2});
  const Mesh welded = Weld(mesh, 1e-6);
  EXPECT_EQ(welded.points.size(), 3U);
  ASSERT_EQ(welded.FaceCount(), 2U);
  EXPECT_EQ(welded.LoopOf(1, 0).size(), 3U);
}

TEST(Weld, DropsFacesWithPointsThatAreNotThere) {
  Mesh mesh;
  mesh.points = {{0.0, 0.0, 0.0},
                 {1.0, 0.0, 0.0},
                 {0.0, 1.0, 0.0},
                 {std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0}};
  mesh.AddFace({0, 1, 77});
  mesh.AddFace({0, 1, 3});
  mesh.AddFace({0, 1, 2});
  EXPECT_EQ(Weld(mesh, 1e-6).FaceCount(), 1U);
}

TEST(Moved, TurnsTheFacesOfAMirroredMesh) {
  Transform3 mirror;
  mirror.x = {-1.0, 0.0, 0.0};
  EXPECT_NEAR(VolumeOf(Moved(TubeMesh(), mirror)), 9.0, 1e-12);
  EXPECT_NEAR(VolumeOf(Flip(TubeMesh())), -9.0, 1e-12);
}

TEST(PartsOf, AreTheMeshesThatShareNoPoint) {
  Mesh both = TubeMesh();
  Append(both, BoxMesh({5.0, 0.0, 0.0}, {6.0, 1.0, 1.0}));
  const std::vector<Mesh> parts = PartsOf(both);
  ASSERT_EQ(parts.size(), 2U);
  EXPECT_NEAR(VolumeOf(parts[0]), 9.0, 1e-12);
  EXPECT_NEAR(VolumeOf(parts[1]), 1.0, 1e-12);
  EXPECT_TRUE(PartsOf(Mesh()).empty());
}

TEST(Balance, CountsTheUsesOfAnEdge) {
  EXPECT_TRUE(IsBalanced(TubeMesh()));
  Mesh triangle;
  triangle.points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}};
  triangle.AddFace({0, 1, 2});
  EXPECT_FALSE(IsBalanced(triangle));
}

TEST(Balance, IsTheSameForFewAndForManyPoints) {
  for (const std::size_t unused : {0, 100}) {
    Mesh mesh = TubeMesh();
    mesh.points.resize(mesh.points.size() + unused);
    EXPECT_TRUE(IsBalanced(mesh));
    mesh.AddFace({0, 1, 2});
    EXPECT_FALSE(IsBalanced(mesh));
    mesh.AddFace({2, 1, 0});
    EXPECT_TRUE(IsBalanced(mesh));
    mesh.AddFace({0, 1, 0xFFFFFFF0});
    EXPECT_FALSE(IsBalanced(mesh));
  }
}

TEST(SortedEdges, AreByTheirEndsThenByFace) {
  Mesh mesh = TubeMesh();
  mesh.AddFace({7, 0xFFFFFFF0, 0xFFFFFFF1});
  for (const bool isValid : {false, true}) {
    const std::vector<EdgeUse> edges = SortedEdgesOf(isValid ? TubeMesh() : mesh);
    const auto key = [](const EdgeUse& edge) {
      return std::tuple(std::min(edge.from, edge.to), std::max(edge.from, edge.to), edge.face,
                        edge.from);
    };
    EXPECT_TRUE(std::is_sorted(edges.begin(), edges.end(), [&](const EdgeUse& a, const EdgeUse& b) {
      return key(a) < key(b);
    }));
    EXPECT_EQ(edges.size() % 2, isValid ? 0U : 1U);
  }
}

TEST(SplitEdges, AddsThePointsOfNeighboursOnly) {
  Mesh mesh;
  mesh.points = {
      {0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {1.0, 0.0, 0.0}, {1.0, -1.0, 0.0}};
  mesh.AddFace({0, 1, 2});
  mesh.AddFace({3, 0, 4});
  mesh.AddFace({1, 3, 4});
  const Mesh split = SplitEdges(mesh, 1e-6);
  EXPECT_EQ(split.LoopOf(0, 0).size(), 4U);
  EXPECT_EQ(split.LoopOf(0, 0)[1], 3U);
  EXPECT_EQ(split.LoopOf(1, 0).size(), 3U);
}

}  // namespace
}  // namespace KelIFC::building
