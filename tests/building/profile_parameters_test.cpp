#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "kelifc/building/profile.h"

namespace KelIFC {
namespace {

TEST(ParametersOf, ListsTheSizesOfAShape) {
  std::vector<std::string_view> names;
  for (const ProfileParameter parameter : ParametersOf(ProfileShape::kI)) {
    names.push_back(TextOf(parameter));
  }
  EXPECT_EQ(names, (std::vector<std::string_view>{"h", "b", "tw", "tf", "r"}));
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
