#include "export/glb/quaternion.h"

#include <gtest/gtest.h>

#include <random>

namespace KelIFC::exporting {
namespace {

Vector3 Turned(const Quaternion& q, const Vector3& v) {
  const Vector3 axis(q.x, q.y, q.z);
  const Vector3 t = 2.0 * Cross(axis, v);
  return v + q.w * t + Cross(axis, t);
}

void ExpectMapsAxes(const Vector3& x, const Vector3& y) {
  const Vector3 z = Cross(x, y);
  const Quaternion turn = QuaternionOf(x, y, z);
  EXPECT_LT(Length(Turned(turn, {1.0, 0.0, 0.0}) + -x), 1e-12);
  EXPECT_LT(Length(Turned(turn, {0.0, 1.0, 0.0}) + -y), 1e-12);
  EXPECT_LT(Length(Turned(turn, {0.0, 0.0, 1.0}) + -z), 1e-12);
}

TEST(Quaternion, OfTheAxesThemselvesIsOne) {
  const Quaternion turn = QuaternionOf({1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0});
  EXPECT_EQ(turn.w, 1.0);
  EXPECT_EQ(turn.x, 0.0);
}

TEST(Quaternion, MapsTheAxesForHalfTurns) {
  ExpectMapsAxes({1.0, 0.0, 0.0}, {0.0, -1.0, 0.0});
  ExpectMapsAxes({-1.0, 0.0, 0.0}, {0.0, 1.0, 0.0});
  ExpectMapsAxes({-1.0, 0.0, 0.0}, {0.0, -1.0, 0.0});
  ExpectMapsAxes({0.0, 0.0, 1.0}, {1.0, 0.0, 0.0});
}

TEST(Quaternion, MapsTheAxesForAnyTurn) {
  std::mt19937 random(5);
  const auto number = [&] { return static_cast<double>(random() % 2001) / 1000.0 - 1.0; };
  for (int round = 0; round < 1000; ++round) {
    Vector3 x(number(), number(), number() + 0.001234);
    Vector3 y = Cross(x, {number(), number() + 0.001234, number()});
    if (Length(x) < 1e-3 || Length(y) < 1e-3) continue;
    Normalise(x);
    Normalise(y);
    ExpectMapsAxes(x, y);
  }
}

}  // namespace
}  // namespace KelIFC::exporting
