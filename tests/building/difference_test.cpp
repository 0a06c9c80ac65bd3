#include "kelifc/building/difference.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/building/made_building.h"

namespace KelIFC {
namespace {

using Ids = std::vector<std::size_t>;

Building Of(std::vector<BuildingElement> elements) {
  Building building;
  building.profiles = {Circle(0.3, "C30"), Circle(0.4, "C40"), Circle(0.31, "C30")};
  building.elements = std::move(elements);
  return building;
}

/// The same element in a file that gives everything new identifiers.
BuildingElement Renumbered(BuildingElement element) {
  element.id += 1000;
  element.guid += "new";
  return element;
}

ElementChange OnlyChange(const BuildingElement& before, const BuildingElement& after) {
  const BuildingDifference difference = Compare(Of({before}), Of({after}));
  EXPECT_EQ(difference.changed.size(), 1u);
  return difference.changed.empty() ? ElementChange() : difference.changed.front();
}

TEST(Difference, OfABuildingFromItselfIsNothing) {
  const Building building = Of({MemberFrom(1, {}), MemberFrom(2, {}), Slab(3, 5.0, 4.0)});
  const BuildingDifference difference = Compare(building, building);
  EXPECT_EQ(difference.same, 3u);
  EXPECT_TRUE(difference.added.empty());
  EXPECT_TRUE(difference.removed.empty());
  EXPECT_TRUE(difference.changed.empty());
}

TEST(Difference, ListsWhatWasAddedAndRemoved) {
  const BuildingDifference difference =
      Compare(Of({MemberFrom(1, {}), MemberFrom(2, {5.0, 0.0, 0.0})}),
              Of({MemberFrom(2, {5.0, 0.0, 0.0}), MemberFrom(3, {9.0, 0.0, 0.0})}));
  EXPECT_EQ(difference.removed, Ids{1});
  EXPECT_EQ(difference.added, Ids{3});
  EXPECT_EQ(difference.same, 1u);
}

TEST(Difference, AMemberThatMovesKeepsItsGuid) {
  const ElementChange change = OnlyChange(MemberFrom(1, {}), MemberFrom(1, {0.0, 7.0, 0.0}));
  EXPECT_EQ(change.matchedBy, MatchedBy::kGuid);
  EXPECT_EQ(change.oldId, 1u);
  EXPECT_EQ(change.newId, 1u);
  EXPECT_DOUBLE_EQ(change.moved, 7.0);
  EXPECT_EQ(change.rotated, 0.0);
  EXPECT_EQ(change.profile, std::nullopt);
  EXPECT_EQ(change.length, std::nullopt);
}

TEST(Difference, AMemberThatGrowsAtOneEndDidNotMove) {
  const ElementChange change = OnlyChange(MemberFrom(1, {}, 3.0), MemberFrom(1, {}, 3.5));
  EXPECT_EQ(change.moved, 0.0);
  EXPECT_EQ(change.length, std::make_pair(3.0, 3.5));
}

TEST(Difference, AMemberDrawnFromItsOtherEndIsTheSame) {
  BuildingElement reversed = MemberFrom(1, {});
  std::swap(reversed.member->points[0], reversed.member->points[1]);
  EXPECT_EQ(Compare(Of({MemberFrom(1, {})}), Of({reversed})).same, 1u);
}

TEST(Difference, AProfileThatTurnsAboutTheAxisIsARotation) {
  BuildingElement turned = MemberFrom(1, {});
  turned.member->y = {0.0, 1.0, 0.0};
  EXPECT_NEAR(OnlyChange(MemberFrom(1, {}), turned).rotated, std::acos(0.0), 1e-12);
}

TEST(Difference, NamesTheProfilesThatDiffer) {
  const ElementChange change = OnlyChange(MemberFrom(1, {}, 3.0, 0), MemberFrom(1, {}, 3.0, 1));
  EXPECT_EQ(change.profile, std::make_pair(std::string("C30"), std::string("C40")));
}

TEST(Difference, ShowsTheSizesOfProfilesWithTheSameName) {
  const ElementChange change = OnlyChange(MemberFrom(1, {}, 3.0, 0), MemberFrom(1, {}, 3.0, 2));
  EXPECT_EQ(change.profile,
            std::make_pair(std::string("C30 (circle d=300)"), std::string("C30 (circle d=310)")));
}

TEST(Difference, ASurfaceHasAThicknessAndTheLengthOfItsOutline) {
  const ElementChange change = OnlyChange(Slab(1, 5.0, 4.0, 0.2), Slab(1, 5.0, 4.5, 0.25));
  EXPECT_EQ(change.profile,
            std::make_pair(std::string("thickness=200"), std::string("thickness=250")));
  EXPECT_EQ(change.length, std::make_pair(18.0, 19.0));
}

TEST(Difference, TheNormalOfASurfaceHasNoSign) {
  BuildingElement flipped = Slab(1, 5.0, 4.0);
  flipped.surface->normal = {0.0, 0.0, -1.0};
  EXPECT_EQ(Compare(Of({Slab(1, 5.0, 4.0)}), Of({flipped})).same, 1u);
  flipped.surface->normal = {0.0, 0.6, 0.8};
  EXPECT_NEAR(OnlyChange(Slab(1, 5.0, 4.0), flipped).rotated, std::acos(0.8), 1e-12);
}

TEST(Difference, ElementsWithoutACommonGuidAreMatchedByGeometry) {
  std::vector<BuildingElement> before;
  std::vector<BuildingElement> after;
  for (std::size_t i = 0; i < 50; ++i) {
    before.push_back(MemberFrom(i + 1, {static_cast<double>(i), 0.0, 0.0}));
    after.push_back(Renumbered(MemberFrom(i + 1, {static_cast<double>(i) + 0.1, 0.0, 0.0})));
  }
  const BuildingDifference difference = Compare(Of(before), Of(after));
  ASSERT_EQ(difference.changed.size(), 50u);
  for (const ElementChange& change : difference.changed) {
    EXPECT_EQ(change.newId, change.oldId + 1000);
    EXPECT_EQ(change.matchedBy, MatchedBy::kGeometry);
    EXPECT_NEAR(change.moved, 0.1, 1e-12);
  }
}

TEST(Difference, ByGeometryTheSameSectionIsPreferredToTheNearest) {
  const BuildingDifference difference = Compare(
      Of({MemberFrom(1, {}, 3.0, 0)}), Of({Renumbered(MemberFrom(2, {0.01, 0.0, 0.0}, 3.0, 1)),
                                           Renumbered(MemberFrom(3, {0.2, 0.0, 0.0}, 3.0, 0))}));
  ASSERT_EQ(difference.changed.size(), 1u);
  EXPECT_EQ(difference.changed[0].newId, 1003u);
  EXPECT_EQ(difference.added, Ids{1002});
}

TEST(Difference, ByGeometryNothingFarOrOfAnotherClassIsMatched) {
  BuildingElement beam = Renumbered(MemberFrom(1, {}));
  beam.className = "IfcBeam";
  const BuildingDifference difference =
      Compare(Of({MemberFrom(1, {})}), Of({beam, Renumbered(MemberFrom(2, {0.6, 0.0, 0.0}))}));
  EXPECT_EQ(difference.removed, Ids{1});
  EXPECT_EQ(difference.added, (Ids{1001, 1002}));
}

TEST(Difference, RepeatedGuidsAreMatchedInTheirOrder) {
  BuildingElement first = MemberFrom(1, {});
  BuildingElement second = MemberFrom(2, {5.0, 0.0, 0.0});
  second.guid = first.guid;
  const BuildingDifference difference = Compare(Of({first, second}), Of({first, second}));
  EXPECT_EQ(difference.same, 2u);
}

TEST(Difference, ManyElementsInOnePlaceAreMatched) {
  std::vector<BuildingElement> before;
  std::vector<BuildingElement> after;
  for (std::size_t i = 0; i < 3000; ++i) {
    before.push_back(MemberFrom(i + 1, {}));
    after.push_back(Renumbered(MemberFrom(i + 1, {})));
  }
  EXPECT_EQ(Compare(Of(before), Of(after)).same, 3000u);
}

}  // namespace
}  // namespace KelIFC
