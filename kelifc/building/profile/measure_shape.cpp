#include "kelifc/building/profile/measure_shape.h"

#include <cmath>
#include <initializer_list>
#include <utility>

namespace KelIFC::building {

namespace {

using enum ProfileParameter;
using Values = std::initializer_list<std::pair<ProfileParameter, double>>;

ProfileParameters Parameters(Values values) {
  ProfileParameters parameters = {};
  for (const auto& [parameter, value] : values) {
    parameters[static_cast<std::size_t>(parameter)] = value;
  }
  return parameters;
}

double Mean(double a, double b) { return (a + b) / 2.0; }

// The mean radius of some corners.
double Radius(const CornerRing& c, std::initializer_list<std::size_t> corners) {
  double sum = 0.0;
  for (const std::size_t corner : corners) sum += c.R(corner);
  return sum / static_cast<double>(corners.size());
}

ProfileParameters Rectangle(const CornerRing& c) {
  return Parameters({{kH, c.Y(3) - c.Y(0)}, {kB, c.X(1) - c.X(0)}});
}

ProfileParameters RoundedRectangle(const CornerRing& c) {
  return Parameters({{kH, c.Y(3) - c.Y(0)}, {kB, c.X(1) - c.X(0)}, {kR, Radius(c, {0, 1, 2, 3})}});
}

ProfileParameters Trapezium(const CornerRing& c) {
  return Parameters({{kH, c.Y(3) - c.Y(0)},
                     {kB, c.X(1) - c.X(0)},
                     {kB1, c.X(2) - c.X(3)},
                     {kOffset, c.X(3) - c.X(0)}});
}

ProfileParameters AsymmetricI(const CornerRing& c) {
  return Parameters({{kH, c.Y(6) - c.Y(0)},
                     {kB, c.X(1) - c.X(0)},
                     {kTw, c.X(3) - c.X(10)},
                     {kTf, c.Y(2) - c.Y(1)},
                     {kR, Radius(c, {3, 10})},
                     {kB1, c.X(6) - c.X(7)},
                     {kTf1, c.Y(6) - c.Y(5)},
                     {kR1, Radius(c, {4, 9})}});
}

ProfileParameters SymmetricI(const CornerRing& c) {
  return Parameters({{kH, c.Y(6) - c.Y(0)},
                     {kB, Mean(c.X(1) - c.X(0), c.X(6) - c.X(7))},
                     {kTw, c.X(3) - c.X(10)},
                     {kTf, Mean(c.Y(2) - c.Y(1), c.Y(6) - c.Y(5))},
                     {kR, Radius(c, {3, 4, 9, 10})}});
}

// With flanges that slope. The thickness is that in the middle of each half of a flange.
ProfileParameters TaperedI(const CornerRing& c) {
  ProfileParameters parameters = SymmetricI(c);
  const auto value = [&parameters](ProfileParameter parameter) -> double& {
    return parameters[static_cast<std::size_t>(parameter)];
  };
  const double width = (value(kB) - value(kTw)) / 2.0;
  const double rise =
      Mean(Mean(c.Y(3) - c.Y(2), c.Y(10) - c.Y(11)), Mean(c.Y(5) - c.Y(4), c.Y(8) - c.Y(9)));
  const double slope = rise / width;
  value(kTf) += value(kB) / 4.0 * slope;
  value(kR1) = Radius(c, {2, 5, 8, 11});
  value(kSlope) = std::atan(slope);
  return parameters;
}

ProfileParameters U(const CornerRing& c) {
  const double b = c.X(1) - c.X(0);
  const double width = c.X(2) - c.X(3);
  const double slope = Mean(c.Y(3) - c.Y(2), c.Y(5) - c.Y(4)) / width;
  const double toe = Mean(c.Y(2) - c.Y(1), c.Y(6) - c.Y(5));
  return Parameters({{kH, c.Y(7) - c.Y(0)},
                     {kB, b},
                     {kTw, c.X(3) - c.X(0)},
                     {kTf, toe + b / 2.0 * slope},
                     {kR, Radius(c, {3, 4})},
                     {kR1, Radius(c, {2, 5})},
                     {kSlope, std::atan(slope)}});
}

ProfileParameters L(const CornerRing& c) {
  const double h = c.Y(5) - c.Y(0);
  const double b = c.X(1) - c.X(0);
  const double slope =
      Mean((c.Y(3) - c.Y(2)) / (c.X(2) - c.X(3)), (c.X(3) - c.X(4)) / (c.Y(4) - c.Y(3)));
  const double t = Mean(c.Y(2) - c.Y(1) + b / 2.0 * slope, c.X(4) - c.X(5) + h / 2.0 * slope);
  return Parameters({{kH, h},
                     {kB, b},
                     {kT, t},
                     {kR, c.R(3)},
                     {kR1, Radius(c, {2, 4})},
                     {kSlope, std::atan(slope)}});
}

ProfileParameters T(const CornerRing& c) {
  const double b = c.X(4) - c.X(5);
  const double slope =
      Mean((c.Y(3) - c.Y(2)) / (c.X(3) - c.X(2)), (c.Y(6) - c.Y(7)) / (c.X(7) - c.X(6)));
  const double toe = Mean(c.Y(4) - c.Y(3), c.Y(5) - c.Y(6));
  return Parameters({{kH, c.Y(4) - c.Y(0)},
                     {kB, b},
                     {kTw, c.X(1) - c.X(0)},
                     {kTf, toe + b / 4.0 * slope},
                     {kR, Radius(c, {2, 7})},
                     {kR1, Radius(c, {3, 6})},
                     {kSlope, std::atan(slope)}});
}

ProfileParameters Z(const CornerRing& c) {
  return Parameters({{kH, c.Y(4) - c.Y(0)},
                     {kB, Mean(c.X(1) - c.X(0), c.X(4) - c.X(5))},
                     {kTw, c.X(4) - c.X(0)},
                     {kTf, Mean(c.Y(2) - c.Y(1), c.Y(5) - c.Y(6))},
                     {kR, Radius(c, {3, 7})},
                     {kR1, Radius(c, {2, 6})}});
}

ProfileParameters C(const CornerRing& c) {
  return Parameters({{kH, c.Y(11) - c.Y(0)},
                     {kB, c.X(1) - c.X(0)},
                     {kT, c.X(5) - c.X(0)},
                     {kC, Mean(c.Y(2) - c.Y(1), c.Y(10) - c.Y(9))},
                     {kR, Radius(c, {4, 5, 6, 7})}});
}

// The same without a slope.
template <ProfileParameters (*measure)(const CornerRing&)>
ProfileParameters Straight(const CornerRing& c) {
  ProfileParameters parameters = measure(c);
  parameters[static_cast<std::size_t>(kSlope)] = 0.0;
  return parameters;
}

}  // namespace

const std::vector<ShapeMeasure>& ShapeMeasures() {
  static const std::vector<ShapeMeasure> measures = {
      {ProfileShape::kRectangle, 4, Rectangle},
      {ProfileShape::kRoundedRectangle, 4, RoundedRectangle},
      {ProfileShape::kTrapezium, 4, Trapezium},
      {ProfileShape::kL, 6, Straight<L>},
      {ProfileShape::kL, 6, L},
      {ProfileShape::kU, 8, Straight<U>},
      {ProfileShape::kU, 8, U},
      {ProfileShape::kT, 8, Straight<T>},
      {ProfileShape::kT, 8, T},
      {ProfileShape::kZ, 8, Z},
      {ProfileShape::kI, 12, SymmetricI},
      {ProfileShape::kI, 12, TaperedI},
      {ProfileShape::kAsymmetricI, 12, AsymmetricI},
      {ProfileShape::kC, 12, C},
  };
  return measures;
}

}  // namespace KelIFC::building
