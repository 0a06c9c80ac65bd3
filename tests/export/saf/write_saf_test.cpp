#include "export/saf/write_saf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <utility>

#include "export/saf/columns.h"
#include "tests/building/made_building.h"
#include "tests/export/saf/made_profile.h"
#include "tests/export/saf/opened_workbook.h"
#include "tests/read_file.h"

namespace KelIFC::exporting::saf {
namespace {

Building MadeBuilding() {
  Building building;
  building.schema = "IFC2X3";
  building.application = "Planner 3";
  building.projectGuid = "1000000000000000000011";
  building.storeys.resize(2);
  building.storeys[0].id = 10;
  building.storeys[0].name = "EG";
  building.storeys[0].elevation = 0.5;
  building.storeys[0].hasElevation = true;
  building.storeys[1].id = 11;
  building.materials = {{"C25/30"}};
  building.profiles = {RectangleProfile(0.3, 0.2)};
  building.elements = {MemberFrom(1, {}), Slab(2, 4.0, 4.0)};
  building.elements[0].storey = 10;
  building.elements[1].storeyByHeight = 10;
  return building;
}

TEST(Saf, HasTheSheetsAndTheHeadersOfTheTable) {
  const ExportedBuilding exported = Exported(MadeBuilding());
  for (const SheetColumns& sheet : Sheets()) {
    if (sheet.name == "Project" || sheet.name == "Model") continue;
    const std::vector<std::string> headers = exported.workbook.HeadersOf(std::string(sheet.name));
    EXPECT_EQ(headers, std::vector<std::string>(sheet.columns.begin(), sheet.columns.end()));
  }
}

TEST(Saf, DescribesTheModel) {
  const ExportedBuilding exported = Exported(MadeBuilding());
  const OpenedWorkbook::Row model = exported.workbook.PropertiesOf("Model");
  EXPECT_EQ(model.size(), 20U);
  EXPECT_EQ(model.at("Name"), "house.ifc");
  EXPECT_EQ(model.at("SAF Version"), "2.2.0");
  EXPECT_EQ(model.at("Global coordinate system"), "Z vertical");
  EXPECT_EQ(model.at("LCS of cross-section"), "ZYX");
  EXPECT_EQ(model.at("System of units"), "Metric");
  EXPECT_EQ(model.at("National code"), "EC-Standard-EN");
  EXPECT_EQ(model.at("Source application"), "Planner 3");
  EXPECT_EQ(model.at("Owner"), "");
  EXPECT_EQ(exported.workbook.PropertiesOf("Project").at("Id"),
            "40000000-0000-0000-0000-000000000041");
}

TEST(Saf, HasStoreysAndMaterials) {
  const ExportedBuilding exported = Exported(MadeBuilding());
  const auto storeys = exported.workbook.RowsOf("StructuralStorey");
  ASSERT_EQ(storeys.size(), 1U);
  EXPECT_EQ(storeys[0].at("Name"), "EG");
  EXPECT_EQ(storeys[0].at("Height level [m]"), "0.5");
  EXPECT_EQ(exported.CountOmissions("storeys without an elevation"), 1U);
  EXPECT_EQ(exported.workbook.RowsOf("StructuralCurveMember").at(0).at("Layer"), "EG");
  EXPECT_EQ(exported.workbook.RowsOf("StructuralSurfaceMember").at(0).at("Layer"), "EG");
  const auto materials = exported.workbook.RowsOf("StructuralMaterial");
  ASSERT_EQ(materials.size(), 2U);
  EXPECT_EQ(materials[0].at("Name"), "C25/30");
  EXPECT_EQ(materials[0].at("Type"), "Concrete");
  EXPECT_EQ(materials[0].at("Quality"), "C25/30");
  EXPECT_EQ(materials[1].at("Name"), "Unknown") << "elements without a material refer to it";
  EXPECT_EQ(materials[1].at("Type"), "Other");
}

TEST(Saf, LeavesOutPartsOfOtherElements) {
  Building building = MadeBuilding();
  building.elements[0].partOf = 2;
  building.trueNorth = Vector2(0.0, 1.0);
  const ExportedBuilding exported = Exported(building);
  EXPECT_EQ(exported.result.elements, 1U);
  EXPECT_EQ(exported.CountOmissions("parts of other elements"), 1U);
  EXPECT_EQ(exported.CountOmissions("directions of true north"), 1U);
  EXPECT_TRUE(exported.workbook.RowsOf("StructuralCurveMember").empty());
}

TEST(Saf, HoldsHostileTextsAsTexts) {
  Building building = MadeBuilding();
  building.elements[0].name = "=cmd|' /C calc'!A0";
  building.elements[1].name = std::string(10'000, '<') + "\x01\xFF";
  building.materials[0].name = "</t><script>\x1B";
  building.application = "@SUM(1)\xC3";
  const ExportedBuilding exported = Exported(building);
  EXPECT_EQ(exported.workbook.RowsOf("StructuralCurveMember")[0].at("Name"), "=cmd|' /C calc'!A0");
  EXPECT_EQ(exported.workbook.RowsOf("StructuralSurfaceMember")[0].at("Name"),
            std::string(128, '<'));
  EXPECT_EQ(exported.workbook.RowsOf("StructuralMaterial")[0].at("Name"), "</t><script>");
  EXPECT_EQ(exported.workbook.PropertiesOf("Model").at("Source application"), "@SUM(1)\uFFFD");
  EXPECT_EQ(exported.CountOmissions("texts shortened"), 1U);
}

TEST(Saf, GivesEqualGlobalIdsDifferentIds) {
  Building building = MadeBuilding();
  building.elements[0].guid = building.elements[1].guid = "2000000000000000000000";
  const ExportedBuilding exported = Exported(building);
  EXPECT_EQ(exported.workbook.RowsOf("StructuralCurveMember")[0].at("Id"),
            "80000000-0000-0000-0000-000000000000");
  EXPECT_NE(exported.workbook.RowsOf("StructuralSurfaceMember")[0].at("Id"),
            "80000000-0000-0000-0000-000000000000");
}

TEST(Saf, OfALargeBuildingHasTheSameCells) {
  Building building = MadeBuilding();
  Mesh strip;  // so many rows are not kept in memory
  for (Mesh::Index i = 0; i < 26'000; ++i) {
    strip.points.push_back({i * 0.1, i % 2 * 1.0, 0.0});
    if (i >= 2) strip.AddFace({i - 2, i - 1, i});
  }
  BuildingElement body;
  body.id = 3;
  body.className = "IfcFooting";
  body.body.mesh = std::make_shared<const Mesh>(std::move(strip));
  building.elements.insert(building.elements.begin(), body);
  const ExportedBuilding exported = Exported(building);
  EXPECT_EQ(exported.result.elements, 3U);
  const auto vertices = exported.workbook.RowsOf("StructuralProxyElementVertices");
  ASSERT_EQ(vertices.size(), 26'000U);
  EXPECT_EQ(vertices[25'999].at("Structural proxy element"), "Footing 3");
  EXPECT_EQ(vertices[25'999].at("Index"), "25999");
  EXPECT_EQ(exported.workbook.RowsOf("StructuralProxyElementFaces").size(), 25'998U);
  EXPECT_EQ(exported.workbook.RowsOf("StructuralCurveMember").at(0).at("Nodes"), "N1; N2");
  EXPECT_EQ(exported.workbook.PropertiesOf("Model").at("SAF Version"), "2.2.0");
  EXPECT_EQ(exported.workbook.FileOf("xl/worksheets/sheet1.xml").find("t=\"s\""), std::string::npos)
      << "there is no list of shared texts";
}

TEST(Saf, KeepsTheOldFileIfItIsCancelled) {
  const TestFolder folder;
  const std::string path = folder / "a.xlsx";
  std::ofstream(path) << "old";
  ExportOptions options;
  options.path = path;
  options.progress = [](double) { return false; };
  try {
    SafFormat().write(MadeBuilding(), options);
    FAIL() << "the export was cancelled";
  } catch (const ExportError& error) {
    EXPECT_EQ(error.failure, ExportFailure::kCancelled);
  }
  EXPECT_EQ(ReadFile(path), "old");
  EXPECT_EQ(folder.CountFiles(), 1U);
}

TEST(Saf, ReportsItsProgressUpToTheEnd) {
  const TestFolder folder;
  std::vector<double> shares;
  ExportOptions options;
  options.path = folder / "a.xlsx";
  options.progress = [&](double share) {
    shares.push_back(share);
    return true;
  };
  SafFormat().write(MadeBuilding(), options);
  EXPECT_THAT(shares, testing::ElementsAre(0.0, 1.0));
}

TEST(Saf, OfAnEmptyBuildingIsValid) {
  const ExportedBuilding exported = Exported({});
  EXPECT_EQ(exported.result.elements, 0U);
  EXPECT_TRUE(exported.result.omissions.empty());
  EXPECT_EQ(exported.workbook.PropertiesOf("Model").at("SAF Version"), "2.2.0");
}

}  // namespace
}  // namespace KelIFC::exporting::saf
