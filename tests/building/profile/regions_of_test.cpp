#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "kelifc/building/profile/section_moments.h"

#include "tests/building/profile/profile_samples.h"

namespace KelIFC::building {
namespace {

using enum ProfileParameter;

constexpr double kPi = std::numbers::pi;
constexpr double kSquareMillimetre = 1e-6;

struct Sample {
  const char* name;
  ProfileFacts facts;
  double area;    // in square millimetres, by hand
  double centre;  // of gravity along x, from the centre of the bounding box, in millimetres
};

// The area between a fillet of radius 1 and its corner of 90 degrees.
constexpr double kFillet = 1.0 - kPi / 4.0;

std::vector<Sample> Samples() {
  return {
      {"rectangle", FactsOf(ProfileShape::kRectangle, {{kH, 600}, {kB, 300}}), 180'000.0, 0.0},
      {"rounded rectangle", FactsOf(ProfileShape::kRoundedRectangle, {{kH, 60}, {kB, 30}, {kR, 5}}),
       1800.0 - 4.0 * 25.0 * kFillet, 0.0},
      {"hollow rectangle",
       FactsOf(ProfileShape::kHollowRectangle,
               {{kH, 200}, {kB, 100}, {kT, 10}, {kR, 15}, {kR1, 10}}),
       20'000.0 - 14'400.0 - 4.0 * 225.0 * kFillet + 4.0 * 100.0 * kFillet, 0.0},
      {"circle", FactsOf(ProfileShape::kCircle, {{kD, 400}}), kPi * 40'000.0, 0.0},
      {"hollow circle", FactsOf(ProfileShape::kHollowCircle, {{kD, 200}, {kT, 10}}), kPi * 1900.0,
       0.0},
      {"trapezium",
       FactsOf(ProfileShape::kTrapezium, {{kH, 100}, {kB, 300}, {kB1, 100}, {kOffset, 50}}),
       20'000.0, (15'000.0 * (-50.0 / 3.0) + 5'000.0 * (-100.0 / 3.0)) / 20'000.0},
      {"I", FactsOf(ProfileShape::kI, {{kH, 220}, {kB, 220}, {kTw, 9.5}, {kTf, 16}, {kR, 18}}),
       2.0 * 220.0 * 16.0 + 188.0 * 9.5 + 4.0 * 324.0 * kFillet, 0.0},
      {"asymmetric I",
       FactsOf(ProfileShape::kAsymmetricI, {{kH, 500},
                                            {kB, 300},
                                            {kTw, 10},
                                            {kTf, 20},
                                            {kR, 0},
                                            {kB1, 200},
                                            {kTf1, 15},
                                            {kR1, 12}}),
       6000.0 + 3000.0 + 4650.0 + 2.0 * 144.0 * kFillet, 0.0},
      {"U", FactsOf(ProfileShape::kU, {{kH, 200}, {kB, 80}, {kTw, 6}, {kTf, 11}}),
       1760.0 + 178.0 * 6.0, (1760.0 * 0.0 + 178.0 * 6.0 * -37.0) / 2828.0},
      {"L", FactsOf(ProfileShape::kL, {{kH, 100}, {kB, 100}, {kT, 10}}), 1900.0,
       (1000.0 * -45.0 + 900.0 * 5.0) / 1900.0},
      {"T", FactsOf(ProfileShape::kT, {{kH, 100}, {kB, 80}, {kTw, 10}, {kTf, 8}, {kR, 4}}),
       640.0 + 920.0 + 2.0 * 16.0 * kFillet, 0.0},
      {"Z", FactsOf(ProfileShape::kZ, {{kH, 100}, {kB, 50}, {kTw, 10}, {kTf, 8}}), 800.0 + 840.0,
       0.0},
      {"C", FactsOf(ProfileShape::kC, {{kH, 200}, {kB, 70}, {kT, 2}, {kC, 20}}),
       400.0 + 4.0 * 66.0 + 4.0 * 20.0 - 4.0 * 2.0 + 4.0 * 2.0,
       (400.0 * -34.0 + 4.0 * 66.0 * 0.0 + 80.0 * 34.0) / 744.0},
  };
}

TEST(RegionsOf, EachShapeHasItsAreaAndCentroid) {
  for (const Sample& sample : Samples()) {
    SCOPED_TRACE(sample.name);
    const auto regions = RegionsOf(sample.facts);
    ASSERT_EQ(regions.size(), 1U);
    const RegionProperties properties = PropertiesOf(regions[0]);
    EXPECT_NEAR(properties.area / kSquareMillimetre, sample.area, 1e-6);
    EXPECT_NEAR(properties.centroid.x * 1e3, sample.centre, 1e-6);
    EXPECT_TRUE(Flatten(regions[0]));
  }
}

TEST(RegionsOf, TheBoundingBoxIsCentredOnThePosition) {
  for (Sample& sample : Samples()) {
    SCOPED_TRACE(sample.name);
    sample.facts.position.origin = {3.0, -2.0};
    const auto flat = Flatten(RegionsOf(sample.facts).at(0));
    ASSERT_TRUE(flat);
    double left = 1e9, right = -1e9, low = 1e9, high = -1e9;
    for (const Point2& point : flat->outer) {
      left = std::min(left, point.x);
      right = std::max(right, point.x);
      low = std::min(low, point.y);
      high = std::max(high, point.y);
    }
    EXPECT_NEAR((left + right) / 2.0, 3.0, 1e-3);
    EXPECT_NEAR((low + high) / 2.0, -2.0, 1e-3);
  }
}

TEST(RegionsOf, SlopesCountFromTheMiddleOfTheFlange) {
  // UPN 200: slope 8 %, fillet 11.5 and edge 6 mm; the published area is 32.2 square centimetres.
  const auto facts = FactsOf(ProfileShape::kU, {{kH, 200},
                                                {kB, 75},
                                                {kTw, 8.5},
                                                {kTf, 11.5},
                                                {kR, 11.5},
                                                {kR1, 6},
                                                {kSlope, std::atan(0.08)}});
  EXPECT_NEAR(PropertiesOf(RegionsOf(facts).at(0)).area * 1e4, 32.2, 0.1);
}

TEST(RegionsOf, SlopesOfAnICountFromTheMiddleOfEachHalfOfAFlange) {
  // Half flanges of 45 mm, 10 mm thick in their middle, which slope by 10 %. The web is 8 mm thick.
  const auto facts = FactsOf(ProfileShape::kI,
                             {{kH, 200}, {kB, 90}, {kTw, 8}, {kTf, 10}, {kSlope, std::atan(0.1)}});
  const double toe = 10.0 - 22.5 * 0.1;
  const double root = 10.0 + 18.5 * 0.1;
  const double area = 8.0 * 200.0 + 4.0 * 41.0 * (toe + root) / 2.0;
  const RegionProperties properties = PropertiesOf(RegionsOf(facts).at(0));
  EXPECT_NEAR(properties.area * 1e6, area, 1e-6);
  EXPECT_NEAR(properties.centroid.y, 0.0, 1e-12);
}

TEST(RegionsOf, ASlopeOfTheFlangeOfATLeavesItsAreaAsItIs) {
  const auto facts =
      FactsOf(ProfileShape::kT, {{kH, 100}, {kB, 100}, {kTw, 8}, {kTf, 10}, {kSlope, 0.1}});
  const double k = std::tan(0.1);
  const double flange = 100.0 * 10.0;
  const double root = 10.0 + (25.0 - 4.0) * k;
  // The web begins below the sloping flange, which is thicker than 10 there by 21 k.
  const double overWeb = 8.0 * root;
  const double sides = 2.0 * 46.0 * (10.0 + (25.0 - 27.0) * k);
  EXPECT_NEAR(PropertiesOf(RegionsOf(facts).at(0)).area * 1e6,
              overWeb + sides + 8.0 * (100.0 - root), 1e-6);
  EXPECT_LT(std::abs(overWeb + sides - flange), 25.0);
}

TEST(RegionsOf, LegsOfAnLSlopeFromTheirMiddles) {
  const auto facts = FactsOf(ProfileShape::kL, {{kH, 100}, {kB, 80}, {kT, 10}, {kSlope, 0.05}});
  const auto flat = Flatten(RegionsOf(facts).at(0));
  ASSERT_TRUE(flat);
  ASSERT_EQ(flat->outer.size(), 6U);
  EXPECT_NEAR(flat->outer[2].y - flat->outer[1].y, 0.010 - 0.040 * std::tan(0.05), 1e-9);
  EXPECT_NEAR(flat->outer[4].x - flat->outer[5].x, 0.010 - 0.050 * std::tan(0.05), 1e-9);
}

TEST(RegionsOf, TheLowerFlangeOfAZPointsToTheRight) {
  const auto regions =
      RegionsOf(FactsOf(ProfileShape::kZ, {{kH, 100}, {kB, 50}, {kTw, 10}, {kTf, 8}}));
  EXPECT_LT(PropertiesOf(regions.at(0)).iyz, 0.0);
}

TEST(RegionsOf, PositionsThatTurnAndMirrorKeepArcs) {
  auto facts = FactsOf(ProfileShape::kL, {{kH, 100}, {kB, 60}, {kT, 8}, {kR, 10}, {kR1, 5}});
  const RegionProperties before = PropertiesOf(RegionsOf(facts).at(0));
  facts.position = Rotated(kPi / 2.0);
  RegionProperties after = PropertiesOf(RegionsOf(facts).at(0));
  EXPECT_EQ(RegionsOf(facts).at(0).outer.arcs.size(), 3U);
  EXPECT_NEAR(after.area, before.area, 1e-15);
  EXPECT_NEAR(after.iy, before.iz, 1e-15);
  EXPECT_NEAR(after.iyz, -before.iyz, 1e-15);
  facts.position = Rotated(0.0, true);
  after = PropertiesOf(RegionsOf(facts).at(0));
  EXPECT_NEAR(after.iy, before.iy, 1e-15);
  EXPECT_NEAR(after.centroid.y, -before.centroid.y, 1e-15);
}

TEST(RegionsOf, AScaleThatDiffersByAxisMakesAnEllipseOfACircle) {
  auto facts = FactsOf(ProfileShape::kCircle, {{kD, 200}});
  facts.position.x = {3.0, 0.0};
  const auto regions = RegionsOf(facts);
  ASSERT_EQ(regions.size(), 1U);
  EXPECT_TRUE(regions[0].outer.arcs.empty());
  for (const Point2& p : regions[0].outer.points) {
    EXPECT_NEAR(std::hypot(p.x / 0.3, p.y / 0.1), 1.0, 1e-12);
  }
}

TEST(RegionsOf, SizesThatMakeNoShapeGiveNoRegion) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const ProfileFacts& facts :
       {FactsOf(ProfileShape::kRectangle, {{kH, 0}, {kB, 300}}),
        FactsOf(ProfileShape::kRectangle, {{kH, 300}, {kB, -300}}),
        FactsOf(ProfileShape::kRectangle, {{kH, nan}, {kB, 300}}),
        FactsOf(ProfileShape::kRectangle, {{kH, 1e300}, {kB, 300}}),
        FactsOf(ProfileShape::kRoundedRectangle, {{kH, 60}, {kB, 30}, {kR, 16}}),
        FactsOf(ProfileShape::kHollowRectangle, {{kH, 200}, {kB, 100}, {kT, 50}}),
        FactsOf(ProfileShape::kHollowRectangle, {{kH, 200}, {kB, 100}, {kT, 5}, {kR, 50}}),
        FactsOf(ProfileShape::kCircle, {{kD, 0}}),
        FactsOf(ProfileShape::kHollowCircle, {{kD, 20}, {kT, 10}}),
        FactsOf(ProfileShape::kEllipse, {{kH, 20}, {kB, 0}}),
        FactsOf(ProfileShape::kTrapezium, {{kH, 20}, {kB, 10}, {kB1, 0}}),
        FactsOf(ProfileShape::kI, {{kH, 200}, {kB, 100}, {kTw, 100}, {kTf, 10}}),
        FactsOf(ProfileShape::kI, {{kH, 200}, {kB, 100}, {kTw, 10}, {kTf, 100}}),
        FactsOf(ProfileShape::kI, {{kH, 200}, {kB, 100}, {kTw, 10}, {kTf, 10}, {kR, 46}}),
        FactsOf(ProfileShape::kAsymmetricI, {{kH, 200}, {kB, 100}, {kTw, 10}, {kTf, 10}}),
        FactsOf(ProfileShape::kU, {{kH, 200}, {kB, 80}, {kTw, 6}, {kTf, 2}, {kSlope, 0.1}}),
        FactsOf(ProfileShape::kU, {{kH, 200}, {kB, 80}, {kTw, 6}, {kTf, 9}, {kSlope, nan}}),
        FactsOf(ProfileShape::kL, {{kH, 100}, {kB, 8}, {kT, 8}}),
        FactsOf(ProfileShape::kL, {{kH, 100}, {kB, 80}, {kT, 0}}),
        FactsOf(ProfileShape::kT, {{kH, 8}, {kB, 80}, {kTw, 10}, {kTf, 8}}),
        FactsOf(ProfileShape::kZ, {{kH, 100}, {kB, 10}, {kTw, 10}, {kTf, 8}}),
        FactsOf(ProfileShape::kC, {{kH, 40}, {kB, 70}, {kT, 2}, {kC, 20}}),
        FactsOf(ProfileShape::kArbitrary, {})}) {
    EXPECT_TRUE(RegionsOf(facts).empty()) << static_cast<int>(facts.shape);
  }
}

TEST(RegionsOf, PositionsThatFlattenThePlaneGiveNoRegion) {
  auto facts = FactsOf(ProfileShape::kRectangle, {{kH, 100}, {kB, 300}});
  facts.position.y = {1.0, 0.0};
  EXPECT_TRUE(RegionsOf(facts).empty());
  facts.position.y = {};
  EXPECT_TRUE(RegionsOf(facts).empty());
  facts.position.y = {0.0, std::numeric_limits<double>::infinity()};
  EXPECT_TRUE(RegionsOf(facts).empty());
}

}  // namespace
}  // namespace KelIFC::building
