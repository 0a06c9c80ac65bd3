#include "kelifc/geometry/rotation2.h"

#include <numbers>

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

constexpr double kPi = std::numbers::pi;

TEST(Rotation, TurnsCounterClockwiseForAPositiveAngle) {
  const Rotation2 quarter(kPi / 2);
  EXPECT_THAT(Rotate(Vector2(1, 0), quarter), IsNear2(0, 1));
  EXPECT_THAT(Rotate(Point2(0, 1), quarter), IsNear2(-1, 0));
  EXPECT_THAT(Rotate(Vector3(1, 0, 5), quarter), IsNear3(0, 1, 5));
}

TEST(DirectionAngle, IsZeroForTheZeroDirection) {
  EXPECT_EQ(DirectionAngle(0, 0), 0);
  EXPECT_EQ(DirectionAngle(-0.0, -0.0), 0);
}

TEST(DirectionAngle, HasTheSignOfY) {
  EXPECT_DOUBLE_EQ(DirectionAngle(0, 1), kPi / 2);
  EXPECT_DOUBLE_EQ(DirectionAngle(0, -1), -kPi / 2);
  EXPECT_DOUBLE_EQ(DirectionAngle(1, 1), kPi / 4);
  EXPECT_DOUBLE_EQ(DirectionAngle(1, -1), -kPi / 4);
  EXPECT_DOUBLE_EQ(DirectionAngle(-1, 1), 3 * kPi / 4);
  EXPECT_DOUBLE_EQ(DirectionAngle(-1, -1), -3 * kPi / 4);
}

TEST(DirectionAngle, TreatsEitherZeroAsPositive) {
  EXPECT_DOUBLE_EQ(DirectionAngle(-1, 0), kPi);
  EXPECT_DOUBLE_EQ(DirectionAngle(-1, -0.0), kPi);
  EXPECT_DOUBLE_EQ(DirectionAngle(1, 0), 0);
  EXPECT_FALSE(std::signbit(DirectionAngle(1, -0.0)));
}

}  // namespace
}  // namespace KelIFC
