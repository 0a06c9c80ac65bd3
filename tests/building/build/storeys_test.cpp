#include "kelifc/building/build/storeys.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/building/build/made_facts.h"

namespace KelIFC::building {
namespace {

std::vector<BuildingStorey> Arranged(std::vector<BuildingStorey> storeys) {
  ArrangeStoreys(storeys);
  return storeys;
}

BuildingElement Between(double low, double high) {
  BuildingElement element;
  element.className = "IfcWall";
  element.body.box = {{0.0, 0.0, low}, {1.0, 1.0, high}};
  return element;
}

BuildingElement SlabWithTop(double top) {
  BuildingElement slab = Between(top - 0.2, top);
  slab.className = "IfcSlab";
  slab.kind = ElementKind::kSurface;
  slab.surface.emplace();
  slab.surface->normal = {0.0, 0.0, 1.0};
  return slab;
}

TEST(Storeys, AreSortedByElevationAndThenInTheOrderOfTheFile) {
  const auto storeys = Arranged({Storey(1, 3.0), Storey(2, 0.0), Storey(3, 3.0), Storey(4, -2.5)});
  ASSERT_EQ(storeys.size(), 4u);
  EXPECT_EQ(storeys[0].id, 4u);
  EXPECT_EQ(storeys[1].id, 2u);
  EXPECT_EQ(storeys[2].id, 1u);
  EXPECT_EQ(storeys[3].id, 3u);
}

TEST(Storeys, HeightReachesToTheNextHigherStorey) {
  const auto storeys = Arranged({Storey(1, 0.0), Storey(2, 2.75), Storey(3, 2.75), Storey(4, 6.0)});
  EXPECT_EQ(storeys[0].height, 2.75);
  EXPECT_EQ(storeys[1].height, 3.25);
  EXPECT_EQ(storeys[2].height, 3.25);
  EXPECT_EQ(storeys[3].height, std::nullopt);
}

TEST(Storeys, AnElevationThatIsNotFiniteIsMissing) {
  const auto storeys =
      Arranged({Storey(1, std::numeric_limits<double>::quiet_NaN()),
                Storey(2, std::numeric_limits<double>::infinity()), Storey(3, -1.0)});
  EXPECT_EQ(storeys[0].id, 3u);
  EXPECT_FALSE(storeys[1].hasElevation);
  EXPECT_EQ(storeys[1].elevation, 0.0);
  EXPECT_EQ(storeys[1].height, std::nullopt);
  EXPECT_EQ(StoreysByHeight(storeys).Find(Between(5.0, 6.0)), 3u);
}

class FourStoreys : public testing::Test {
 protected:
  const std::vector<BuildingStorey> storeys =
      Arranged({Storey(10, -3.0), Storey(11, 0.0), Storey(12, 3.0), Storey(13, 6.0)});
  const StoreysByHeight byHeight{storeys};
};

TEST_F(FourStoreys, TheLowestPointDecides) {
  EXPECT_EQ(byHeight.Find(Between(0.0, 3.0)), 11u);
  EXPECT_EQ(byHeight.Find(Between(1.0, 9.0)), 11u);
  EXPECT_EQ(byHeight.Find(Between(100.0, 101.0)), 13u);
}

TEST_F(FourStoreys, AnElementFromTheStructuralFloorIsInTheStoreyAbove) {
  EXPECT_EQ(byHeight.Find(Between(2.75, 5.8)), 12u);
  EXPECT_EQ(byHeight.Find(Between(2.65, 5.8)), 11u);
}

TEST_F(FourStoreys, ABeamBelowTheFloorStaysInItsStorey) {
  EXPECT_EQ(byHeight.Find(Between(2.75, 3.0)), 11u);
}

TEST_F(FourStoreys, AHorizontalSlabIsInTheStoreyThatItCarries) {
  EXPECT_EQ(byHeight.Find(SlabWithTop(3.0)), 12u);
  EXPECT_EQ(byHeight.Find(SlabWithTop(2.85)), 12u);
  EXPECT_EQ(byHeight.Find(SlabWithTop(2.5)), 11u);
}

TEST_F(FourStoreys, ASlopingSlabGoesByItsLowestPoint) {
  BuildingElement roof = SlabWithTop(6.0);
  roof.body.box.min.z = 3.1;
  roof.surface->normal = {0.0, 0.6, 0.8};
  EXPECT_EQ(byHeight.Find(roof), 12u);
}

TEST_F(FourStoreys, AnElementBelowAllIsInTheLowest) {
  EXPECT_EQ(byHeight.Find(Between(-9.0, -8.0)), 10u);
}

TEST(StoreysByHeight, PrefersTheStatedOneOfEqualStoreys) {
  const StoreysByHeight byHeight(Arranged({Storey(1, 0.0), Storey(2, 0.0), Storey(3, 0.0)}));
  BuildingElement element = Between(0.0, 1.0);
  EXPECT_EQ(byHeight.Find(element), 1u);
  element.storey = 2;
  EXPECT_EQ(byHeight.Find(element), 2u);
}

TEST(StoreysByHeight, FindsNothingWithoutStoreysOrWithoutABox) {
  EXPECT_EQ(StoreysByHeight({}).Find(Between(0.0, 1.0)), 0u);
  EXPECT_EQ(StoreysByHeight(Arranged({Storey(1, 0.0)})).Find(BuildingElement()), 0u);
}

}  // namespace
}  // namespace KelIFC::building
