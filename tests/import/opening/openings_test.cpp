#include <gtest/gtest.h>

#include "tests/import/structure_reader.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Ref = ModelBuilder::Ref;

template <class Release>
class Openings : public ConversionTest<Release> {
 protected:
  Ref AddWall(const std::string& name = "A") {
    auto& m = this->model;
    wallPlacement = m.Local(m.Placement({100, 0, 0}));
    return m.Wall(wallPlacement, m.Body({m.Extrusion(m.Rectangle(5, 0.2), 3)}), name);
  }

  Ref AddSlab() {
    auto& m = this->model;
    return m.Slab("$", m.Body({m.Extrusion(m.Rectangle(8, 8), 0.2)}));
  }

  /// A box of 1 by 0.2 by 2; the origin is the centre of its base.
  Ref Box() { return this->model.Extrusion(this->model.Rectangle(1, 0.2), 2); }

  /// Adds an opening to the wall, at height `z` above the origin of the wall.
  Ref AddOpening(const Ref& wall, double z, const std::string& name = "O") {
    auto& m = this->model;
    const auto placement = m.Local(m.Placement({0, 0, z}), wallPlacement);
    const auto opening = m.Opening(placement, m.Body({Box()}), name);
    m.Voids(wall, opening);
    return opening;
  }

  Ref Door(const std::string& name = "D") {
    return this->model.Product("IFCDOOR", "$", "$", name, "2.,1.");
  }
  Ref Window(const std::string& name = "W") {
    return this->model.Product("IFCWINDOW", "$", "$", name, "2.,1.");
  }

  std::vector<ComPtr<IGeoWindow>> WindowsOf(IGeoWall& wall) {
    return ItemsOf<IGeoWindow>(*GetObject(wall, &IGeoWall::get_Windows));
  }
  std::vector<ComPtr<IGeoDoor>> DoorsOf(IGeoWall& wall) {
    return ItemsOf<IGeoDoor>(*GetObject(wall, &IGeoWall::get_Doors));
  }
  std::vector<ComPtr<IGeoHole>> HolesOf(IGeoPlate& plate) {
    return ItemsOf<IGeoHole>(*GetObject(plate, &IGeoPlate::get_Holes));
  }

  /// Converts the model and expects these names of the windows and doors of the only wall.
  void ExpectNames(const std::vector<std::wstring>& windows,
                   const std::vector<std::wstring>& doors) {
    this->Convert();
    const auto wall = Only(this->GetWalls());
    EXPECT_EQ(this->NamesOf(WindowsOf(*wall)), windows);
    EXPECT_EQ(this->NamesOf(DoorsOf(*wall)), doors);
  }

  /// Converts the model and returns the points of the only window of the only wall.
  std::vector<Coordinates> PointsOfWindow() {
    this->Convert();
    const auto wall = Only(this->GetWalls());
    return PointsOf(*Only(WindowsOf(*wall)));
  }

  Ref wallPlacement = "$";
};
TYPED_TEST_SUITE(Openings, ConvertedReleases);

TYPED_TEST(Openings, FilledByADoorAreDoorsWithTheirOwnName) {
  auto& m = this->model;
  const auto opening = this->AddOpening(this->AddWall(), 1.0, "opening");
  m.Fills(opening, this->Door("door"));
  this->ExpectNames({}, {L"opening"});
}

TYPED_TEST(Openings, FilledByAWindowAreWindowsAtAnyHeight) {
  auto& m = this->model;
  const auto opening = this->AddOpening(this->AddWall(), 0.0, "opening");
  m.Fills(opening, this->Window());
  this->ExpectNames({L"opening"}, {});
}

TYPED_TEST(Openings, WithoutAFillingAreDistinguishedByTheirHeight) {
  const auto wall = this->AddWall();
  this->AddOpening(wall, 0.0, "0");
  this->AddOpening(wall, 0.0009, "0.0009");
  this->AddOpening(wall, 0.001, "0.001");
  this->AddOpening(wall, 0.5, "0.5");
  this->AddOpening(wall, -0.2, "-0.2");
  this->ExpectNames({L"0.001", L"0.5"}, {L"0", L"0.0009", L"-0.2"});
}

TYPED_TEST(Openings, FilledBySomethingElseAreLeftOut) {
  auto& m = this->model;
  const auto wall = this->AddWall();
  const auto opening = this->AddOpening(wall, 0.5);
  m.Fills(opening, wall);
  this->ExpectNames({}, {});
}

TYPED_TEST(Openings, AreDecidedByTheFirstWindowOrDoor) {
  auto& m = this->model;
  const auto wall = this->AddWall();
  const auto first = this->AddOpening(wall, 0.5, "door first");
  m.Fills(first, this->Door());
  m.Fills(first, this->Window());
  const auto second = this->AddOpening(wall, 0.0, "wall, then window");
  m.Fills(second, wall);
  m.Fills(second, this->Window());
  this->ExpectNames({L"wall, then window"}, {L"door first"});
}

TYPED_TEST(Openings, WithoutAFillingAndAPlacementAreLeftOut) {
  auto& m = this->model;
  const auto wall = this->AddWall();
  m.Voids(wall, m.Opening("$", m.Body({this->Box()}), "unplaced"));
  m.Voids(wall, m.Opening(m.Local(m.Placement2D({0, 0})), m.Body({this->Box()}), "in the plane"));
  this->ExpectNames({}, {});
}

TYPED_TEST(Openings, AreTheCornersAtTheMiddleOfTheirDepth) {
  auto& m = this->model;
  const auto wall = this->AddWall();
  const auto across = m.Direction({0, -1, 0});
  const auto along = m.Direction({1, 0, 0});
  const auto position = m.Placement({0, 0.1, 0}, across, along);
  const auto solid = m.Extrusion(m.Rectangle(1, 2), position, m.Direction({0, 0, 1}), 0.2);
  const auto placement = m.Local(m.Placement({1, 0, 1.5}), this->wallPlacement);
  m.Voids(wall, m.Opening(placement, m.Body({solid})));
  EXPECT_THAT(this->PointsOfWindow(), ElementsAre(IsAt(100.5, 0, 0.5), IsAt(101.5, 0, 2.5)));
}

TYPED_TEST(Openings, OfATurnedRectangleKeepItsTwoCorners) {
  auto& m = this->model;
  const auto wall = this->AddWall();
  const auto profile = m.Rectangle(1, 2, m.Placement2D({5, 0}, m.Direction({0, 1})));
  const auto placement = m.Local(m.Placement({0, 0, 1}));
  m.Voids(wall, m.Opening(placement, m.Body({m.Extrusion(profile, 2)})));
  EXPECT_THAT(this->PointsOfWindow(), ElementsAre(IsAt(6, -0.5, 2), IsAt(4, 0.5, 2)));
}

TYPED_TEST(Openings, OfAnOutlineAreItsBoxWithTheLastPoint) {
  auto& m = this->model;
  const auto wall = this->AddWall();
  const auto outline = m.Outline(m.PolyLine({{0, 0}, {1, 0.5}, {3, -2}}));
  m.Voids(wall, m.Opening(m.Local(m.Placement({0, 0, 1})), m.Body({m.Extrusion(outline, 2)})));
  EXPECT_THAT(this->PointsOfWindow(), ElementsAre(IsAt(0, -2, 2), IsAt(3, 0.5, 2)));
}

TYPED_TEST(Openings, OfOtherProfilesStayAtTheOriginOfTheWorld) {
  auto& m = this->model;
  const auto wall = this->AddWall();
  const auto placement = m.Local(m.Placement({7, 7, 1}));
  m.Voids(wall, m.Opening(placement, m.Body({m.Extrusion(m.Circle(1), 2)}), "circle"));
  m.Voids(wall, m.Opening(placement, "$", "no shape"));
  this->Convert();
  const auto windows = this->WindowsOf(*this->GetWalls().at(0));
  EXPECT_THAT(this->NamesOf(windows), ElementsAre(L"circle", L"no shape"));
  for (const auto& window : windows) {
    EXPECT_THAT(PointsOf(*window), ElementsAre(IsAt(0, 0, 0), IsAt(0, 0, 0)));
  }
}

TYPED_TEST(Openings, OfASlabAreHolesWhateverFillsThem) {
  auto& m = this->model;
  const auto slab = this->AddSlab();
  const auto placement = m.Local(m.Placement({0, 0, 10}));
  const auto opening = m.Opening(placement, m.Body({m.Extrusion(m.Rectangle(2, 1), 0.4)}), "hole");
  m.Voids(slab, opening);
  m.Fills(opening, this->Window());
  this->Convert();
  const auto plate = Only(this->GetPlates());
  const auto hole = Only(this->HolesOf(*plate));
  EXPECT_EQ(this->NameOf(*hole), L"hole");
  EXPECT_THAT(PointsOf(*hole), ElementsAre(IsAt(-1, -0.5, 10.2), IsAt(1, -0.5, 10.2),
                                           IsAt(1, 0.5, 10.2), IsAt(-1, 0.5, 10.2)));
  EXPECT_EQ(GetValue(static_cast<IGeoPolyline&>(*hole.template As<IGeoPolyline>()),
                     &IGeoPolyline::get_Closed),
            VARIANT_FALSE);
}

TYPED_TEST(Openings, OfASlabAreKeptWithoutAContour) {
  auto& m = this->model;
  const auto slab = this->AddSlab();
  m.Voids(slab, m.Opening("$", "$", "no shape"));
  m.Voids(slab, m.Opening("$", m.Body({m.Extrusion(m.Circle(1), 1)}), "circle"));
  this->Convert();
  const auto holes = this->HolesOf(*this->GetPlates().at(0));
  EXPECT_THAT(this->NamesOf(holes), ElementsAre(L"no shape", L"circle"));
  for (const auto& hole : holes) EXPECT_THAT(PointsOf(*hole), IsEmpty());
}

TYPED_TEST(Openings, WithoutADirectionKeepThePlaneOfTheirProfile) {
  auto& m = this->model;
  const auto slab = this->AddSlab();
  const auto solid = m.Extrusion(m.Rectangle(2, 2), m.Placement({0, 0, 3}), "$", 1);
  m.Voids(slab, m.Opening("$", m.Body({solid})));
  this->Convert();
  const auto hole = Only(this->HolesOf(*this->GetPlates().at(0)));
  EXPECT_THAT(PointsOf(*hole),
              ElementsAre(IsAt(-1, -1, 3), IsAt(1, -1, 3), IsAt(1, 1, 3), IsAt(-1, 1, 3)));
}

TYPED_TEST(Openings, AreLeftOutWithTheirWall) {
  auto& m = this->model;
  const auto wall = m.Wall("$", m.Body({m.Clipping(m.Extrusion(m.Rectangle(5, 0.2), 3))}));
  this->AddOpening(wall, 0.5);
  this->Convert();
  EXPECT_THAT(this->GetWalls(), IsEmpty());
}

TYPED_TEST(Openings, WithoutANameAreNamedAfterTheirNumber) {
  auto& m = this->model;
  const auto slab = this->AddSlab();
  const auto opening = m.AddAs(99, ModelBuilder::ProductText("IFCOPENINGELEMENT", "$", "$", ""));
  m.Voids(slab, opening);
  m.Voids(slab, "#12345");
  this->Convert();
  EXPECT_THAT(this->NamesOf(this->HolesOf(*this->GetPlates().at(0))), ElementsAre(L"IFC#99"));
}

}  // namespace
}  // namespace KelIFC
