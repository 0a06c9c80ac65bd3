#include "export/saf/write_proxy.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "tests/building/made_building.h"
#include "tests/export/saf/opened_workbook.h"

namespace KelIFC::exporting::saf {
namespace {

// A tetrahedron; the first point belongs to no face.
BuildingElement Tetrahedron() {
  Mesh mesh;
  mesh.points = {
      {9.0, 9.0, 9.0}, {0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.5}};
  mesh.AddFace({1, 3, 2});
  mesh.AddFace({1, 2, 4});
  mesh.AddFace({2, 3, 4});
  mesh.AddFace({3, 1, 4});
  BuildingElement element;
  element.id = 5;
  element.className = "IfcFooting";
  element.kind = ElementKind::kBody;
  element.body.mesh = std::make_shared<const Mesh>(mesh);
  return element;
}

ExportedBuilding ExportedElement(const BuildingElement& element) {
  Building building;
  building.elements = {element};
  return Exported(building);
}

TEST(Proxy, HasTheVerticesAndTheFacesOfTheBody) {
  const ExportedBuilding exported = ExportedElement(Tetrahedron());
  EXPECT_EQ(exported.result.elements, 1U);
  const auto proxies = exported.workbook.RowsOf("StructuralProxyElement");
  ASSERT_EQ(proxies.size(), 1U);
  EXPECT_EQ(proxies[0].at("Name"), "Footing 5");
  EXPECT_EQ(proxies[0].at("Material"), "Unknown");
  const auto vertices = exported.workbook.RowsOf("StructuralProxyElementVertices");
  ASSERT_EQ(vertices.size(), 4U);
  EXPECT_EQ(vertices[3].at("Structural proxy element"), "Footing 5");
  EXPECT_EQ(vertices[3].at("Index"), "3");
  EXPECT_EQ(vertices[3].at("Z [m]"), "1.5");
  const auto faces = exported.workbook.RowsOf("StructuralProxyElementFaces");
  ASSERT_EQ(faces.size(), 4U);
  EXPECT_EQ(faces[0].at("Definition"), "0; 1; 2");
  EXPECT_EQ(faces[1].at("Definition"), "0; 2; 3");
  EXPECT_EQ(faces[3].at("Index"), "3");
}

TEST(Proxy, ReplacesAMemberThatDoesNotFit) {
  BuildingElement element = MemberFrom(1, {}, 3.0, 9);  // there is no such profile
  element.body.mesh = Tetrahedron().body.mesh;
  const ExportedBuilding exported = ExportedElement(element);
  EXPECT_EQ(exported.result.elements, 1U);
  EXPECT_EQ(exported.workbook.RowsOf("StructuralProxyElement").size(), 1U);
  EXPECT_TRUE(exported.result.omissions.empty());
}

TEST(Proxy, IsOmittedWithoutABoundary) {
  BuildingElement element = Tetrahedron();
  element.body.mesh.reset();
  EXPECT_EQ(ExportedElement(element).CountOmissions("bodies without a boundary"), 1U);
  element.body.mesh = std::make_shared<const Mesh>();
  EXPECT_EQ(ExportedElement(element).CountOmissions("bodies without a boundary"), 1U);
}

TEST(Proxy, IsOmittedIfACoordinateIsNotFiniteOrAnIndexIsNotValid) {
  BuildingElement element = Tetrahedron();
  Mesh mesh = *element.body.mesh;
  mesh.points[4].z = std::numeric_limits<double>::quiet_NaN();
  element.body.mesh = std::make_shared<const Mesh>(mesh);
  EXPECT_EQ(ExportedElement(element).CountOmissions(std::string(kOutOfRange)), 1U);
  mesh = *Tetrahedron().body.mesh;
  mesh.AddFace({1, 2, 99});
  element.body.mesh = std::make_shared<const Mesh>(mesh);
  EXPECT_EQ(ExportedElement(element).CountOmissions(std::string(kOutOfRange)), 1U);
}

TEST(Proxy, IsOmittedIfAFaceHasTooManyPointsForACell) {
  Mesh mesh;
  std::vector<Mesh::Index> loop;
  for (Mesh::Index i = 0; i < 8000; ++i) {
    mesh.points.push_back({i * 0.1, i % 2 * 1.0, 0.0});
    loop.push_back(i);
  }
  mesh.AddFace(loop);
  BuildingElement element = Tetrahedron();
  element.body.mesh = std::make_shared<const Mesh>(mesh);
  const ExportedBuilding exported = ExportedElement(element);
  EXPECT_EQ(exported.CountOmissions(std::string(kTooManyPoints)), 1U);
  EXPECT_TRUE(exported.workbook.RowsOf("StructuralProxyElementVertices").empty());
}

}  // namespace
}  // namespace KelIFC::exporting::saf
