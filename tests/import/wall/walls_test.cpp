#include <gtest/gtest.h>

#include "tests/import/structure_reader.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Release>
class Walls : public ConversionTest<Release> {
 protected:
  /// Adds a wall with these items, without a placement.
  ModelBuilder::Ref AddWall(ModelBuilder::Refs items, const std::string& name = "A") {
    return this->model.Wall("$", this->model.Body(items), name);
  }

  /// Converts the model and returns the points of the only wall.
  std::vector<Coordinates> PointsOfWall() {
    const auto walls = this->GetWalls();
    return walls.size() == 1 ? PointsOf(*walls[0]) : std::vector<Coordinates>();
  }
};
TYPED_TEST_SUITE(Walls, ConvertedReleases);

TYPED_TEST(Walls, AreTheDiagonalOfTheirMiddlePlane) {
  auto& m = this->model;
  const auto placement = m.Local(m.Turned({10, 0, 0}, {0, 1, 0}));
  m.Wall(placement, m.Body({m.Extrusion(m.Rectangle(5, 0.2), 3)}));
  this->Convert();
  const auto wall = Only(this->GetWalls());
  EXPECT_THAT(PointsOf(*wall), ElementsAre(IsAt(10, -2.5, 0), IsAt(10, 2.5, 3)));
  EXPECT_EQ(this->SectionOf(*wall), L"IFC_H_20");
  EXPECT_EQ(GetValue(*wall, &IGeoWall::get_IsOpen), VARIANT_FALSE);
}

TYPED_TEST(Walls, HaveTheirLengthAlongXWhateverIsLonger) {
  auto& m = this->model;
  this->AddWall({m.Extrusion(m.Rectangle(0.2, 5), 3)});
  this->Convert();
  EXPECT_THAT(this->PointsOfWall(), ElementsAre(IsAt(-0.1, 0, 0), IsAt(0.1, 0, 3)));
  EXPECT_THAT(this->SectionNames(), ElementsAre(L"IFC_H_500"));
}

TYPED_TEST(Walls, RiseAlongZWhateverTheDirectionOfTheirExtrusion) {
  auto& m = this->model;
  const auto direction = m.Direction({1, 0, -1});
  this->AddWall({m.Extrusion(m.Rectangle(5, 0.2), m.Placement({0, 0, 1}), direction, 3)});
  this->Convert();
  EXPECT_THAT(this->PointsOfWall(), ElementsAre(IsAt(-2.5, 0, 1), IsAt(2.5, 0, 4)));
}

TYPED_TEST(Walls, HaveTheBoundingBoxOfTheirOutline) {
  auto& m = this->model;
  const auto line = m.PolyLine({{1, 1}, {4, 1}, {4.2, 1.3}, {1.1, 1.3}, {1, 1}});
  this->AddWall({m.Extrusion(m.Outline(line), 3)});
  this->Convert();
  EXPECT_THAT(this->PointsOfWall(), ElementsAre(IsAt(1, 1.15, 0), IsAt(4.2, 1.15, 3)));
  EXPECT_THAT(this->SectionNames(), ElementsAre(L"IFC_H_30"));
}

TYPED_TEST(Walls, LoseACornerOfAnOutlineThatIsNotClosed) {
  auto& m = this->model;
  const auto line = m.PolyLine({{0, 0}, {4, 0}, {4, 0.2}, {9, 0.2}});
  this->AddWall({m.Extrusion(m.Outline(line), 3)});
  this->Convert();
  EXPECT_THAT(this->PointsOfWall(), ElementsAre(IsAt(0, 0.1, 0), IsAt(4, 0.1, 3)));
}

TYPED_TEST(Walls, IgnoreHolesOfTheirProfile) {
  auto& m = this->model;
  const auto line = m.PolyLine({{0, 0}, {4, 0}, {4, 0.2}, {0, 0.2}, {0, 0}});
  const auto profile =
      m.Add("IFCARBITRARYPROFILEDEFWITHVOIDS(.AREA.,$," + line + ",(" + line + "))");
  this->AddWall({m.Extrusion(profile, 3)});
  this->Convert();
  EXPECT_THAT(this->PointsOfWall(), ElementsAre(IsAt(0, 0.1, 0), IsAt(4, 0.1, 3)));
}

TYPED_TEST(Walls, OfOtherProfilesAreLeftOut) {
  auto& m = this->model;
  this->AddWall({m.Extrusion(m.Circle(1), 3)});
  this->AddWall({m.Extrusion("$", 3)});
  const auto circle = m.Add("IFCCIRCLE(" + m.Placement2D({0, 0}) + ",1.)");
  this->AddWall({m.Extrusion(m.Outline(circle), 3)});
  this->AddWall({m.Extrusion(m.Rectangle(5, 0.2), 3)}, "rectangle");
  this->Convert();
  EXPECT_THAT(this->NamesOf(this->GetWalls()), ElementsAre(L"rectangle"));
}

TYPED_TEST(Walls, OfAnEmptyOutlineHaveNoLength) {
  auto& m = this->model;
  this->AddWall({m.Extrusion(m.Outline(m.PolyLine({})), 3)});
  this->Convert();
  EXPECT_THAT(this->PointsOfWall(), ElementsAre(IsAt(0, 0, 0), IsAt(0, 0, 3)));
}

TYPED_TEST(Walls, AreReadFromTheirBodyOnly) {
  auto& m = this->model;
  const auto solid = m.Extrusion(m.Rectangle(5, 0.2), 3);
  m.Wall("$", m.Shape({m.Representation({solid}, "Axis")}), "axis");
  m.Wall("$", m.Shape({m.Representation({solid}, "body")}), "lower case");
  m.Wall("$", m.Shape({m.Representation({solid}, "Axis"), m.Representation({solid}, "Body")}),
         "both");
  m.Wall("$", "$", "nothing");
  this->Convert();
  EXPECT_THAT(this->NamesOf(this->GetWalls()), ElementsAre(L"both"));
}

TYPED_TEST(Walls, ThatAreClippedAreLeftOutUnlikeColumns) {
  auto& m = this->model;
  const auto clipping = m.Clipping(m.Extrusion(m.Rectangle(5, 0.2), 3));
  this->AddWall({clipping});
  m.Column("$", m.Body({clipping}));
  this->Convert();
  EXPECT_THAT(this->GetWalls(), IsEmpty());
  EXPECT_EQ(this->GetColumns().size(), 1u);
}

TYPED_TEST(Walls, PreferAnExtrusionToAllOtherItems) {
  auto& m = this->model;
  const auto solid = m.Extrusion(m.Rectangle(5, 0.2), 3);
  const auto box = m.Add("IFCBOUNDINGBOX(" + m.Point({0, 0, 0}) + ",1.,1.,1.)");
  this->AddWall({m.Clipping(solid), box, solid, m.Extrusion(m.Rectangle(7, 0.2), 3)});
  this->Convert();
  EXPECT_THAT(this->PointsOfWall(), ElementsAre(IsAt(-2.5, 0, 0), IsAt(2.5, 0, 3)));
}

TYPED_TEST(Walls, OfASubclassAreWalls) {
  auto& m = this->model;
  const auto body = m.Body({m.Extrusion(m.Rectangle(5, 0.2), 3)});
  m.Product("IFCWALLSTANDARDCASE", "$", body, "standard");
  this->Convert();
  EXPECT_THAT(this->NamesOf(this->GetWalls()), ElementsAre(L"standard"));
}

TYPED_TEST(Walls, WithoutANameAreNamedAfterTheirNumber) {
  auto& m = this->model;
  const auto body = m.Body({m.Extrusion(m.Rectangle(5, 0.2), 3)});
  m.AddAs(57, ModelBuilder::ProductText("IFCWALL", "$", body, ""));
  this->Convert();
  EXPECT_THAT(this->NamesOf(this->GetWalls()), ElementsAre(L"IFC#57"));
}

TYPED_TEST(Walls, StandAtTheOriginIfTheRectangleHasNoPosition) {
  auto& m = this->model;
  this->AddWall({m.Extrusion(m.Rectangle(5, 0.2, "$"), 3)});
  this->Convert();
  EXPECT_THAT(this->PointsOfWall(), ElementsAre(IsAt(-2.5, 0, 0), IsAt(2.5, 0, 3)));
}

TYPED_TEST(Walls, AreInMetres) {
  auto& m = this->model;
  m.Project(".MILLI.");
  m.Wall(m.Local(m.Placement({1000, 0, 0})), m.Body({m.Extrusion(m.Rectangle(5000, 200), 3000)}));
  this->Convert();
  EXPECT_THAT(this->PointsOfWall(), ElementsAre(IsAt(-1.5, 0, 0), IsAt(3.5, 0, 3)));
  EXPECT_THAT(this->SectionNames(), ElementsAre(L"IFC_H_20"));
}

}  // namespace
}  // namespace KelIFC
