#include "export/saf/write_member.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/building/made_building.h"
#include "tests/export/saf/made_profile.h"
#include "tests/export/saf/opened_workbook.h"

namespace KelIFC::exporting::saf {
namespace {

Building BuildingOf(std::vector<BuildingElement> elements) {
  Building building;
  building.materials = {{"S235"}};
  building.profiles = {RectangleProfile(0.3, 0.2), RectangleProfile(0.5, 0.2)};
  building.elements = std::move(elements);
  return building;
}

// The row of the only member.
OpenedWorkbook::Row RowOf(const BuildingElement& element) {
  const auto rows = Exported(BuildingOf({element})).workbook.RowsOf("StructuralCurveMember");
  EXPECT_EQ(rows.size(), 1U);
  return rows.empty() ? OpenedWorkbook::Row() : rows[0];
}

TEST(Member, HasItsAxisItsProfileAndItsDirection) {
  BuildingElement column = MemberFrom(7, {1.0, 2.0, 0.5});
  column.name = "S1";
  column.guid = "1000000000000000000011";
  column.material = 0;
  column.member->y = {0.0, 1.0, 0.0};
  const ExportedBuilding exported = Exported(BuildingOf({column}));
  const auto rows = exported.workbook.RowsOf("StructuralCurveMember");
  ASSERT_EQ(rows.size(), 1U);
  const OpenedWorkbook::Row& row = rows[0];
  EXPECT_EQ(row.at("Name"), "S1");
  EXPECT_EQ(row.at("Type"), "Column");
  EXPECT_EQ(row.at("Cross section"), "Rectangle 300x200");
  EXPECT_EQ(row.at("Arbitrary definition"), "");
  EXPECT_EQ(row.at("Nodes"), "N1; N2");
  EXPECT_EQ(row.at("Segments"), "Line");
  EXPECT_EQ(row.at("Length [m]"), "3");
  EXPECT_EQ(row.at("Geometrical shape"), "Line");
  EXPECT_EQ(row.at("LCS"), "y by vector");
  EXPECT_EQ(row.at("LCS Rotation [deg]"), "0");
  EXPECT_EQ(row.at("Coordinate X [m]"), "0");
  EXPECT_EQ(row.at("Coordinate Y [m]"), "1");
  EXPECT_EQ(row.at("Coordinate Z [m]"), "0");
  EXPECT_EQ(row.at("System line"), "Centre");
  EXPECT_EQ(row.at("Behaviour in analysis"), "Standard");
  EXPECT_EQ(row.at("Id"), "40000000-0000-0000-0000-000000000041");
  const auto nodes = exported.workbook.RowsOf("StructuralPointConnection");
  ASSERT_EQ(nodes.size(), 2U);
  EXPECT_EQ(nodes[1].at("Name"), "N2");
  EXPECT_EQ(nodes[1].at("Coordinate X [m]"), "1");
  EXPECT_EQ(nodes[1].at("Coordinate Y [m]"), "2");
  EXPECT_EQ(nodes[1].at("Coordinate Z [m]"), "3.5");
}

TEST(Member, HasEccentricitiesFromTheAxisToTheCentroid) {
  BuildingElement column = MemberFrom(1, {});
  column.member->offset = {-0.1, 0.15};  // the axis lies 100 mm left of and 150 mm above it
  const OpenedWorkbook::Row row = RowOf(column);
  for (const std::string kind : {"Structural", "Analysis"}) {
    for (const std::string end : {"Beg", "End"}) {
      EXPECT_EQ(row.at(kind + " Y Eccentricity of " + end + " Node [mm]"), "100");
      EXPECT_EQ(row.at(kind + " Z Eccentricity of " + end + " Node [mm]"), "-150");
    }
  }
}

TEST(Member, AlongAnArcHasANodeBetweenItsEnds) {
  BuildingElement beam = MemberFrom(1, {});
  beam.className = "IfcBeam";
  beam.member->curve = CurveForm::kArc;
  beam.member->points = {{0.0, 0.0, 0.0}, {1.0, 1.0, 0.0}, {2.0, 0.0, 0.0}};
  beam.member->y = {-1.0, 0.0, 0.0};
  const OpenedWorkbook::Row row = RowOf(beam);
  EXPECT_EQ(row.at("Type"), "Beam");
  EXPECT_EQ(row.at("Nodes"), "N1; N2; N3");
  EXPECT_EQ(row.at("Segments"), "Circular Arc");
  EXPECT_EQ(row.at("Geometrical shape"), "Circular Arc");
  EXPECT_NEAR(std::stod(row.at("Length [m]")), 3.141592653589793, 1e-12);
}

TEST(Member, AlongAPolylineHasASegmentForEachOfItsLines) {
  BuildingElement beam = MemberFrom(1, {});
  beam.member->curve = CurveForm::kPolyline;
  beam.member->points = {{0.0, 0.0, 0.0}, {0.0, 0.0, 1.0}, {0.0, 0.0, 1.0}, {0.0, 2.0, 1.0}};
  const OpenedWorkbook::Row row = RowOf(beam);
  EXPECT_EQ(row.at("Nodes"), "N1; N2; N3");
  EXPECT_EQ(row.at("Segments"), "Line; Line");
  EXPECT_EQ(row.at("Geometrical shape"), "Polyline");
}

TEST(Member, ThatIsTaperedHasTwoCrossSections) {
  BuildingElement column = MemberFrom(1, {});
  column.name = "S1";
  column.member->endProfile = 1;
  const ExportedBuilding exported = Exported(BuildingOf({column}));
  EXPECT_EQ(exported.workbook.RowsOf("StructuralCurveMember")[0].at("Arbitrary definition"), "S1");
  const auto rows = exported.workbook.RowsOf("StructuralCurveMemberVarying");
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].at("Name"), "S1");
  EXPECT_EQ(rows[0].at("Cross sections 1"), "Rectangle 300x200; Rectangle 500x200");
  EXPECT_EQ(rows[0].at("Span 1"), "1");
  EXPECT_EQ(rows[0].at("Alignment 1"), "Centre");
}

TEST(Member, SharesNodesWithinTheTolerance) {
  BuildingElement lower = MemberFrom(1, {});
  BuildingElement upper = MemberFrom(2, {0.0, 0.0004, 3.0});
  const ExportedBuilding exported = Exported(BuildingOf({lower, upper}));
  const auto rows = exported.workbook.RowsOf("StructuralCurveMember");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1].at("Nodes"), "N2; N3");
  EXPECT_EQ(exported.workbook.RowsOf("StructuralPointConnection").size(), 3U);
}

TEST(Member, WithoutADirectionHasAHorizontalOne) {
  BuildingElement beam = MemberFrom(1, {});
  beam.member->points = {{0.0, 0.0, 0.0}, {3.0, 0.0, 0.0}};
  beam.member->y = {1.0, 0.0, 0.0};  // along the axis
  const OpenedWorkbook::Row row = RowOf(beam);
  EXPECT_EQ(row.at("Coordinate X [m]"), "0");
  EXPECT_EQ(row.at("Coordinate Y [m]"), "1");
  beam.member->y = {std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0};
  EXPECT_EQ(RowOf(beam).at("Coordinate Y [m]"), "1");
}

TEST(Member, CountsItsInclinedEndsAndItsOpenings) {
  BuildingElement beam = MemberFrom(1, {});
  beam.member->ends[1] = EndPlane{{0.0, 0.0, 3.0}, {0.0, 0.6, 0.8}};
  beam.openings.resize(2);
  const ExportedBuilding exported = Exported(BuildingOf({beam}));
  EXPECT_EQ(exported.CountOmissions("inclined member ends"), 1U);
  EXPECT_EQ(exported.CountOmissions("openings of members and bodies"), 2U);
}

TEST(Member, ThatCannotBeHeldIsOmittedWithoutItsNodes) {
  BuildingElement none = MemberFrom(1, {});
  none.member.reset();
  BuildingElement small = MemberFrom(2, {}, 0.0005);
  BuildingElement endless = MemberFrom(3, {}, std::numeric_limits<double>::infinity());
  BuildingElement unknown = MemberFrom(4, {}, 3.0, 9);
  BuildingElement curved = MemberFrom(5, {});
  curved.member->curve = CurveForm::kPolyline;
  curved.member->points.clear();
  for (int i = 0; i < 4000; ++i) curved.member->points.push_back({i * 0.1, 0.0, 0.0});
  const ExportedBuilding exported = Exported(BuildingOf({none, small, endless, unknown, curved}));
  EXPECT_EQ(exported.result.elements, 0U);
  EXPECT_EQ(exported.CountOmissions(std::string(kNoIdealisation)), 1U);
  EXPECT_EQ(exported.CountOmissions(std::string(kTooSmall)), 1U);
  EXPECT_EQ(exported.CountOmissions(std::string(kOutOfRange)), 1U);
  EXPECT_EQ(exported.CountOmissions(std::string(kNoCrossSection)), 1U);
  EXPECT_EQ(exported.CountOmissions(std::string(kTooManyPoints)), 1U);
  EXPECT_TRUE(exported.workbook.RowsOf("StructuralPointConnection").empty());
}

}  // namespace
}  // namespace KelIFC::exporting::saf
