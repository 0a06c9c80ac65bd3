#include "kelifc/building/profile/make_profile.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "tests/building/profile/profile_samples.h"

namespace KelIFC::building {
namespace {

using enum ProfileParameter;
constexpr double kPi = std::numbers::pi;

TEST(MakeProfile, MovesTheOriginToTheCentroid) {
  auto facts = FactsOf(ProfileShape::kL, {{kH, 100}, {kB, 100}, {kT, 10}});
  facts.name = "L100";
  const auto placed = MakeProfile(facts);
  ASSERT_TRUE(placed);
  EXPECT_EQ(placed->profile.name, "L100");
  EXPECT_EQ(placed->profile.shape, ProfileShape::kL);
  EXPECT_NEAR(placed->offset.x, 0.0405 / 1.9, 1e-12);
  EXPECT_NEAR(placed->offset.y, 0.0405 / 1.9, 1e-12);
  EXPECT_NEAR(placed->profile.outline[0].x, -0.05 + 0.0405 / 1.9, 1e-12);
  EXPECT_NEAR(placed->profile[kH], 0.1, 1e-15);
  EXPECT_NEAR(placed->profile[kT], 0.01, 1e-15);
  EXPECT_EQ(placed->profile[kTw], 0.0);
}

TEST(MakeProfile, TheOffsetIsThePlaceOfTheOriginOfTheFile) {
  auto facts = FactsOf(ProfileShape::kRectangle, {{kH, 600}, {kB, 300}});
  facts.position.origin = {0.15, 0.3};
  const auto placed = MakeProfile(facts);
  ASSERT_TRUE(placed);
  EXPECT_NEAR(placed->offset.x, -0.15, 1e-15);
  EXPECT_NEAR(placed->offset.y, -0.3, 1e-15);
}

TEST(MakeProfile, ClosedFormsGiveThePropertiesOfRoundShapes) {
  const auto circle = MakeProfile(FactsOf(ProfileShape::kCircle, {{kD, 20}}));
  ASSERT_TRUE(circle);
  EXPECT_NEAR(circle->profile.area, kPi * 1e-4, 1e-16);
  auto facts = FactsOf(ProfileShape::kEllipse, {{kH, 200}, {kB, 100}});
  const auto ellipse = MakeProfile(facts);
  ASSERT_TRUE(ellipse);
  EXPECT_NEAR(ellipse->profile.area, kPi * 0.1 * 0.05, 1e-16);
  EXPECT_NEAR(ellipse->profile.iy, kPi / 4.0 * 1e-3 * 0.05, 1e-16);
  facts.position = Rotated(kPi / 2.0);
  const auto turned = MakeProfile(facts);
  ASSERT_TRUE(turned);
  EXPECT_NEAR(turned->profile.iz, kPi / 4.0 * 1e-3 * 0.05, 1e-16);
  EXPECT_NEAR(turned->profile[kB], 0.2, 1e-15);
}

TEST(MakeProfile, ATurnedRectangleExchangesItsSizes) {
  auto facts = FactsOf(ProfileShape::kRectangle, {{kH, 600}, {kB, 300}});
  facts.position = Rotated(-kPi / 2.0);
  const auto placed = MakeProfile(facts);
  ASSERT_TRUE(placed);
  EXPECT_NEAR(placed->profile[kH], 0.3, 1e-15);
  EXPECT_NEAR(placed->profile[kB], 0.6, 1e-15);
  EXPECT_NEAR(placed->profile.iz, 0.3 * 0.216 / 12.0, 1e-15);
}

TEST(MakeProfile, AScaleOfThePositionScalesTheSizes) {
  auto facts =
      FactsOf(ProfileShape::kU, {{kH, 200}, {kB, 80}, {kTw, 6}, {kTf, 11}, {kSlope, 0.05}});
  facts.position.x = {2.0, 0.0};
  facts.position.y = {0.0, -2.0};
  const auto placed = MakeProfile(facts);
  ASSERT_TRUE(placed);
  EXPECT_EQ(placed->profile.shape, ProfileShape::kU);
  EXPECT_NEAR(placed->profile[kH], 0.4, 1e-15);
  EXPECT_NEAR(placed->profile[kSlope], 0.05, 1e-15);
}

TEST(MakeProfile, AHoleWithoutAnAreaChangesNothing) {
  ProfileFacts facts;
  const Contour square{{{0, 0}, {2, 0}, {2, 2}, {0, 2}}, {}};
  facts.regions = {{square, {{{{1, 1}, {1.5, 1}, {1.2, 1.00000001}}, {}}}}};
  const auto placed = MakeProfile(facts);
  ASSERT_TRUE(placed);
  EXPECT_TRUE(placed->profile.holes.empty());
  EXPECT_EQ(placed->profile.area, 4.0);
  EXPECT_EQ(placed->profile.shape, ProfileShape::kRectangle);
}

TEST(MakeProfile, FactsWithoutARegionOrWithSeveralGiveNone) {
  EXPECT_FALSE(MakeProfile(FactsOf(ProfileShape::kCircle, {{kD, -1}})));
  ProfileFacts facts;
  EXPECT_FALSE(MakeProfile(facts));
  const Region square{{{{0, 0}, {1, 0}, {1, 1}, {0, 1}}, {}}, {}};
  facts.regions = {square, square};
  EXPECT_FALSE(MakeProfile(facts));
  facts.regions = {square};
  EXPECT_TRUE(MakeProfile(facts));
}

}  // namespace
}  // namespace KelIFC::building
