#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "kelifc/building/profile.h"

namespace KelIFC {
namespace {

std::vector<std::string_view> NamesOf(const ProfileParameterList& list) {
  std::vector<std::string_view> names;
  for (const ProfileParameter parameter : list) names.push_back(TextOf(parameter));
  return names;
}

TEST(ParametersOf, ListsTheSizesOfAShape) {
  EXPECT_EQ(NamesOf(ParametersOf(ProfileShape::kI)),
            (std::vector<std::string_view>{"h", "b", "tw", "tf", "r", "r1", "slope"}));
}

TEST(ParametersOf, LeavesOutEdgesAndSlopeOfAnIThatHasNone) {
  BuildingProfile profile;
  profile.shape = ProfileShape::kI;
  EXPECT_EQ(NamesOf(ParametersOf(profile)),
            (std::vector<std::string_view>{"h", "b", "tw", "tf", "r"}));
  profile.parameters[static_cast<std::size_t>(ProfileParameter::kSlope)] = 0.14;
  EXPECT_EQ(NamesOf(ParametersOf(profile)), NamesOf(ParametersOf(ProfileShape::kI)));
}

TEST(ParametersOf, ListsAllSizesOfOtherShapes) {
  BuildingProfile profile;
  profile.shape = ProfileShape::kU;
  EXPECT_EQ(ParametersOf(profile).count, ParametersOf(ProfileShape::kU).count);
}

TEST(ParametersOf, IsEmptyForAnArbitraryShapeOnly) {
  for (int shape = 0; shape <= static_cast<int>(ProfileShape::kC); ++shape) {
    const ProfileParameterList list = ParametersOf(static_cast<ProfileShape>(shape));
    const std::set<ProfileParameter> distinct(list.begin(), list.end());
    EXPECT_EQ(distinct.size(), list.count);
    EXPECT_EQ(list.count == 0, shape == static_cast<int>(ProfileShape::kArbitrary));
  }
  EXPECT_EQ(ParametersOf(static_cast<ProfileShape>(99)).count, 0u);
}

}  // namespace
}  // namespace KelIFC
