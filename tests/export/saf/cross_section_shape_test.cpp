#include "export/saf/cross_section_shape.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/export/saf/made_profile.h"

namespace KelIFC::exporting::saf {
namespace {

using enum ProfileParameter;

// The published shape and its parameters as one text; "none" if there is none.
std::string Text(const BuildingProfile& profile) {
  const std::optional<ParametricShape> shape = ParametricShapeOf(profile);
  return shape ? std::string(shape->name) + ": " + shape->parameters : "none";
}

BuildingProfile Angle(const Point2& low, const Point2& high) {
  return ProfileInBox(ProfileShape::kL, low, high,
                      {{kH, 0.1}, {kB, 0.05}, {kT, 0.008}, {kR, 0.008}, {kR1, 0.004}});
}

BuildingProfile Channel(const Point2& low, const Point2& high) {
  return ProfileInBox(ProfileShape::kU, low, high,
                      {{kH, 0.2}, {kB, 0.075}, {kTw, 0.0085}, {kTf, 0.0115}, {kR, 0.0115}});
}

TEST(ParametricShape, HasTheParametersInTheOrderOfThePublishedShape) {
  EXPECT_EQ(Text(RectangleProfile(0.3, 0.2)), "Rectangle: 300; 200");
  EXPECT_EQ(Text(ProfileInBox(ProfileShape::kCircle, {-0.1, -0.1}, {0.1, 0.1}, {{kD, 0.2}})),
            "Circle: 200");
  EXPECT_EQ(Text(ProfileInBox(ProfileShape::kHollowCircle, {-0.1, -0.1}, {0.1, 0.1},
                              {{kD, 0.2}, {kT, 0.0063}})),
            "Pipe: 200; 6.3");
  EXPECT_EQ(Text(ProfileInBox(ProfileShape::kHollowRectangle, {-0.05, -0.1}, {0.05, 0.1},
                              {{kH, 0.2}, {kB, 0.1}, {kT, 0.005}, {kR, 0.0075}, {kR1, 0.005}})),
            "Tube: 200; 100; 5; 7.5; 5");
  EXPECT_EQ(Text(ProfileInBox(ProfileShape::kC, {-0.02, -0.1}, {0.05, 0.1},
                              {{kH, 0.2}, {kB, 0.07}, {kT, 0.002}, {kC, 0.018}, {kR, 0.003}})),
            "Cold formed Channel with lips: 200; 70; 2; 3; 18");
}

TEST(ParametricShape, OfAnIDependsOnItsFillets) {
  const auto Beam = [](double r) {
    return ProfileInBox(ProfileShape::kI, {-0.075, -0.15}, {0.075, 0.15},
                        {{kH, 0.3}, {kB, 0.15}, {kTw, 0.0071}, {kTf, 0.0107}, {kR, r}});
  };
  EXPECT_EQ(Text(Beam(0.015)), "I rolled: 300; 150; 10.7; 7.1; 15");
  EXPECT_EQ(Text(Beam(0.0)), "I Section: 300; 150; 150; 10.7; 10.7; 7.1");
}

TEST(ParametricShape, OfAnAsymmetricIHasTheTopWidthFirst) {
  EXPECT_EQ(Text(ProfileInBox(
                ProfileShape::kAsymmetricI, {-0.15, -0.2}, {0.15, 0.3},
                {{kH, 0.5}, {kB, 0.3}, {kB1, 0.2}, {kTw, 0.01}, {kTf, 0.03}, {kTf1, 0.02}})),
            "I Section: 500; 200; 300; 30; 20; 10");
}

TEST(ParametricShape, OfATrapeziumMustBeSymmetric) {
  const auto Trapezium = [](double offset) {
    return ProfileInBox(ProfileShape::kTrapezium, {-0.2, -0.1}, {0.2, 0.15},
                        {{kH, 0.25}, {kB, 0.4}, {kB1, 0.3}, {kOffset, offset}});
  };
  EXPECT_EQ(Text(Trapezium(0.05)), "Trapezoid: 250; 300; 400");
  EXPECT_EQ(Text(Trapezium(0.0)), "none");
}

TEST(ParametricShape, IsNoneForAMirroredAngleOrChannel) {
  EXPECT_EQ(Text(Angle({-0.012, -0.036}, {0.038, 0.064})), "Angle: 100; 50; 8; 8; 4");
  EXPECT_EQ(Text(Angle({-0.038, -0.036}, {0.012, 0.064})), "none");
  EXPECT_EQ(Text(Angle({-0.012, -0.064}, {0.038, 0.036})), "none");
  EXPECT_EQ(Text(Channel({-0.02, -0.1}, {0.055, 0.1})), "Channel: 200; 75; 11.5; 8.5; 11.5");
  EXPECT_EQ(Text(Channel({-0.055, -0.1}, {0.02, 0.1})), "none");
}

TEST(ParametricShape, OfATHasItsFlangeAbove) {
  const auto Tee = [](double low, double high) {
    return ProfileInBox(ProfileShape::kT, {-0.1, low}, {0.1, high},
                        {{kH, 0.4}, {kB, 0.2}, {kTw, 0.05}, {kTf, 0.1}});
  };
  EXPECT_EQ(Text(Tee(-0.25, 0.15)), "T Section: 400; 200; 100; 50");
  EXPECT_EQ(Text(Tee(-0.15, 0.25)), "none");
}

TEST(ParametricShape, IsNoneForATurnedProfileAndForWhatIsNotPublished) {
  BuildingProfile lying = RectangleProfile(0.3, 0.2);
  lying.outline = {{-0.15, -0.1}, {0.15, -0.1}, {0.15, 0.1}, {-0.15, 0.1}};
  EXPECT_EQ(Text(lying), "none");
  EXPECT_EQ(
      Text(ProfileInBox(ProfileShape::kEllipse, {-0.1, -0.2}, {0.1, 0.2}, {{kH, 0.4}, {kB, 0.2}})),
      "none");
  EXPECT_EQ(Text(BuildingProfile()), "none");
}

TEST(ParametricShape, IsNoneForASizeThatIsNotFinite) {
  BuildingProfile profile = RectangleProfile(0.3, 0.2);
  profile.parameters[static_cast<std::size_t>(kB)] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Text(profile), "none");
}

TEST(FormCode, SaysHowASectionWithADesignationLies) {
  BuildingProfile right = Channel({-0.02, -0.1}, {0.055, 0.1});
  EXPECT_EQ(FormCodeOf(right), std::nullopt);
  right.designation = "UPN200";
  EXPECT_EQ(FormCodeOf(right), 5);
  BuildingProfile left = Channel({-0.055, -0.1}, {0.02, 0.1});
  left.designation = "UPN200";
  EXPECT_EQ(FormCodeOf(left), 13);
}

TEST(FormCode, IsNoneForAnAngleThatIsMirroredOrLies) {
  BuildingProfile mirrored = Angle({-0.038, -0.036}, {0.012, 0.064});
  mirrored.designation = "L100x50x8";
  EXPECT_EQ(FormCodeOf(mirrored), std::nullopt);
  BuildingProfile lying = ProfileInBox(ProfileShape::kL, {-0.036, -0.012}, {0.064, 0.038},
                                       {{kH, 0.05}, {kB, 0.1}, {kT, 0.008}});
  lying.designation = "L100x50x8";
  EXPECT_EQ(FormCodeOf(lying), std::nullopt);
}

TEST(Polygon, IsWrittenInMillimetres) {
  EXPECT_EQ(PolygonText({{-0.1, 0.0}, {0.1, 0.0}, {0.0, 0.12345}}), "-100; 0 | 100; 0 | 0; 123.45");
}

}  // namespace
}  // namespace KelIFC::exporting::saf
