#include "export/saf/write_surface.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/building/made_building.h"
#include "tests/export/saf/opened_workbook.h"

namespace KelIFC::exporting::saf {
namespace {

ExportedBuilding ExportedElement(const BuildingElement& element) {
  Building building;
  building.materials = {{"C25/30"}};
  building.elements = {element};
  return Exported(building);
}

BuildingElement Wall() {
  BuildingElement wall = Slab(1, 1.0, 1.0, 0.24);
  wall.className = "IfcWall";
  wall.name = "W1";
  wall.guid = "1000000000000000000011";
  wall.material = 0;
  // A wall in the direction (3, 4), 5 m long and 3 m high.
  wall.surface->outline = {{0.0, 0.0, 0.0}, {3.0, 4.0, 0.0}, {3.0, 4.0, 3.0}, {0.0, 0.0, 3.0}};
  wall.surface->normal = {0.8, -0.6, 0.0};
  return wall;
}

// A wall along the line or curve, 2 m high.
BuildingElement CurvedWall(CurveForm curve, std::vector<Point3> points) {
  BuildingElement wall = Slab(1, 1.0, 1.0, 0.2);
  wall.className = "IfcWall";
  wall.name = "W1";
  wall.guid = "1000000000000000000011";
  wall.surface = SurfaceRegion();
  wall.surface->thickness = 0.2;
  wall.surface->sweep = WallSweep{curve, std::move(points), {0.0, 0.0, 1.0}, 2.0};
  return wall;
}

TEST(Surface, HasItsOutlineItsThicknessAndItsDirection) {
  const ExportedBuilding exported = ExportedElement(Wall());
  const auto rows = exported.workbook.RowsOf("StructuralSurfaceMember");
  ASSERT_EQ(rows.size(), 1U);
  const OpenedWorkbook::Row& row = rows[0];
  EXPECT_EQ(row.at("Name"), "W1");
  EXPECT_EQ(row.at("Type"), "Wall");
  EXPECT_EQ(row.at("Material"), "C25/30");
  EXPECT_EQ(row.at("Thickness type"), "Constant");
  EXPECT_EQ(row.at("Thickness [mm]"), "240");
  EXPECT_EQ(row.at("System plane at"), "Centre");
  EXPECT_EQ(row.at("Nodes"), "N1; N2; N3; N4");
  EXPECT_EQ(row.at("Edges"), "Line; Line; Line; Line");
  EXPECT_EQ(row.at("Area [m2]"), "15");
  EXPECT_EQ(row.at("LCS Type"), "x by vector");
  EXPECT_EQ(row.at("Coordinate X [m]"), "0.6");
  EXPECT_EQ(row.at("Coordinate Y [m]"), "0.8");
  EXPECT_EQ(row.at("Coordinate Z [m]"), "0");
  EXPECT_EQ(row.at("LCS Rotation [deg]"), "0");
  EXPECT_EQ(row.at("Analysis Z Eccentricity [mm]"), "0");
  EXPECT_EQ(row.at("Shape"), "Flat");
  EXPECT_EQ(row.at("Behavior in analysis"), "Isotropic");
  EXPECT_EQ(row.at("Parent ID"), "");
  EXPECT_EQ(row.at("Id"), "40000000-0000-0000-0000-000000000041");
}

TEST(Surface, OfASlabIsAPlateWithXAlongTheWorldAxis) {
  const ExportedBuilding exported = ExportedElement(Slab(3, 4.0, 2.0));
  const OpenedWorkbook::Row row = exported.workbook.RowsOf("StructuralSurfaceMember").at(0);
  EXPECT_EQ(row.at("Name"), "Slab 3");
  EXPECT_EQ(row.at("Type"), "Plate");
  EXPECT_EQ(row.at("Thickness [mm]"), "200");
  EXPECT_EQ(row.at("Coordinate X [m]"), "1");
  EXPECT_EQ(row.at("Coordinate Y [m]"), "0");
}

TEST(Surface, OfAPlateIsAWallIfItIsSteep) {
  BuildingElement plate = Wall();
  plate.className = "IfcPlate";
  EXPECT_EQ(ExportedElement(plate).workbook.RowsOf("StructuralSurfaceMember").at(0).at("Type"),
            "Wall");
  plate = Slab(1, 1.0, 1.0);
  plate.className = "IfcPlate";
  EXPECT_EQ(ExportedElement(plate).workbook.RowsOf("StructuralSurfaceMember").at(0).at("Type"),
            "Plate");
}

TEST(Surface, HasArcsAsEdges) {
  BuildingElement slab = Slab(1, 2.0, 2.0);
  slab.surface->arcs = {{1, {3.0, 1.0, 0.0}}};
  const OpenedWorkbook::Row row =
      ExportedElement(slab).workbook.RowsOf("StructuralSurfaceMember").at(0);
  EXPECT_EQ(row.at("Nodes"), "N1; N2; N5; N3; N4");
  EXPECT_EQ(row.at("Edges"), "Line; Circular Arc; Line; Line");
}

TEST(Surface, HasItsHolesAndItsOpeningsInItsPlane) {
  BuildingElement slab = Slab(1, 4.0, 4.0);
  slab.name = "D1";
  slab.surface->holes = {{{1.0, 1.0, 0.0}, {1.0, 2.0, 0.0}, {2.0, 2.0, 0.0}, {2.0, 1.0, 0.0}}};
  BuildingOpening opening;
  opening.guid = "2000000000000000000000";
  opening.outline = {{2.5, 2.5, 0.1}, {3.5, 2.5, 0.1}, {3.0, 3.5, 0.1}};  // 0.1 m above the plane
  slab.openings = {opening};
  const ExportedBuilding exported = ExportedElement(slab);
  const auto rows = exported.workbook.RowsOf("StructuralSurfaceMemberOpening");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].at("Name"), "D1 opening");
  EXPECT_EQ(rows[0].at("2D Member"), "D1");
  EXPECT_EQ(rows[0].at("Nodes"), "N5; N6; N7; N8");
  EXPECT_EQ(rows[0].at("Area [m2]"), "1");
  EXPECT_EQ(rows[1].at("Name"), "D1 opening_2");
  EXPECT_EQ(rows[1].at("Nodes"), "N9; N10; N11");
  EXPECT_EQ(rows[1].at("Edges"), "Line; Line; Line");
  EXPECT_EQ(rows[1].at("Area [m2]"), "0.5");
  EXPECT_EQ(rows[1].at("Id"), "80000000-0000-0000-0000-000000000000");
  const auto nodes = exported.workbook.RowsOf("StructuralPointConnection");
  EXPECT_EQ(nodes.at(8).at("Coordinate Z [m]"), "0");
  EXPECT_EQ(exported.workbook.RowsOf("StructuralSurfaceMember")[0].at("Area [m2]"), "15");
}

TEST(Surface, CountsOpeningsThatItCannotHold) {
  BuildingElement slab = Slab(1, 4.0, 4.0);
  slab.openings.resize(2);
  slab.openings[1].outline = {{1.0, 1.0, 0.0}, {1.0, 1.0, 0.0}, {2.0, 1.0, 0.0}};
  const ExportedBuilding exported = ExportedElement(slab);
  EXPECT_EQ(exported.CountOmissions("openings without an outline"), 1U);
  EXPECT_EQ(exported.CountOmissions("unusable openings"), 1U);
  EXPECT_EQ(exported.workbook.RowsOf("StructuralPointConnection").size(), 4U);
}

TEST(Surface, CountsItsLayersIfItHasSeveral) {
  BuildingElement wall = Wall();
  wall.surface->layers = {{0, 0.2}};
  EXPECT_EQ(ExportedElement(wall).CountOmissions("layers of surfaces"), 0U);
  wall.surface->layers = {{0, 0.2}, {std::nullopt, 0.04}};
  EXPECT_EQ(ExportedElement(wall).CountOmissions("layers of surfaces"), 2U);
}

TEST(CurvedWall, IsACurvedSurfaceWithTwoArcs) {
  BuildingElement wall =
      CurvedWall(CurveForm::kArc, {{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {-1.0, 0.0, 0.0}});
  wall.openings.resize(1);
  const ExportedBuilding exported = ExportedElement(wall);
  const OpenedWorkbook::Row row = exported.workbook.RowsOf("StructuralSurfaceMember").at(0);
  EXPECT_EQ(row.at("Nodes"), "N1; N5; N2; N3; N6; N4");
  EXPECT_EQ(row.at("Edges"), "Circular Arc; Line; Circular Arc; Line");
  EXPECT_EQ(row.at("Shape"), "Curved");
  EXPECT_EQ(row.at("Type"), "Wall");
  EXPECT_NEAR(std::stod(row.at("Area [m2]")), 2.0 * 3.141592653589793, 1e-12);
  const auto nodes = exported.workbook.RowsOf("StructuralPointConnection");
  EXPECT_EQ(nodes.at(5).at("Coordinate Y [m]"), "1");
  EXPECT_EQ(nodes.at(5).at("Coordinate Z [m]"), "2");
  EXPECT_EQ(exported.CountOmissions("openings of curved walls"), 1U);
}

TEST(CurvedWall, AlongAPolylineHasARowForEachLine) {
  const ExportedBuilding exported = ExportedElement(
      CurvedWall(CurveForm::kPolyline, {{0.0, 0.0, 0.0}, {3.0, 0.0, 0.0}, {3.0, 2.0, 0.0}}));
  const auto rows = exported.workbook.RowsOf("StructuralSurfaceMember");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(exported.result.elements, 1U);
  EXPECT_EQ(rows[0].at("Name"), "W1");
  EXPECT_EQ(rows[1].at("Name"), "W1_2");
  EXPECT_EQ(rows[0].at("Area [m2]"), "6");
  EXPECT_EQ(rows[1].at("Area [m2]"), "4");
  EXPECT_EQ(rows[0].at("Nodes"), "N1; N2; N3; N4");
  EXPECT_EQ(rows[1].at("Nodes"), "N2; N5; N6; N3");
  EXPECT_EQ(rows[1].at("Coordinate Y [m]"), "1");
  for (const OpenedWorkbook::Row& row : rows) {
    EXPECT_EQ(row.at("Parent ID"), "40000000-0000-0000-0000-000000000041");
    EXPECT_NE(row.at("Id"), row.at("Parent ID"));
  }
}

TEST(Surface, ThatCannotBeHeldIsOmittedWithoutItsNodes) {
  BuildingElement thin = Slab(1, 1.0, 1.0, 0.0);
  EXPECT_EQ(ExportedElement(thin).CountOmissions(std::string(kNoIdealisation)), 1U);
  BuildingElement small = Slab(1, 0.0005, 1.0);
  small.surface->outline.erase(small.surface->outline.begin());
  EXPECT_EQ(ExportedElement(small).CountOmissions(std::string(kTooSmall)), 1U);
  BuildingElement wide = Slab(1, std::numeric_limits<double>::quiet_NaN(), 1.0);
  const ExportedBuilding exported = ExportedElement(wide);
  EXPECT_EQ(exported.CountOmissions(std::string(kOutOfRange)), 1U);
  EXPECT_EQ(exported.result.elements, 0U);
  EXPECT_TRUE(exported.workbook.RowsOf("StructuralPointConnection").empty());
  EXPECT_TRUE(exported.workbook.RowsOf("StructuralSurfaceMember").empty());
}

}  // namespace
}  // namespace KelIFC::exporting::saf
