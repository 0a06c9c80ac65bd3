#include "export/solids/mesh_store.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>

#include "kelifc/building/element_solid.h"

#include "tests/building/made_building.h"

namespace KelIFC::exporting {
namespace {

Mesh SlabAt(const Vector3& place, double width = 4.0) {
  Mesh mesh = SolidOf({}, Slab(1, width, 3.0));
  for (Point3& p : mesh.points) p += place;
  return mesh;
}

class MeshStoreTest : public testing::Test {
 protected:
  std::uint32_t Add(const Mesh& mesh, bool isClosed = true) {
    return store.Add(mesh, isClosed, MeshStore::Origin::kMiddle, place);
  }

  DisplayModel model;
  MeshStore store{model};
  Point3 place;
};

TEST_F(MeshStoreTest, EqualMeshesAtOtherPlacesAreOneMesh) {
  EXPECT_EQ(Add(SlabAt({0.1, 0.2, 0.3})), 0U);
  EXPECT_EQ(Add(SlabAt({1234.567, -89.01, 2.3})), 0U);
  EXPECT_NEAR(place.x, 1236.567, 1e-9);
  EXPECT_EQ(model.meshes.size(), 1U);
  EXPECT_EQ(model.positions.size(), 3U * 8U);
}

TEST_F(MeshStoreTest, MeshesOfOtherSizesAreSeparate) {
  EXPECT_EQ(Add(SlabAt({})), 0U);
  EXPECT_EQ(Add(SlabAt({}, 4.0001)), 1U);
  EXPECT_EQ(model.meshes[1].firstVertex, 8U);
  EXPECT_EQ(model.meshes[1].firstTriangle, model.meshes[0].triangleCount);
}

TEST_F(MeshStoreTest, AnOpenMeshIsNotAClosedOne) {
  EXPECT_EQ(Add(SlabAt({})), 0U);
  EXPECT_EQ(Add(SlabAt({}), false), 1U);
  EXPECT_FALSE(model.meshes[1].isClosed);
}

TEST_F(MeshStoreTest, WiresAddEdgesOnly) {
  EXPECT_EQ(Add(SlabAt({})), 0U);
  EXPECT_EQ(store.Add(SlabAt({}), true, MeshStore::Origin::kMiddle, place, {SlabAt({}, 1.0)}), 1U);
  EXPECT_EQ(model.meshes[1].triangleCount, model.meshes[0].triangleCount);
  EXPECT_EQ(model.meshes[1].edgeCount, 24U);
  EXPECT_EQ(model.meshes[1].vertexCount, 16U);
}

TEST_F(MeshStoreTest, TheZeroPointOfAMeshCanStay) {
  store.Add(SlabAt({1.0, 0.0, 0.0}), true, MeshStore::Origin::kZero, place);
  EXPECT_EQ(place.x, 0.0);
  float largest = 0.0F;
  for (std::size_t i = 0; i < model.positions.size(); i += 3) {
    largest = std::max(largest, model.positions[i]);
  }
  EXPECT_EQ(largest, 5.0F);
}

TEST_F(MeshStoreTest, TrianglesWithUnusablePointsAreLeftOut) {
  Mesh mesh = SlabAt({});
  for (Point3& p : mesh.points) p.z = 1e12;
  EXPECT_EQ(Add(mesh), kNoDisplayMesh);
  for (Point3& p : mesh.points) p.z = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Add(mesh), kNoDisplayMesh);
  EXPECT_EQ(Add({}), kNoDisplayMesh);
  EXPECT_TRUE(model.meshes.empty());
}

}  // namespace
}  // namespace KelIFC::exporting
