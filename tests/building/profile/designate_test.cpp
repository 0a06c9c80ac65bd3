#include <gtest/gtest.h>

#include <algorithm>
#include <numbers>

#include "kelifc/building/profile/standard_sections.h"

#include "tests/building/profile/profile_samples.h"

namespace KelIFC::building {
namespace {

using enum ProfileParameter;

ProfileFacts FactsOfSection(const char* designation, const char* name) {
  const StandardSection* section = FindStandardSection(designation);
  ProfileFacts facts;
  facts.name = name;
  facts.shape = section->shape;
  facts.parameters = section->parameters;
  return facts;
}

BuildingProfile ProfileOf(const ProfileFacts& facts) {
  const auto placed = MakeProfile(facts);
  return placed ? placed->profile : BuildingProfile{};
}

// The same outline drawn instead of described.
ProfileFacts Drawn(ProfileFacts facts) {
  facts.regions = RegionsOf(facts);
  facts.shape = ProfileShape::kArbitrary;
  facts.position = {};
  return facts;
}

TEST(Designate, TakesTheDesignationFromTheSizes) {
  for (const char* designation :
       {"HEA300", "IPE80", "IPN80", "IPN300", "IPN600", "UPN200", "UPE330", "L100x50x8",
        "SHS100x100x5", "RHS200x100x10", "CHS323.9x10"}) {
    const ProfileFacts facts = FactsOfSection(designation, "");
    EXPECT_EQ(ProfileOf(facts).designation, designation);
    EXPECT_EQ(ProfileOf(Drawn(facts)).designation, designation);
    EXPECT_FALSE(ProfileOf(facts).nameContradicts);
  }
}

TEST(Designate, FindsTurnedOutlinesToo) {
  ProfileFacts facts = FactsOfSection("HEB220", "");
  facts.position = Rotated(std::numbers::pi / 2.0);
  const BuildingProfile profile = ProfileOf(Drawn(facts));
  EXPECT_EQ(profile.shape, ProfileShape::kArbitrary);
  EXPECT_EQ(profile.designation, "HEB220");
  EXPECT_EQ(ProfileOf(facts).shape, ProfileShape::kI);
  EXPECT_EQ(ProfileOf(facts).designation, "HEB220");
}

TEST(Designate, ReportsANameThatTheSizesContradict) {
  EXPECT_FALSE(ProfileOf(FactsOfSection("HEB220", "HE 220 B")).nameContradicts);
  const BuildingProfile profile = ProfileOf(FactsOfSection("HEB220", "HEB 240"));
  EXPECT_TRUE(profile.nameContradicts);
  EXPECT_EQ(profile.designation, "HEB220");
  EXPECT_TRUE(ProfileOf(FactsOfSection("IPE300", "RHS100x50x5")).nameContradicts);
  EXPECT_TRUE(ProfileOf(FactsOfSection("RHS100x50x5", "RHS100x50x4")).nameContradicts);
  EXPECT_FALSE(ProfileOf(FactsOfSection("IPE300", "Beam 4")).nameContradicts);
}

TEST(Designate, BelievesANameWhoseSizesAgreeWhateverTheFillets) {
  auto facts =
      FactsOf(ProfileShape::kHollowRectangle, {{kH, 100}, {kB, 100}, {kT, 5}, {kR, 10}, {kR1, 5}});
  EXPECT_EQ(ProfileOf(facts).designation, "");
  facts.name = "SHS100x5";
  EXPECT_EQ(ProfileOf(facts).designation, "SHS100x100x5");
  EXPECT_FALSE(ProfileOf(facts).nameContradicts);
}

TEST(Designate, BelievesANameOfAnOutlineWithoutAShape) {
  // Fillets that are chamfers give no shape.
  ProfileFacts facts = Drawn(FactsOfSection("HEB220", "HEB220"));
  facts.regions[0].outer.arcs.clear();
  BuildingProfile profile = ProfileOf(facts);
  EXPECT_EQ(profile.shape, ProfileShape::kArbitrary);
  EXPECT_EQ(profile.designation, "HEB220");
  EXPECT_FALSE(profile.nameContradicts);
  facts.name = "HEB300";
  profile = ProfileOf(facts);
  EXPECT_EQ(profile.designation, "");
  EXPECT_TRUE(profile.nameContradicts);
}

TEST(Designate, ComparesRectanglesWithTheTwoNumbersOfTheirName) {
  auto facts = FactsOf(ProfileShape::kRectangle, {{kH, 600}, {kB, 300}});
  for (const char* name :
       {"300x600", "600x300", "30x60", "0.3x0.6", "Column", "300x600 C30", "300x6000", "12x600"}) {
    facts.name = name;
    EXPECT_FALSE(ProfileOf(facts).nameContradicts) << name;
  }
  for (const char* name : {"300x500", "300*700", "400x400", "100x100"}) {
    facts.name = name;
    EXPECT_TRUE(ProfileOf(facts).nameContradicts) << name;
  }
}

TEST(Designate, ReturnsForAnEmptyProfile) {
  BuildingProfile profile;
  profile.name = "HEB220";
  profile.designation = "IPE300";
  Designate(profile);
  EXPECT_EQ(profile.designation, "");
  EXPECT_TRUE(profile.nameContradicts);
}

}  // namespace
}  // namespace KelIFC::building
