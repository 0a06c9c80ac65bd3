#include "export/svg/plan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "tests/export/svg/made_storeys.h"

namespace KelIFC::exporting::svg {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::SizeIs;

// Two storeys at 0 and at 3 m.
Building TwoStoreys() {
  Building building;
  building.storeys = {StoreyAt(1, 0.0), StoreyAt(2, 3.0)};
  building.storeys[0].height = 3.0;
  building.profiles.push_back(Rectangle(0.4, 0.4));
  return building;
}

// The elements of a plan with their looks.
std::vector<std::pair<std::size_t, Look>> ItemsOf(const Plan& plan) {
  std::vector<std::pair<std::size_t, Look>> items;
  for (const PlanItem& item : plan.items) items.emplace_back(item.element, item.look);
  return items;
}

TEST(Plans, CutEachStoreyAbove1200Millimetres) {
  const Building building = TwoStoreys();
  const PlanSet set = ArrangePlans(building);
  ASSERT_THAT(set.plans, SizeIs(2));
  EXPECT_EQ(set.plans[0].storey, &building.storeys[0]);
  EXPECT_DOUBLE_EQ(set.plans[0].cut, 1.2);
  EXPECT_DOUBLE_EQ(set.plans[1].floor, 3.0);
  EXPECT_DOUBLE_EQ(set.plans[1].cut, 4.2);
}

TEST(Plans, CutALowStoreyLower) {
  Building building = TwoStoreys();
  building.storeys[0].height = 1.0;
  building.storeys[1].elevation = 1.0;
  EXPECT_DOUBLE_EQ(ArrangePlans(building).plans[0].cut, 0.6);
}

TEST(Plans, ShowElementsByTheirHeight) {
  Building building = TwoStoreys();
  building.elements = {Column(10, 1, {0.0, 0.0, 0.0}, 2.8), Floor(11, 1, {}, 4.0, 4.0),
                       Beam(12, 1, {0.0, 0.0, 2.6}, 4.0), Column(13, 1, {0.0, 0.0, -1.0}, 0.8),
                       Column(14, 1, {0.0, 0.0, 0.0}, 0.8)};
  const PlanSet set = ArrangePlans(building);
  EXPECT_THAT(ItemsOf(set.plans[0]),
              ElementsAre(Pair(0, Look::kCut), Pair(1, Look::kBelow), Pair(2, Look::kAbove),
                          Pair(3, Look::kHidden), Pair(4, Look::kBelow)));
  EXPECT_THAT(set.plans[1].items, IsEmpty());
}

TEST(Plans, CutAColumnOnEachStoreyThatItCrosses) {
  Building building = TwoStoreys();
  building.elements = {Column(10, 1, {}, 6.0)};
  const PlanSet set = ArrangePlans(building);
  EXPECT_THAT(ItemsOf(set.plans[0]), ElementsAre(Pair(0, Look::kCut)));
  EXPECT_THAT(ItemsOf(set.plans[1]), ElementsAre(Pair(0, Look::kCut)));
}

TEST(Plans, CutAnElementOnceIfStoreysOfSeveralBuildingsHaveTheSameHeights) {
  Building building = TwoStoreys();
  building.storeys = {StoreyAt(1, 0.0), StoreyAt(101, 0.0), StoreyAt(2, 3.0), StoreyAt(102, 3.0)};
  building.elements = {Column(10, 1, {}, 6.0), Column(110, 101, {}, 6.0),
                       Beam(111, 102, {0.0, 0.0, 2.7}, 4.0)};
  const PlanSet set = ArrangePlans(building);
  ASSERT_THAT(set.plans, SizeIs(4));
  EXPECT_THAT(ItemsOf(set.plans[0]), ElementsAre(Pair(0, Look::kCut)));
  EXPECT_THAT(ItemsOf(set.plans[1]), ElementsAre(Pair(1, Look::kCut), Pair(2, Look::kAbove)));
  EXPECT_THAT(ItemsOf(set.plans[2]), ElementsAre(Pair(0, Look::kCut)));
  EXPECT_THAT(ItemsOf(set.plans[3]), ElementsAre(Pair(1, Look::kCut), Pair(2, Look::kHidden)));
}

TEST(Plans, ShowABeamOfAFloorAlsoAboveTheStoreyUnderIt) {
  Building building = TwoStoreys();
  building.elements = {Beam(10, 2, {0.0, 0.0, 2.7}, 4.0)};
  const PlanSet set = ArrangePlans(building);
  EXPECT_THAT(ItemsOf(set.plans[0]), ElementsAre(Pair(0, Look::kAbove)));
  EXPECT_TRUE(set.plans[0].items[0].hasLabel);
  EXPECT_THAT(ItemsOf(set.plans[1]), ElementsAre(Pair(0, Look::kHidden)));
  EXPECT_FALSE(set.plans[1].items[0].hasLabel);
}

TEST(Plans, ShowACeilingAlsoAsTheFloorOfTheStoreyAboveIt) {
  Building building = TwoStoreys();
  building.elements = {Floor(10, 1, {0.0, 0.0, 3.0}, 4.0, 4.0)};
  building.elements[0].storeyByHeight = 2;
  const PlanSet set = ArrangePlans(building);
  EXPECT_THAT(ItemsOf(set.plans[0]), ElementsAre(Pair(0, Look::kAbove)));
  EXPECT_THAT(ItemsOf(set.plans[1]), ElementsAre(Pair(0, Look::kBelow)));
}

TEST(Plans, ShowAnElementFarOutsideOfItsStoreyByItsHeight) {
  Building building = TwoStoreys();
  building.elements = {Column(10, 1, {0.0, 0.0, 3.5}, 2.0)};
  building.elements[0].storeyByHeight = 2;
  const PlanSet set = ArrangePlans(building);
  EXPECT_THAT(set.plans[0].items, IsEmpty());
  EXPECT_THAT(ItemsOf(set.plans[1]), ElementsAre(Pair(0, Look::kCut)));
}

TEST(Plans, HaveOneForElementsWithoutAStorey) {
  Building building = TwoStoreys();
  building.elements = {Column(10, 0, {0.0, 0.0, 7.0}, 2.0), Column(11, 99, {0.0, 0.0, 7.5}, 3.0)};
  const PlanSet set = ArrangePlans(building);
  ASSERT_THAT(set.plans, SizeIs(3));
  EXPECT_EQ(set.plans[0].storey, nullptr);
  EXPECT_DOUBLE_EQ(set.plans[0].floor, 7.0);
  EXPECT_THAT(ItemsOf(set.plans[0]), ElementsAre(Pair(0, Look::kCut), Pair(1, Look::kCut)));
}

TEST(Plans, TakeTheFloorFromTheElementsIfThereIsNoElevation) {
  Building building;
  building.storeys = {StoreyAt(1, 0.0)};
  building.storeys[0].hasElevation = false;
  building.elements = {Column(10, 1, {0.0, 0.0, 5.0}, 3.0)};
  const PlanSet set = ArrangePlans(building);
  EXPECT_DOUBLE_EQ(set.plans[0].floor, 5.0);
  EXPECT_DOUBLE_EQ(set.plans[0].cut, 6.2);
}

TEST(Plans, TakeTheFloorsFromTheElementsIfAllElevationsAreEqual) {
  Building building;
  building.storeys = {StoreyAt(1, 0.0), StoreyAt(2, 0.0)};
  building.elements = {Column(10, 1, {0.0, 0.0, 3.0}, 2.0), Column(11, 2, {}, 2.0)};
  const PlanSet set = ArrangePlans(building);
  EXPECT_EQ(set.plans[0].storey, &building.storeys[1]);
  EXPECT_DOUBLE_EQ(set.plans[0].cut, 1.2);
  EXPECT_EQ(set.plans[1].storey, &building.storeys[0]);
  EXPECT_DOUBLE_EQ(set.plans[1].cut, 4.2);
}

TEST(Plans, KeepTheCutUnderTheBeamsOfTheHighestStorey) {
  Building building;
  building.storeys = {StoreyAt(1, 0.0)};
  building.elements = {Beam(10, 1, {0.0, 0.0, 2.8}, 4.0)};
  EXPECT_DOUBLE_EQ(ArrangePlans(building).plans[0].cut, 1.2);
}

TEST(Plans, DoNotRepeatAnElementInStoreysOfEqualHeight) {
  Building building;
  building.storeys = {StoreyAt(1, 0.0), StoreyAt(2, 0.0)};
  building.elements = {Column(10, 1, {}, 3.0), Column(11, 2, {5.0, 0.0, 0.0}, 3.0)};
  const PlanSet set = ArrangePlans(building);
  EXPECT_THAT(ItemsOf(set.plans[0]), ElementsAre(Pair(0, Look::kCut)));
  EXPECT_THAT(ItemsOf(set.plans[1]), ElementsAre(Pair(1, Look::kCut)));
}

TEST(Plans, LeaveOutElementsWithoutABox) {
  Building building = TwoStoreys();
  building.elements = {Column(10, 1, {}, 3.0), Column(11, 1, {}, 3.0)};
  building.elements[0].box = {};
  building.elements[1].box.max.x = std::numeric_limits<double>::infinity();
  EXPECT_THAT(ArrangePlans(building).plans[0].items, IsEmpty());
}

TEST(Plans, LimitTheCutsOfElementsThatCrossVeryManyStoreys) {
  Building building;
  constexpr std::size_t kStoreys = 20'000;
  for (std::size_t i = 0; i < kStoreys; ++i) {
    building.storeys.push_back(StoreyAt(i + 1, 3.0 * static_cast<double>(i)));
  }
  for (std::size_t i = 0; i < 100; ++i) {
    building.elements.push_back(Column(100'000 + i, 1, {}, 3.0 * kStoreys));
  }
  const PlanSet set = ArrangePlans(building);
  std::size_t items = 0;
  for (const Plan& plan : set.plans) items += plan.items.size();
  EXPECT_EQ(items, 100U + 100'000U + 100U * 20U);
  EXPECT_EQ(items + set.leftOutCuts, 100U * kStoreys);
}

}  // namespace
}  // namespace KelIFC::exporting::svg
