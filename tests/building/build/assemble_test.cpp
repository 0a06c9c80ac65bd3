#include "kelifc/building/build/assemble.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <numbers>

#include "tests/building/build/made_facts.h"

namespace KelIFC::building {
namespace {

Building Assembled(std::vector<ProductFacts> products, const ReadingOptions& options = {}) {
  ModelFacts model;
  model.products = std::move(products);
  return Assemble(std::move(model), options);
}

void ExpectBalance(const Building& building) {
  const BuildingTotals& t = building.totals;
  EXPECT_EQ(t.members + t.surfaces + t.bodies + t.decomposed + t.lost, t.products);
  EXPECT_EQ(t.members + t.surfaces + t.bodies, building.elements.size());
  EXPECT_EQ(t.decomposed, building.decomposed.size());
  EXPECT_EQ(t.lost, building.losses.size());
}

TEST(Assemble, AColumnIsAMemberWithItsIdentity) {
  ProductFacts column = Column(7, MovedTo(5.0, 6.0, 0.0));
  column.tag = "T";
  column.type = "COLUMN";
  column.storey = 3;
  const Building building = Assembled({column});
  ExpectBalance(building);
  ASSERT_EQ(building.totals.members, 1u);
  const BuildingElement& element = building.elements[0];
  EXPECT_EQ(element.id, 7u);
  EXPECT_EQ(element.className, "IfcColumn");
  EXPECT_EQ(element.guid, "guid7");
  EXPECT_EQ(element.name, "name7");
  EXPECT_EQ(element.tag, "T");
  EXPECT_EQ(element.type, "COLUMN");
  EXPECT_EQ(element.storey, 3u);
  EXPECT_EQ(element.source, BodySource::kExtrusion);
  EXPECT_FALSE(element.isApproximate);
  EXPECT_NEAR(element.body.volume, 0.36, 1e-9);
  EXPECT_TRUE(element.body.isClosed);
  EXPECT_NEAR(element.body.box.min.x, 4.85, 1e-9);
}

/// A circle of chords whose first point is at an angle.
ProfilePointer ChordCircle(double radius, double angle) {
  constexpr int kChords = 36;
  auto profile = std::make_shared<ProfileFacts>();
  Region region;
  for (int i = 0; i < kChords; ++i) {
    const double at = angle + 2.0 * std::numbers::pi * i / kChords;
    region.outer.points.emplace_back(radius * std::cos(at), radius * std::sin(at));
  }
  profile->regions = {region};
  return profile;
}

TEST(Assemble, TheProfilesOfATaperedMemberKeepPointsThatCorrespond) {
  Extrusion straight;
  straight.profile = ChordCircle(0.2, 0.0);
  straight.depth = 4.0;
  Extrusion tapered;
  tapered.profile = ChordCircle(0.2, 1.0);
  tapered.endProfile = ChordCircle(0.1, 1.0);
  tapered.depth = 4.0;
  const Building building = Assembled({Product(1, "IfcColumn", {Share({5, straight})}),
                                       Product(2, "IfcColumn", {Share({6, tapered})}),
                                       Product(3, "IfcColumn", {Share({7, tapered})})});
  ASSERT_EQ(building.totals.members, 3u);
  const MemberAxis& member = *building.elements[1].member;
  ASSERT_TRUE(member.endProfile);
  const BuildingProfile& start = building.profiles[member.profile];
  const BuildingProfile& end = building.profiles[*member.endProfile];
  EXPECT_EQ(start.shape, ProfileShape::kCircle);
  ASSERT_EQ(start.outline.size(), end.outline.size());
  for (std::size_t i = 0; i < start.outline.size(); ++i) {
    EXPECT_NEAR(start.outline[i].x, 2.0 * end.outline[i].x, 1e-9);
    EXPECT_NEAR(start.outline[i].y, 2.0 * end.outline[i].y, 1e-9);
  }
  EXPECT_EQ(building.elements[2].member->profile, member.profile);
  EXPECT_EQ(building.elements[2].member->endProfile, member.endProfile);
}

TEST(Assemble, EqualProfilesAndMaterialsAreOneInTheOrderOfTheirFirstUse) {
  ProductFacts thick = Product(1, "IfcColumn", {Block(0.5, 0.5, 3.0)});
  ProductFacts thin = Column(2);
  ProductFacts again = Column(3);
  thick.material.materials = {"steel"};
  thin.material.materials = {"concrete", "steel"};
  again.material.materials = {"steel"};
  const Building building = Assembled({thick, thin, again});
  ASSERT_EQ(building.profiles.size(), 2u);
  EXPECT_EQ(building.elements[0].member->profile, 0u);
  EXPECT_EQ(building.elements[1].member->profile, 1u);
  EXPECT_EQ(building.elements[2].member->profile, 1u);
  ASSERT_EQ(building.materials.size(), 2u);
  EXPECT_EQ(building.materials[0].name, "steel");
  EXPECT_EQ(building.elements[1].material, 1u);
  EXPECT_EQ(building.elements[2].material, 0u);
}

TEST(Assemble, TheMaterialOfLayersIsThatOfTheThickest) {
  ProductFacts wall = Product(1, "IfcWall", {Block(5.0, 0.3, 3.0)});
  wall.material.layers = {{"plaster", true, 0.02},
                          {"", false, 0.5},
                          {"brick", true, 0.24},
                          {"foam", true, std::numeric_limits<double>::quiet_NaN()}};
  const Building building = Assembled({wall});
  ASSERT_EQ(building.totals.surfaces, 1u);
  const BuildingElement& element = building.elements[0];
  ASSERT_EQ(building.materials.size(), 3u);
  EXPECT_EQ(building.materials[*element.material].name, "brick");
  const auto& layers = element.surface->layers;
  ASSERT_EQ(layers.size(), 4u);
  EXPECT_EQ(layers[0].material, 0u);
  EXPECT_EQ(layers[1].material, std::nullopt);
  EXPECT_EQ(layers[1].thickness, 0.5);
  EXPECT_EQ(layers[3].thickness, 0.0);
}

// The normal of a slab points upwards, so the layers of one that is built downwards are reversed.
TEST(Assemble, TheLayersOfASlabFollowItsNormal) {
  for (const bool isUpwards : {true, false}) {
    ProductFacts slab = Product(1, "IfcSlab", {Block(5.0, 4.0, 0.3)});
    slab.material.layers = {{"screed", true, 0.1}, {"concrete", true, 0.2}};
    slab.material.usage = {3, isUpwards, 0.0, true};
    const Building building = Assembled({slab});
    ASSERT_EQ(building.totals.surfaces, 1u);
    ASSERT_EQ(building.materials.size(), 2u);
    EXPECT_EQ(building.materials[0].name, "screed");
    const SurfaceRegion& surface = *building.elements[0].surface;
    EXPECT_NEAR(surface.normal.z, 1.0, 1e-12);
    ASSERT_EQ(surface.layers.size(), 2u);
    const std::size_t screed = isUpwards ? 0 : 1;
    EXPECT_EQ(surface.layers[screed].material, 0u);
    EXPECT_EQ(surface.layers[screed].thickness, 0.1);
    EXPECT_EQ(surface.layers[1 - screed].material, 1u);
    EXPECT_EQ(surface.layers[1 - screed].thickness, 0.2);
  }
}

TEST(Assemble, AProductWithoutItemsIsALoss) {
  ProductFacts nothing = Product(4, "IfcSlab", {});
  ProductFacts empty = Product(5, "IfcSlab", {});
  empty.fault = Unreadable{LossReason::kNoItems, 50};
  const Building building = Assembled({nothing, empty});
  ExpectBalance(building);
  ASSERT_EQ(building.losses.size(), 2u);
  EXPECT_EQ(building.losses[0].reason, LossReason::kNoRepresentation);
  EXPECT_EQ(building.losses[0].at, 4u);
  EXPECT_EQ(building.losses[0].id, 4u);
  EXPECT_EQ(building.losses[0].line, 40u);
  EXPECT_EQ(building.losses[0].className, "IfcSlab");
  EXPECT_EQ(building.losses[0].guid, "guid4");
  EXPECT_EQ(building.losses[0].name, "name4");
  EXPECT_EQ(building.losses[1].reason, LossReason::kNoItems);
  EXPECT_EQ(building.losses[1].at, 50u);
}

TEST(Assemble, AnItemThatCannotBeReadIsTheInstanceAtFault) {
  const Building building =
      Assembled({Product(4, "IfcBeam", {Unknown(LossReason::kUnsupportedProfile, 99)})});
  ASSERT_EQ(building.losses.size(), 1u);
  EXPECT_EQ(building.losses[0].reason, LossReason::kUnsupportedProfile);
  EXPECT_EQ(building.losses[0].at, 99u);
}

TEST(Assemble, AWholeWithoutItemsIsDecomposedIfItsPartsAreProducts) {
  ProductFacts whole = Product(1, "IfcSlab", {});
  whole.hasProductParts = true;
  whole.fault = Unreadable{LossReason::kNoRepresentation, 1};
  ProductFacts part = Column(2);
  part.whole = 1;
  const Building building = Assembled({whole, part});
  ExpectBalance(building);
  ASSERT_EQ(building.decomposed.size(), 1u);
  EXPECT_EQ(building.decomposed[0].id, 1u);
  EXPECT_EQ(building.decomposed[0].className, "IfcSlab");
  EXPECT_EQ(building.elements[0].partOf, 0u);
}

TEST(Assemble, AWholeWithABrokenShapeIsALossAndNotDecomposed) {
  ProductFacts whole = Product(1, "IfcSlab", {});
  whole.hasProductParts = true;
  whole.fault = Unreadable{LossReason::kDangling, 8};
  const Building building = Assembled({whole});
  ASSERT_EQ(building.losses.size(), 1u);
  EXPECT_EQ(building.losses[0].reason, LossReason::kDangling);
}

TEST(Assemble, PartsAreThoseOfTheNearestElementAbove) {
  ProductFacts wall = Product(1, "IfcWall", {Block(5.0, 0.3, 3.0)});
  wall.hasProductParts = true;
  ProductFacts group = Product(2, "IfcElementAssembly", {});
  group.hasProductParts = true;
  group.whole = 1;
  ProductFacts stud = Column(3);
  stud.whole = 2;
  ProductFacts bolt = Column(4);
  bolt.whole = 3;
  const Building building = Assembled({wall, group, stud, bolt});
  ExpectBalance(building);
  ASSERT_EQ(building.elements.size(), 3u);
  EXPECT_EQ(building.elements[0].partOf, 0u);
  EXPECT_EQ(building.elements[1].partOf, 1u);
  EXPECT_EQ(building.elements[2].partOf, 3u);
}

TEST(Assemble, ProductsThatAreTheirOwnPartsArePartsOfNothing) {
  std::vector<ProductFacts> products;
  for (std::size_t id = 1; id <= 200; ++id) {
    products.push_back(Column(id));
    products.back().whole = id == 200 ? 1 : id + 1;
  }
  products[0].whole = 1;
  products.push_back(Column(300));
  products.back().whole = 1;
  const Building building = Assembled(std::move(products));
  EXPECT_EQ(building.elements[0].partOf, 0u);
  EXPECT_EQ(building.elements[200].partOf, 1u);
  EXPECT_EQ(building.elements[1].partOf, 0u);  // the chain is longer than the deepest nesting
}

TEST(Assemble, BodiesAreKeptAsTheOptionsSay) {
  const SolidPointer near = Block(1.0, 1.0, 1.0);
  const std::vector<ProductFacts> products = {
      Column(1), Product(2, "IfcFooting", {near, Mapped({near}, MovedTo(5.0, 0.0, 0.0))})};
  ReadingOptions options;
  options.keptBodies = KeptBodies::kNone;
  EXPECT_EQ(Assembled(products, options).elements[1].body.mesh, nullptr);
  options.keptBodies = KeptBodies::kOfBodies;
  const Building some = Assembled(products, options);
  EXPECT_EQ(some.elements[0].body.mesh, nullptr);
  ASSERT_EQ(some.elements[1].kind, ElementKind::kBody);
  EXPECT_EQ(some.elements[1].source, BodySource::kMulti);
  ASSERT_NE(some.elements[1].body.mesh, nullptr);
  EXPECT_EQ(some.elements[1].body.mesh->points.size(), 16u);
  options.keptBodies = KeptBodies::kAll;
  EXPECT_NE(Assembled(products, options).elements[0].body.mesh, nullptr);
}

TEST(Assemble, WhatIsBeyondTheLimitIsALoss) {
  std::vector<ProductFacts> products;
  for (std::size_t id = 1; id <= 10; ++id) products.push_back(Column(id));
  ReadingOptions options;
  options.maxPoints = 44;  // columns have 8 points
  const Building building = Assembled(std::move(products), options);
  ExpectBalance(building);
  EXPECT_EQ(building.totals.members, 5u);
  ASSERT_EQ(building.totals.lost, 5u);
  for (const BuildingLoss& loss : building.losses) EXPECT_EQ(loss.reason, LossReason::kLimit);
}

TEST(Assemble, CoordinatesThatAreNotFiniteAreALoss) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const Building building =
      Assembled({Column(1, MovedTo(nan, 0.0, 0.0)), Product(2, "IfcBeam", {Block(nan, 1.0, 1.0)})});
  ExpectBalance(building);
  EXPECT_EQ(building.totals.lost, 2u);
  EXPECT_EQ(building.losses[0].reason, LossReason::kNotFinite);
}

TEST(Assemble, StoreysAreArrangedAndElementsAreInOneByHeight) {
  ModelFacts model;
  model.head.storeys = {Storey(20, 3.0), Storey(21, 0.0)};
  model.products = {Column(1), Column(2, MovedTo(0.0, 0.0, 2.9))};
  const Building building = Assemble(std::move(model), {});
  EXPECT_EQ(building.storeys[0].id, 21u);
  EXPECT_EQ(building.elements[0].storeyByHeight, 21u);
  EXPECT_EQ(building.elements[1].storeyByHeight, 20u);
}

TEST(Assemble, AnOpeningBelongsToItsElementAndIsNotCutOut) {
  ProductFacts wall = Product(1, "IfcWall", {Block(5.0, 0.2, 3.0)});
  OpeningFacts opening;
  opening.id = 2;
  opening.kind = OpeningKind::kDoor;
  opening.items = {Block(1.0, 0.5, 2.0)};
  wall.openings = {opening};
  const Building building = Assembled({wall});
  const BuildingElement& element = building.elements[0];
  EXPECT_NEAR(element.volume, 3.0, 1e-9);
  EXPECT_NEAR(element.body.volume, 3.0, 1e-9);
  ASSERT_EQ(element.openings.size(), 1u);
  EXPECT_EQ(element.openings[0].kind, OpeningKind::kDoor);
  EXPECT_NEAR(element.openings[0].depth, 0.5, 1e-9);
  EXPECT_EQ(element.openings[0].outline.size(), 4u);
}

TEST(Assemble, AnEmptyModelIsAnEmptyBuilding) {
  const Building building = Assembled({});
  ExpectBalance(building);
  EXPECT_EQ(building.totals.products, 0u);
}

}  // namespace
}  // namespace KelIFC::building
