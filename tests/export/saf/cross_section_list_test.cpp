#include "export/saf/cross_section_list.h"

#include <gtest/gtest.h>

#include "tests/building/made_building.h"
#include "tests/export/saf/made_profile.h"
#include "tests/export/saf/opened_workbook.h"

namespace KelIFC::exporting::saf {
namespace {

// A building with an upright member of each profile.
Building BuildingOf(std::vector<BuildingProfile> profiles) {
  Building building;
  building.materials = {{"Stahl S235"}, {"C25/30"}};
  building.profiles = std::move(profiles);
  for (std::size_t i = 0; i < building.profiles.size(); ++i) {
    building.elements.push_back(MemberFrom(i + 1, {static_cast<double>(i), 0.0, 0.0}, 3.0, i));
    building.elements.back().material = 0;
  }
  return building;
}

TEST(CrossSections, OfPublishedShapesAreParametric) {
  Building building = BuildingOf({RectangleProfile(0.3, 0.2)});
  building.profiles[0].iy = 4.5e-4;
  building.profiles[0].iz = 2e-4;
  const ExportedBuilding exported = Exported(building);
  const auto rows = exported.workbook.RowsOf("StructuralCrossSection");
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].at("Name"), "Rectangle 300x200");
  EXPECT_EQ(rows[0].at("Material"), "Stahl S235");
  EXPECT_EQ(rows[0].at("Cross-section type"), "Parametric");
  EXPECT_EQ(rows[0].at("Shape"), "Rectangle");
  EXPECT_EQ(rows[0].at("Parameters [mm]"), "300; 200");
  EXPECT_EQ(rows[0].at("A [m2]"), "0.06");
  EXPECT_EQ(rows[0].at("Iy [m4]"), "0.00045");
  EXPECT_EQ(rows[0].at("Iz [m4]"), "0.0002");
  EXPECT_EQ(rows[0].at("Profile"), "");
}

TEST(CrossSections, OfOtherShapesArePolygons) {
  BuildingProfile profile;
  profile.name = "Rinne; 3";
  profile.outline = {{-0.2, -0.1}, {0.2, -0.1}, {0.2, 0.1}, {-0.2, 0.1}};
  profile.holes = {{{-0.1, 0.0}, {0.0, 0.05}, {0.0, 0.0}}, {{0.1, 0.0}, {0.1, 0.05}, {0.15, 0.0}}};
  const ExportedBuilding exported = Exported(BuildingOf({profile}));
  const auto rows = exported.workbook.RowsOf("StructuralCrossSection");
  const auto shapes = exported.workbook.RowsOf("CompositeShapeDef");
  ASSERT_EQ(rows.size(), 1U);
  ASSERT_EQ(shapes.size(), 1U);
  EXPECT_EQ(rows[0].at("Name"), "Rinne, 3");
  EXPECT_EQ(rows[0].at("Cross-section type"), "General");
  EXPECT_EQ(rows[0].at("Profile"), "Rinne, 3");
  EXPECT_EQ(shapes[0].at("Name"), "Rinne, 3");
  EXPECT_EQ(shapes[0].at("Material 1"), "Stahl S235");
  EXPECT_EQ(shapes[0].at("Polygon contour 1 [mm]"),
            "-200; -100 | 200; -100 | 200; 100 | -200; 100");
  EXPECT_EQ(shapes[0].at("Polygon openings 1 [mm]"),
            "-100; 0 | 0; 50 | 0; 0 || 100; 0 | 100; 50 | 150; 0");
}

TEST(CrossSections, OfADesignationWithoutAPublishedShapeAreManufactured) {
  using enum ProfileParameter;
  BuildingProfile profile = ProfileInBox(
      ProfileShape::kU, {-0.055, -0.1}, {0.02, 0.1},
      {{kH, 0.2}, {kB, 0.075}, {kTw, 0.0085}, {kTf, 0.0115}, {kR, 0.0115}, {kSlope, 0.08}});
  profile.designation = "UPN200";
  const ExportedBuilding exported = Exported(BuildingOf({profile}));
  const auto rows = exported.workbook.RowsOf("StructuralCrossSection");
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].at("Cross-section type"), "Manufactured");
  EXPECT_EQ(rows[0].at("Profile"), "UPN200");
  EXPECT_EQ(rows[0].at("Form code"), "13");
}

TEST(CrossSections, HaveARowForEachMaterialOfAProfile) {
  Building building = BuildingOf({RectangleProfile(0.3, 0.2)});
  for (std::size_t id = 2; id <= 4; ++id) {
    building.elements.push_back(MemberFrom(id, {static_cast<double>(id), 0.0, 0.0}));
  }
  building.elements[1].material = 1;
  building.elements[2].material = 0;
  const ExportedBuilding exported = Exported(building);
  const auto rows = exported.workbook.RowsOf("StructuralCrossSection");
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[1].at("Name"), "Rectangle 300x200 (C25/30)");
  EXPECT_EQ(rows[1].at("Material"), "C25/30");
  EXPECT_EQ(rows[2].at("Name"), "Rectangle 300x200 (Unknown)");
  const auto members = exported.workbook.RowsOf("StructuralCurveMember");
  EXPECT_EQ(members[2].at("Cross section"), "Rectangle 300x200");
  EXPECT_EQ(members[3].at("Cross section"), "Rectangle 300x200 (Unknown)");
}

TEST(CrossSections, OfEqualNamesAreDistinguished) {
  BuildingProfile a = RectangleProfile(0.3, 0.2);
  BuildingProfile b = RectangleProfile(0.4, 0.2);
  a.name = b.name = "Balken";
  const auto rows = Exported(BuildingOf({a, b})).workbook.RowsOf("StructuralCrossSection");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1].at("Name"), "Balken_2");
}

TEST(CrossSections, WithTooManyPointsForACellAreOmitted) {
  BuildingProfile profile;
  for (int i = 0; i < 5000; ++i) profile.outline.push_back({i * 0.001, 0.0});
  profile.outline.push_back({0.0, 1.0});
  const ExportedBuilding exported = Exported(BuildingOf({profile}));
  EXPECT_EQ(exported.result.elements, 0U);
  EXPECT_EQ(exported.CountOmissions("members without a usable profile"), 1U);
  EXPECT_TRUE(exported.workbook.RowsOf("StructuralPointConnection").empty());
}

}  // namespace
}  // namespace KelIFC::exporting::saf
