#include "export/svg/labels.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "tests/export/svg/made_storeys.h"

namespace KelIFC::exporting::svg {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

// A sheet at 1:50, on which a metre is 20 mm.
const Sheet kSheet({{0.0, 0.0, 0.0}, {10.0, 8.0, 0.0}});

Building WithProfile(const BuildingProfile& profile) {
  Building building;
  building.profiles.push_back(profile);
  building.elements.push_back(Column(1, 0, {}, 3.0));
  return building;
}

TEST(ProfileLabel, IsTheDesignationOrTheNameOrTheSizes) {
  BuildingProfile profile = Rectangle(0.2, 0.3);
  Building building = WithProfile(profile);
  EXPECT_EQ(ProfileLabelOf(building, building.elements[0]), "200x300");
  profile.shape = ProfileShape::kI;
  building = WithProfile(profile);
  EXPECT_EQ(ProfileLabelOf(building, building.elements[0]), "I 200x300");
  profile.name = "B1";
  building = WithProfile(profile);
  EXPECT_EQ(ProfileLabelOf(building, building.elements[0]), "B1");
  profile.designation = "HEB220";
  building = WithProfile(profile);
  EXPECT_EQ(ProfileLabelOf(building, building.elements[0]), "HEB220");
}

TEST(ProfileLabel, OfACircleIsItsDiameter) {
  BuildingProfile profile;
  profile.shape = ProfileShape::kCircle;
  profile.parameters[static_cast<std::size_t>(ProfileParameter::kD)] = 0.24;
  const Building building = WithProfile(profile);
  EXPECT_EQ(ProfileLabelOf(building, building.elements[0]), "D240");
}

TEST(ProfileLabel, IsEmptyWithoutAProfile) {
  EXPECT_EQ(ProfileLabelOf({}, Wall(1, 0, {}, 5.0, 3.0)), "");
  EXPECT_EQ(ProfileLabelOf({}, Column(1, 0, {}, 3.0)), "");
}

TEST(SlabLabel, HasTheThicknessAndTheUpperFace) {
  EXPECT_EQ(SlabLabelOf(Floor(1, 0, {0.0, 0.0, 2.8}, 4.0, 4.0)), "h 200 / +2.800");
  EXPECT_EQ(SlabLabelOf(Wall(1, 0, {}, 5.0, 3.0)), "");
}

TEST(LabelField, TurnsTextsToBeReadFromBelowOrFromTheRight) {
  const struct {
    Point2 to;
    double angle;
  } cases[] = {{{9.0, 4.0}, 0.0},   {{1.0, 4.0}, 0.0},   {{5.0, 7.0}, -90.0}, {{5.0, 1.0}, -90.0},
               {{7.0, 6.0}, -45.0}, {{3.0, 2.0}, -45.0}, {{7.0, 2.0}, 45.0},  {{3.0, 6.0}, 45.0}};
  for (const auto& line : cases) {
    LabelField field(kSheet);
    ASSERT_TRUE(field.PlaceAlong({5.0, 4.0}, line.to, 0.0, "HEB220"));
    EXPECT_NEAR(field.Labels()[0].angle, line.angle, 1e-9) << line.to.x << " " << line.to.y;
  }
}

TEST(LabelField, PlacesATextAboveTheMiddleOfALine) {
  LabelField field(kSheet);
  ASSERT_TRUE(field.PlaceAlong({3.0, 4.0}, {7.0, 4.0}, 0.1, "HEB220"));
  // The middle is at (215, 128.5). Half of the width is 2 mm, and the gap is 0.8 mm.
  EXPECT_NEAR(field.Labels()[0].at.x, 215.0, 1e-9);
  EXPECT_NEAR(field.Labels()[0].at.y, 128.5 - 2.8, 1e-9);
}

TEST(LabelField, PlacesNoTextThatIsLongerThanItsLine) {
  LabelField field(kSheet);
  EXPECT_FALSE(field.PlaceAlong({4.9, 4.0}, {5.1, 4.0}, 0.1, "HEB220"));
  EXPECT_FALSE(field.PlaceAlong({3.0, 4.0}, {7.0, 4.0}, 0.1, ""));
  EXPECT_THAT(field.Labels(), IsEmpty());
}

TEST(LabelField, NeverPutsATextOnAnotherOne) {
  LabelField field(kSheet);
  for (int i = 0; i < 10; ++i) field.PlaceAlong({3.0, 4.0}, {7.0, 4.0}, 0.1, "HEB220");
  // There are three places along the line, above it and below it.
  EXPECT_THAT(field.Labels(), SizeIs(6));
}

TEST(LabelField, PlacesATextBesideAColumnAndNotOnAnotherOne) {
  LabelField field(kSheet);
  const Outline column{{4.9, 3.9}, {5.1, 3.9}, {5.1, 4.1}, {4.9, 4.1}};
  const Outline neighbour{{5.2, 4.0}, {5.6, 4.0}, {5.6, 4.4}, {5.2, 4.4}};
  field.Block(column);
  field.Block(neighbour);
  ASSERT_TRUE(field.PlaceBeside(column, "D240"));
  // The place at the upper right is taken, so it is at the lower right.
  EXPECT_GT(field.Labels()[0].at.x, 217.0);
  EXPECT_GT(field.Labels()[0].at.y, 130.5);
}

TEST(LabelField, PlacesATextInASlabBesideALine) {
  LabelField field(kSheet);
  const Outline slab{{1.0, 1.0}, {9.0, 1.0}, {9.0, 7.0}, {1.0, 7.0}};
  field.Block(PlanLine{{{1.0, 4.0}, {9.0, 4.0}}, false});
  ASSERT_TRUE(field.PlaceIn(slab, "h 200"));
  EXPECT_GT(std::abs(field.Labels()[0].at.y - 128.5), 0.5);
  EXPECT_FALSE(field.PlaceIn({{1.0, 1.0}, {1.2, 1.0}, {1.2, 1.2}}, "h 200"));
}

TEST(LabelField, PlacesNoTextOutsideOfTheFrame) {
  LabelField field(kSheet);
  EXPECT_FALSE(field.PlaceAlong({100.0, 4.0}, {110.0, 4.0}, 0.1, "HEB220"));
  EXPECT_FALSE(field.PlaceBeside({{1e12, 1e12}}, "D240"));
}

TEST(LabelField, IgnoresABoxOrALineThatIsMuchLargerThanTheSheet) {
  LabelField field(kSheet);
  field.Block(Outline{{-1e9, -1e9}, {1e9, 1e9}});
  field.Block(PlanLine{{{-1e9, 4.15}, {1e9, 4.15}}, false});
  EXPECT_TRUE(field.PlaceAlong({3.0, 4.0}, {7.0, 4.0}, 0.1, "HEB220"));
}

}  // namespace
}  // namespace KelIFC::exporting::svg
