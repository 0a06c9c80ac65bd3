#include "kelifc/building/build/profile_key.h"

#include <gtest/gtest.h>

#include <limits>

#include "kelifc/building/build/first_use.h"

namespace KelIFC::building {
namespace {

BuildingProfile Rectangle(double h, double b) {
  BuildingProfile profile;
  profile.shape = ProfileShape::kRectangle;
  profile.parameters[static_cast<std::size_t>(ProfileParameter::kH)] = h;
  profile.parameters[static_cast<std::size_t>(ProfileParameter::kB)] = b;
  return profile;
}

BuildingProfile Triangle(double height) {
  BuildingProfile profile;
  profile.outline = {{0.0, 0.0}, {1.0, 0.0}, {0.0, height}};
  return profile;
}

TEST(ProfileKey, IgnoresLessThanAHundredthOfAMillimetre) {
  EXPECT_EQ(ProfileKey(Rectangle(0.3, 0.2)), ProfileKey(Rectangle(0.300001, 0.2)));
  EXPECT_NE(ProfileKey(Rectangle(0.3, 0.2)), ProfileKey(Rectangle(0.30002, 0.2)));
  EXPECT_NE(ProfileKey(Rectangle(0.3, 0.2)), ProfileKey(Rectangle(0.2, 0.3)));
}

TEST(ProfileKey, IgnoresTheName) {
  BuildingProfile named = Rectangle(0.3, 0.2);
  named.name = "B1";
  EXPECT_EQ(ProfileKey(named), ProfileKey(Rectangle(0.3, 0.2)));
}

TEST(ProfileKey, ComparesAllPointsOfAnArbitraryProfile) {
  BuildingProfile withHole = Triangle(1.0);
  withHole.holes = {{{0.1, 0.1}, {0.1, 0.2}, {0.2, 0.1}}};
  EXPECT_EQ(ProfileKey(Triangle(1.0)), ProfileKey(Triangle(1.000001)));
  EXPECT_NE(ProfileKey(Triangle(1.0)), ProfileKey(Triangle(1.1)));
  EXPECT_NE(ProfileKey(Triangle(1.0)), ProfileKey(withHole));
}

TEST(ProfileKey, DistinguishesAMirroredOutlineOfTheSameSizes) {
  BuildingProfile angle = Rectangle(0.1, 0.1);
  angle.shape = ProfileShape::kL;
  angle.outline = {{-0.03, -0.03}, {0.07, -0.03}, {0.07, -0.02},
                   {-0.02, -0.02}, {-0.02, 0.07}, {-0.03, 0.07}};
  BuildingProfile mirrored = angle;
  for (Point2& point : mirrored.outline) point.x = -point.x;
  EXPECT_NE(ProfileKey(angle), ProfileKey(mirrored));

  BuildingProfile zed = Rectangle(0.1, 0.1);  // its box is symmetric, so only iyz differs
  zed.shape = ProfileShape::kZ;
  zed.iy = zed.iz = 1.0;
  zed.iyz = 0.3;
  BuildingProfile mirroredZed = zed;
  mirroredZed.iyz = -0.3;
  EXPECT_NE(ProfileKey(zed), ProfileKey(mirroredZed));
}

TEST(ProfileKey, TakesNumbersThatCannotBeRounded) {
  const double huge = 1e300;
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_NE(ProfileKey(Rectangle(huge, 1.0)), ProfileKey(Rectangle(nan, 1.0)));
  EXPECT_EQ(ProfileKey(Rectangle(huge, 1.0)), ProfileKey(Rectangle(huge, 1.0)));
}

TEST(FirstUse, KeepsTheFirstOfEqualThingsInTheOrderOfUse) {
  FirstUse<std::string> list;
  EXPECT_EQ(list.Add("b", "first"), 0u);
  EXPECT_EQ(list.Add("a", "second"), 1u);
  EXPECT_EQ(list.Add("b", "third"), 0u);
  EXPECT_EQ(list.Take(), (std::vector<std::string>{"first", "second"}));
}

}  // namespace
}  // namespace KelIFC::building
