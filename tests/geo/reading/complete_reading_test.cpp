#include "kelifc/geo/reading/complete_reading.h"

#include <gtest/gtest.h>

#include <utility>

#include "kelifc/geo/storey_number.h"

#include "tests/building/made_building.h"

namespace KelIFC {
namespace {

BuildingElement Named(BuildingElement element, const std::string& className) {
  element.className = className;
  return element;
}

BuildingElement BodyOf(const std::string& className) {
  BuildingElement element;
  element.id = 9;
  element.className = className;
  element.body.box = {{0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}};
  return element;
}

ShownAs ShownAsOf(const BuildingElement& element) {
  Building building;
  building.elements.push_back(element);
  return CompleteReading(std::move(building)).ShownAsOf(0);
}

BuildingStorey StoreyAt(std::size_t id, double elevation, bool hasElevation = true) {
  BuildingStorey storey;
  storey.id = id;
  storey.elevation = elevation;
  storey.hasElevation = hasElevation;
  return storey;
}

TEST(CompleteReading, ShowsColumnsAndPilesAsColumnsAndBeamsAndMembersAsBeams) {
  const BuildingElement member = MemberFrom(1, {0.0, 0.0, 0.0});
  EXPECT_EQ(ShownAsOf(Named(member, "IfcColumn")), ShownAs::kColumn);
  EXPECT_EQ(ShownAsOf(Named(member, "IfcPile")), ShownAs::kColumn);
  EXPECT_EQ(ShownAsOf(Named(member, "IfcBeam")), ShownAs::kBeam);
  EXPECT_EQ(ShownAsOf(Named(member, "IfcMember")), ShownAs::kBeam);
}

TEST(CompleteReading, ShowsSurfacesAsWallsAndPlates) {
  const BuildingElement surface = Slab(1, 2.0, 3.0);
  EXPECT_EQ(ShownAsOf(Named(surface, "IfcWall")), ShownAs::kWall);
  EXPECT_EQ(ShownAsOf(Named(surface, "IfcWallStandardCase")), ShownAs::kWall);
  EXPECT_EQ(ShownAsOf(Named(surface, "IfcSlab")), ShownAs::kPlate);
  EXPECT_EQ(ShownAsOf(Named(surface, "IfcPlate")), ShownAs::kPlate);
}

TEST(CompleteReading, ShowsAFootingOfAnyKindAsAFoot) {
  EXPECT_EQ(ShownAsOf(BodyOf("IfcFooting")), ShownAs::kFoot);
}

TEST(CompleteReading, ShowsNothingThatItsCollectionHasNoPointsFor) {
  EXPECT_EQ(ShownAsOf(BodyOf("IfcColumn")), ShownAs::kNothing);
  EXPECT_EQ(ShownAsOf(BodyOf("IfcWall")), ShownAs::kNothing);
  EXPECT_EQ(ShownAsOf(Named(Slab(1, 2.0, 3.0), "IfcBeam")), ShownAs::kNothing);
  EXPECT_EQ(ShownAsOf(Named(MemberFrom(1, {0.0, 0.0, 0.0}), "IfcSlab")), ShownAs::kNothing);
  EXPECT_EQ(ShownAsOf(Named(MemberFrom(1, {0.0, 0.0, 0.0}), "IfcStairFlight")), ShownAs::kNothing);
  BuildingElement curved = Named(Slab(1, 2.0, 3.0), "IfcWall");
  curved.surface->sweep.emplace();
  EXPECT_EQ(ShownAsOf(curved), ShownAs::kNothing);
}

TEST(CompleteReading, ShowsAPartUnlessItsWholeIsShown) {
  Building building;
  building.elements = {Slab(1, 2.0, 3.0), Slab(2, 1.0, 3.0), BodyOf("IfcSlab"), Slab(4, 1.0, 3.0)};
  building.elements[1].partOf = 1;
  building.elements[3].partOf = 9;
  const CompleteReading reading(std::move(building));
  EXPECT_EQ(reading.ShownAsOf(0), ShownAs::kPlate);
  EXPECT_EQ(reading.ShownAsOf(1), ShownAs::kNothing);
  EXPECT_EQ(reading.ShownAsOf(2), ShownAs::kNothing);
  EXPECT_EQ(reading.ShownAsOf(3), ShownAs::kPlate);
}

TEST(CompleteReading, NumbersStoreysFromTheLowestAtOrAboveLevelZero) {
  Building building;
  building.storeys = {StoreyAt(5, -6.0), StoreyAt(6, -3.0), StoreyAt(7, -0.0005), StoreyAt(8, 3.0)};
  const CompleteReading reading(std::move(building));
  EXPECT_EQ(reading.StoreyNumberOf(5), -2);
  EXPECT_EQ(reading.StoreyNumberOf(6), -1);
  EXPECT_EQ(reading.StoreyNumberOf(7), 0);
  EXPECT_EQ(reading.StoreyNumberOf(8), 1);
}

TEST(CompleteReading, HasNoNumberForAStoreyWithoutElevationAndForNoStorey) {
  Building building;
  building.storeys = {StoreyAt(5, 0.0, false), StoreyAt(6, 0.0), StoreyAt(7, 3.0)};
  const CompleteReading reading(std::move(building));
  EXPECT_EQ(reading.StoreyNumberOf(5), kNoStoreyNumber);
  EXPECT_EQ(reading.StoreyNumberOf(6), 0);
  EXPECT_EQ(reading.StoreyNumberOf(7), 1);
  EXPECT_EQ(reading.StoreyNumberOf(0), kNoStoreyNumber);
  EXPECT_EQ(reading.FindStorey(0), nullptr);
  ASSERT_NE(reading.FindStorey(7), nullptr);
  EXPECT_EQ(reading.FindStorey(7)->elevation, 3.0);
}

}  // namespace
}  // namespace KelIFC
