#include "export/svg/element_form.h"

#include <gtest/gtest.h>

#include "tests/export/svg/made_storeys.h"

namespace KelIFC::exporting::svg {
namespace {

Hatch HatchOfMaterial(const std::string& name, ProfileShape shape = ProfileShape::kRectangle) {
  Building building;
  building.materials.push_back({name});
  building.profiles.push_back(Rectangle(0.4, 0.4));
  building.profiles[0].shape = shape;
  building.elements.push_back(Column(1, 0, {}, 3.0));
  building.elements[0].material = 0;
  return HatchOf(building, building.elements[0]);
}

TEST(ElementForm, TakesTheHatchFromTheNameOfTheMaterial) {
  EXPECT_EQ(HatchOfMaterial("Concrete C30/37"), Hatch::kConcrete);
  EXPECT_EQ(HatchOfMaterial("STAHLBETON"), Hatch::kConcrete);
  EXPECT_EQ(HatchOfMaterial("Concrete Masonry Units"), Hatch::kMasonry);
  EXPECT_EQ(HatchOfMaterial("kalkzandsteen"), Hatch::kMasonry);
  EXPECT_EQ(HatchOfMaterial("Steel S235"), Hatch::kSteel);
  EXPECT_EQ(HatchOfMaterial("Nadelholz"), Hatch::kTimber);
  EXPECT_EQ(HatchOfMaterial("Default"), Hatch::kGeneral);
}

TEST(ElementForm, TakesSectionsForSteelIfTheMaterialIsNotKnown) {
  EXPECT_EQ(HatchOfMaterial("", ProfileShape::kI), Hatch::kSteel);
  EXPECT_EQ(HatchOfMaterial("Default", ProfileShape::kHollowRectangle), Hatch::kSteel);
  EXPECT_EQ(HatchOfMaterial("Glulam", ProfileShape::kI), Hatch::kTimber);
}

TEST(ElementForm, HasAGeneralHatchIfIndicesAreNotValid) {
  Building building;
  building.elements.push_back(Column(1, 0, {}, 3.0));
  building.elements[0].material = 7;
  EXPECT_EQ(HatchOf(building, building.elements[0]), Hatch::kGeneral);
}

TEST(ElementForm, DividesElementsBySlope) {
  BuildingElement column = Column(1, 0, {}, 3.0);
  EXPECT_FALSE(IsLevelMember(column));
  EXPECT_FALSE(IsSloping(column));
  BuildingElement beam = Beam(1, 0, {}, 3.0);
  EXPECT_TRUE(IsLevelMember(beam));
  EXPECT_FALSE(IsSloping(beam));
  beam.member->points[1] = {3.0, 0.0, 2.0};
  EXPECT_TRUE(IsLevelMember(beam));
  EXPECT_TRUE(IsSloping(beam));
  BuildingElement floor = Floor(1, 0, {}, 4.0, 4.0);
  EXPECT_TRUE(IsFlat(floor));
  floor.surface->normal = {0.6, 0.0, 0.8};
  EXPECT_FALSE(IsFlat(floor));
  EXPECT_TRUE(IsSloping(floor));
  EXPECT_FALSE(IsSloping(Wall(1, 0, {}, 4.0, 3.0)));
}

}  // namespace
}  // namespace KelIFC::exporting::svg
