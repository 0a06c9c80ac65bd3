#include <gtest/gtest.h>

#include <cmath>

#include "tests/import/structure_reader.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Release>
class Plates : public ConversionTest<Release> {
 protected:
  ModelBuilder::Ref AddSlab(const ModelBuilder::Ref& item, const std::string& name = "A") {
    return this->model.Slab("$", this->model.Body({item}), name);
  }

  /// Converts the model and returns the points of the only plate.
  std::vector<Coordinates> Contour() {
    const auto plates = this->GetPlates();
    return plates.size() == 1 ? PointsOf(*plates[0]) : std::vector<Coordinates>();
  }

  /// A triangle with the right angle at the origin.
  ModelBuilder::Ref Triangle() {
    return this->model.Outline(this->model.PolyLine({{0, 0}, {4, 0}, {0, 3}, {0, 0}}));
  }
};
TYPED_TEST_SUITE(Plates, ConvertedReleases);

TYPED_TEST(Plates, LieInTheMiddleOfTheirThickness) {
  auto& m = this->model;
  const auto placement = m.Local(m.Placement({0, 0, 10}));
  m.Slab(placement, m.Body({m.Extrusion(this->Triangle(), 0.3)}));
  this->Convert();
  const auto plate = Only(this->GetPlates());
  EXPECT_THAT(PointsOf(*plate),
              ElementsAre(IsAt(0, 0, 10.15), IsAt(4, 0, 10.15), IsAt(0, 3, 10.15)));
  EXPECT_EQ(this->SectionOf(*plate), L"IFC_H_30");
}

TYPED_TEST(Plates, AreThinnerThanTheDepthOfAnObliqueExtrusion) {
  auto& m = this->model;
  const auto position = m.Placement({0, 0, 0});
  this->AddSlab(m.Extrusion(this->Triangle(), position, m.Direction({1, 0, 1}), 1));
  this->Convert();
  const double half = std::sqrt(0.5) / 2;
  EXPECT_THAT(this->Contour(),
              ElementsAre(IsAt(half, 0, half), IsAt(4 + half, 0, half), IsAt(half, 3, half)));
  EXPECT_THAT(this->SectionNames(), ElementsAre(L"IFC_H_70.7"));
}

TYPED_TEST(Plates, WithoutADirectionStayInTheirPlaneAndKeepTheirDepth) {
  auto& m = this->model;
  this->AddSlab(m.Extrusion(this->Triangle(), m.Placement({0, 0, 0}), "$", 0.3));
  this->Convert();
  EXPECT_THAT(this->Contour(), ElementsAre(IsAt(0, 0, 0), IsAt(4, 0, 0), IsAt(0, 3, 0)));
  EXPECT_THAT(this->SectionNames(), ElementsAre(L"IFC_H_30"));
}

TYPED_TEST(Plates, OfARectangleTurnCounterClockwise) {
  auto& m = this->model;
  const auto profile = m.Rectangle(4, 2, m.Placement2D({10, 0}, m.Direction({0, 1})));
  this->AddSlab(m.Extrusion(profile, 0.2));
  this->Convert();
  EXPECT_THAT(this->Contour(),
              ElementsAre(IsAt(11, -2, 0.1), IsAt(11, 2, 0.1), IsAt(9, 2, 0.1), IsAt(9, -2, 0.1)));
}

TYPED_TEST(Plates, KeepTheSenseOfTheOutline) {
  auto& m = this->model;
  const auto line = m.PolyLine({{0, 0}, {0, 3}, {4, 0}, {0, 0}});
  this->AddSlab(m.Extrusion(m.Outline(line), 0.2));
  this->Convert();
  EXPECT_THAT(this->Contour(), ElementsAre(IsAt(0, 0, 0.1), IsAt(0, 3, 0.1), IsAt(4, 0, 0.1)));
}

TYPED_TEST(Plates, StopAtTheFirstSlabWithoutASolid) {
  auto& m = this->model;
  const auto body = m.Body({m.Extrusion(this->Triangle(), 0.2)});
  m.Slab("$", body, "1");
  m.Slab("$", body, "2");
  m.Slab("$", "$", "3");
  m.Slab("$", body, "4");
  m.Slab("$", body, "5");
  this->Convert();
  EXPECT_THAT(this->NamesOf(this->GetPlates()), ElementsAre(L"1", L"2"));
}

TYPED_TEST(Plates, StopAtASlabWithAnUnknownItem) {
  auto& m = this->model;
  this->AddSlab(m.Add("IFCBOUNDINGBOX(" + m.Point({0, 0, 0}) + ",1.,1.,1.)"));
  this->AddSlab(m.Extrusion(this->Triangle(), 0.2));
  this->Convert();
  EXPECT_THAT(this->GetPlates(), IsEmpty());
}

TYPED_TEST(Plates, SkipSlabsWithOtherSolids) {
  auto& m = this->model;
  this->AddSlab(m.Add("IFCFACETEDBREP($)"), "faceted");
  this->AddSlab(m.Clipping(m.Extrusion(this->Triangle(), 0.2)), "clipped");
  this->AddSlab(m.Add("IFCSHELLBASEDSURFACEMODEL(())"), "surface");
  this->AddSlab(m.Extrusion(m.Circle(1), 0.2), "circle");
  this->AddSlab(m.Extrusion(m.Outline(m.PolyLine({{0, 0}, {1, 0}, {0, 0}})), 0.2), "two points");
  this->AddSlab(m.Extrusion(this->Triangle(), 0.2), "last");
  this->Convert();
  EXPECT_THAT(this->NamesOf(this->GetPlates()), ElementsAre(L"last"));
}

TYPED_TEST(Plates, TakeAnyRepresentationWithAnExtrusion) {
  auto& m = this->model;
  const auto first = m.Representation({m.Add("IFCFACETEDBREP($)")}, "Body");
  const auto second = m.Representation({m.Extrusion(this->Triangle(), 0.2)}, "FootPrint");
  m.Slab("$", m.Shape({first, second}));
  this->Convert();
  EXPECT_EQ(this->GetPlates().size(), 1u);
}

TYPED_TEST(Plates, IgnoreHolesOfTheirProfile) {
  auto& m = this->model;
  const auto outer = m.PolyLine({{0, 0}, {4, 0}, {0, 3}, {0, 0}});
  const auto inner = m.PolyLine({{1, 1}, {2, 1}, {1, 2}, {1, 1}});
  const auto profile =
      m.Add("IFCARBITRARYPROFILEDEFWITHVOIDS(.AREA.,$," + outer + ",(" + inner + "))");
  this->AddSlab(m.Extrusion(profile, 0.2));
  this->Convert();
  EXPECT_EQ(this->Contour().size(), 3u);
}

TYPED_TEST(Plates, AreInMetres) {
  auto& m = this->model;
  m.Project(".MILLI.");
  this->AddSlab(m.Extrusion(m.Rectangle(4000, 2000), 200));
  this->Convert();
  EXPECT_THAT(this->Contour(),
              ElementsAre(IsAt(-2, -1, 0.1), IsAt(2, -1, 0.1), IsAt(2, 1, 0.1), IsAt(-2, 1, 0.1)));
}

}  // namespace
}  // namespace KelIFC
