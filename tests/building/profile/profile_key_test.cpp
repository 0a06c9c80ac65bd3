#include <gtest/gtest.h>

#include <limits>
#include <numbers>

#include "tests/building/profile/profile_samples.h"

namespace KelIFC::building {
namespace {

using enum ProfileParameter;

BuildingProfile ProfileOf(const ProfileFacts& facts) { return MakeProfile(facts).value().profile; }

ProfileFacts UOf(double h) {
  return FactsOf(ProfileShape::kU, {{kH, h}, {kB, 80}, {kTw, 6}, {kTf, 11}, {kR, 13}});
}

TEST(ProfileKey, RoundsToAHundredthOfAMillimetre) {
  EXPECT_TRUE(AreSameProfile(ProfileOf(UOf(200)), ProfileOf(UOf(200.004))));
  EXPECT_FALSE(AreSameProfile(ProfileOf(UOf(200)), ProfileOf(UOf(200.02))));
}

TEST(ProfileKey, DoesNotDependOnTheNameOrTheChords) {
  BuildingProfile described = ProfileOf(UOf(200));
  described.name = "U";
  ProfileFacts drawn;
  drawn.regions = RegionsOf(UOf(200));
  drawn.position.origin = {5.0, 7.0};
  EXPECT_TRUE(AreSameProfile(described, ProfileOf(drawn)));
  EXPECT_EQ(ProfileKey(described), ProfileKey(ProfileOf(drawn)));
}

TEST(ProfileKey, DiffersForEachPositionThatLooksDifferent) {
  const auto count = [](ProfileFacts facts) {
    std::vector<std::string> keys;
    for (const bool isMirrored : {false, true}) {
      for (int quarter = 0; quarter < 4; ++quarter) {
        facts.position = Rotated(quarter * std::numbers::pi / 2.0, isMirrored);
        const std::string key = ProfileKey(ProfileOf(facts));
        if (std::find(keys.begin(), keys.end(), key) == keys.end()) keys.push_back(key);
      }
    }
    return keys.size();
  };
  EXPECT_EQ(count(FactsOf(ProfileShape::kCircle, {{kD, 300}})), 1U);
  EXPECT_EQ(count(FactsOf(ProfileShape::kRectangle, {{kH, 300}, {kB, 300}})), 1U);
  EXPECT_EQ(count(FactsOf(ProfileShape::kRectangle, {{kH, 600}, {kB, 300}})), 2U);
  EXPECT_EQ(count(FactsOf(ProfileShape::kI, {{kH, 300}, {kB, 150}, {kTw, 7}, {kTf, 11}})), 2U);
  EXPECT_EQ(count(UOf(200)), 4U);
  EXPECT_EQ(count(FactsOf(ProfileShape::kZ, {{kH, 100}, {kB, 50}, {kTw, 10}, {kTf, 8}})), 4U);
  EXPECT_EQ(count(FactsOf(ProfileShape::kL, {{kH, 100}, {kB, 60}, {kT, 8}})), 8U);
  EXPECT_EQ(count(FactsOf(ProfileShape::kL, {{kH, 100}, {kB, 100}, {kT, 8}})), 4U);
}

TEST(ProfileKey, OfATurnedShapeHoldsItsPoints) {
  ProfileFacts facts = UOf(200);
  facts.position = Rotated(0.3);
  const BuildingProfile turned = ProfileOf(facts);
  facts.position = Rotated(0.4);
  EXPECT_FALSE(AreSameProfile(turned, ProfileOf(facts)));
  EXPECT_TRUE(AreSameProfile(turned, turned));
}

TEST(ProfileKey, OfAnArbitraryOutlineHoldsAllPoints) {
  ProfileFacts facts;
  facts.regions = {{{{{0, 0}, {1, 0}, {1, 1}, {0.4, 2}, {0, 1}}, {}}, {}}};
  const BuildingProfile one = ProfileOf(facts);
  facts.regions[0].outer.points[3].x += 1e-4;
  EXPECT_FALSE(AreSameProfile(one, ProfileOf(facts)));
  facts.regions[0].outer.points[3].x -= 1e-4;
  facts.regions[0].holes = {{{{0.1, 0.1}, {0.2, 0.1}, {0.2, 0.2}}, {}}};
  EXPECT_FALSE(AreSameProfile(one, ProfileOf(facts)));
}

TEST(ProfileKey, ExistsForValuesThatAreNotFinite) {
  BuildingProfile profile;
  profile.shape = ProfileShape::kRectangle;
  profile.parameters.fill(std::numeric_limits<double>::quiet_NaN());
  profile.outline = {{std::numeric_limits<double>::infinity(), 1e300}};
  EXPECT_TRUE(AreSameProfile(profile, profile));
}

}  // namespace
}  // namespace KelIFC::building
