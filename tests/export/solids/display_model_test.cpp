#include "export/solids/display_model.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

#include "tests/building/made_building.h"

namespace KelIFC::exporting {
namespace {

Building TwoColumnsAndASlab() {
  Building building;
  building.profiles.resize(2);
  building.profiles[0].outline = {{-0.1, -0.2}, {0.1, -0.2}, {0.1, 0.2}, {-0.1, 0.2}};
  building.profiles[1].outline = {{-0.1, -0.1}, {0.1, -0.1}, {0.0, 0.3}};
  building.elements = {MemberFrom(1, {1000.0, 0.0, 0.0}), MemberFrom(2, {1004.0, 0.0, 0.0}, 5.0),
                       Slab(3, 4.0, 3.0)};
  return building;
}

/// The volume of the solid of an element, which is its mesh under its matrix.
double VolumeOf(const DisplayModel& model, std::size_t element) {
  if (model.elementMesh[element] == kNoDisplayMesh) return 0.0;
  const DisplayMesh& mesh = model.meshes[model.elementMesh[element]];
  const DisplayMatrix& matrix = model.elementMatrix[element];
  const auto place = [&](std::size_t corner) {
    const std::size_t vertex = mesh.firstVertex + model.triangles[corner];
    const float* const p = &model.positions[3 * vertex];
    return p[0] * matrix.x + p[1] * matrix.y + p[2] * matrix.z;
  };
  double volume = 0.0;
  for (std::size_t i = 0; i < mesh.triangleCount; ++i) {
    const std::size_t corner = 3 * (mesh.firstTriangle + i);
    volume += Dot(place(corner), Cross(place(corner + 1), place(corner + 2))) / 6.0;
  }
  return volume;
}

TEST(DisplayModel, StraightMembersShareTheMeshOfTheirProfile) {
  Building building = TwoColumnsAndASlab();
  building.elements.push_back(MemberFrom(4, {}, 1.0, 1));
  const DisplayModel model = MakeDisplayModel(building, {});
  EXPECT_EQ(model.meshes.size(), 3U);
  EXPECT_EQ(model.elementMesh, (std::vector<std::uint32_t>{0, 0, 1, 2}));
  EXPECT_NEAR(VolumeOf(model, 0), 3.0 * 0.08, 1e-6);
  EXPECT_NEAR(VolumeOf(model, 1), 5.0 * 0.08, 1e-6);
  EXPECT_NEAR(VolumeOf(model, 2), 12.0 * 0.2, 1e-6);
  EXPECT_NEAR(VolumeOf(model, 3), 0.04, 1e-6);
  EXPECT_EQ(model.elementMatrix[1].origin.x, 1004.0);
  EXPECT_EQ(model.elementMatrix[1].x.z, 5.0);
}

TEST(DisplayModel, TheOffsetOfAMemberMovesItsProfile) {
  Building building = TwoColumnsAndASlab();
  building.elements[0].member->offset = {0.1, 0.2};
  const DisplayModel model = MakeDisplayModel(building, {});
  EXPECT_NEAR(model.elementMatrix[0].origin.x, 999.9, 1e-12);  // y is along world x
  EXPECT_NEAR(model.elementMatrix[0].origin.y, -0.2, 1e-12);   // z is along world y
}

TEST(DisplayModel, MembersWithCutEndsAndOtherCurvesHaveTheirOwnMesh) {
  Building building = TwoColumnsAndASlab();
  building.elements[0].member->ends[0] = EndPlane{{1000.0, 0.0, 0.0}, {0.6, 0.0, -0.8}};
  building.elements[1].member->curve = CurveForm::kPolyline;
  const DisplayModel model = MakeDisplayModel(building, {});
  EXPECT_EQ(model.elementMesh, (std::vector<std::uint32_t>{0, 1, 2}));
  EXPECT_NEAR(VolumeOf(model, 0), 3.0 * 0.08, 1e-6);
  EXPECT_EQ(model.elementMatrix[0].x.x, 1.0);
}

TEST(DisplayModel, VerticesAreNearTheOriginOfTheirElement) {
  Building building;
  building.elements = {Slab(1, 5.0, 4.0)};
  for (Point3& p : building.elements[0].surface->outline) p += Vector3(3.5e6, 5.5e6, 100.0);
  building.elements[0].box = {{3.5e6, 5.5e6, 99.9}, {3.5e6 + 5.0, 5.5e6 + 4.0, 100.1}};
  const DisplayModel model = MakeDisplayModel(building, {});
  for (const float value : model.positions) EXPECT_LE(std::abs(value), 2.5F);
  EXPECT_NEAR(VolumeOf(model, 0), 4.0, 1e-5);
  EXPECT_EQ(model.origin.x, std::round(3.5e6 + 2.5));
  for (const float value : model.loopPoints) EXPECT_LE(std::abs(value), 3.1F);
}

TEST(DisplayModel, LoopsShowTheIdealisation) {
  const DisplayModel model = MakeDisplayModel(TwoColumnsAndASlab(), {});
  ASSERT_EQ(model.loops.size(), 3U);
  EXPECT_EQ(model.loops[1].element, 1U);
  EXPECT_EQ(model.loops[1].firstPoint, 2U);
  EXPECT_EQ(model.loops[1].kind, LineKind::kAxis);
  EXPECT_EQ(model.loops[2].pointCount, 4U);
  EXPECT_EQ(model.loops[2].kind, LineKind::kRegion);
  EXPECT_EQ(model.loopPoints.size(), 3U * 8U);
}

TEST(DisplayModel, EdgesAreThoseOfADrawing) {
  const DisplayModel model = MakeDisplayModel(TwoColumnsAndASlab(), {});
  for (const DisplayMesh& mesh : model.meshes) {
    EXPECT_EQ(mesh.edgeCount, 12U);
    for (std::size_t i = 0; i < std::size_t{2} * mesh.edgeCount; ++i) {
      EXPECT_LT(model.edges[std::size_t{2} * mesh.firstEdge + i], mesh.vertexCount);
    }
  }
}

TEST(DisplayModel, ElementsWithoutASolidHaveNoMesh) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  Building building = TwoColumnsAndASlab();
  building.elements[0].member->profile = 7;
  building.elements[1].member->points[1].z = kNaN;
  building.elements[2].surface->thickness = 0.0;
  building.elements.emplace_back();
  building.elements.push_back(MemberFrom(5, {1e300, 0.0, 0.0}));
  const DisplayModel model = MakeDisplayModel(building, {});
  EXPECT_EQ(model.elementMesh, std::vector<std::uint32_t>(5, kNoDisplayMesh));
  EXPECT_TRUE(model.meshes.empty());
  for (const float value : model.loopPoints) EXPECT_TRUE(std::isfinite(value));
}

TEST(DisplayModel, AnOpenBodyIsNotClosed) {
  auto mesh = std::make_shared<Mesh>();
  mesh->points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}};
  mesh->AddFace({0, 1, 2});
  Building building = TwoColumnsAndASlab();
  building.elements[0] = BuildingElement();
  building.elements[0].body.mesh = mesh;
  const DisplayModel model = MakeDisplayModel(building, {});
  EXPECT_FALSE(model.meshes[0].isClosed);
  EXPECT_TRUE(model.meshes[1].isClosed);
}

Building ASlabWithAnOpening(double depth) {
  Building building;
  building.elements = {Slab(1, 4.0, 3.0)};
  BuildingOpening opening;
  opening.outline = {{1.0, 1.0, 0.0}, {2.0, 1.0, 0.0}, {2.0, 2.0, 0.0}, {1.0, 2.0, 0.0}};
  opening.depth = depth;
  building.elements[0].openings = {opening};
  return building;
}

TEST(DisplayModel, CutsOpeningsOutOfSolidsIfAsked) {
  const Building building = ASlabWithAnOpening(0.2);
  const DisplayModel whole = MakeDisplayModel(building, {});
  EXPECT_NEAR(VolumeOf(whole, 0), 12.0 * 0.2, 1e-5);
  EXPECT_EQ(whole.loops.size(), 1U);
  const DisplayModel cut = MakeDisplayModel(building, {}, OpeningDisplay::kCut);
  EXPECT_NEAR(VolumeOf(cut, 0), 11.0 * 0.2, 1e-5);
  ASSERT_EQ(cut.loops.size(), 2U);
  EXPECT_EQ(cut.loops[1].kind, LineKind::kOpening);
}

TEST(DisplayModel, OutlinesOpeningsThatAreNotCutOut) {
  const DisplayModel model = MakeDisplayModel(ASlabWithAnOpening(0.1), {}, OpeningDisplay::kCut);
  EXPECT_NEAR(VolumeOf(model, 0), 12.0 * 0.2, 1e-5);
  EXPECT_EQ(model.meshes[0].edgeCount, 24U);
  EXPECT_EQ(model.meshes[0].vertexCount, 16U);
}

TEST(DisplayModel, CanBeCancelled) {
  ExportOptions options;
  options.progress = [](double) { return false; };
  EXPECT_THROW(MakeDisplayModel(TwoColumnsAndASlab(), options), ExportError);
}

}  // namespace
}  // namespace KelIFC::exporting
