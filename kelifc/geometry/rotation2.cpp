#include "kelifc/geometry/rotation2.h"

#include <numbers>

namespace KelIFC {

double DirectionAngle(double x, double y) {
  constexpr double kHalfPi = std::numbers::pi / 2;
  if (x == 0.0) {
    if (y == 0.0) return 0.0;
    return y < 0.0 ? -kHalfPi : kHalfPi;
  }
  const double magnitude = std::abs(std::atan2(y, x));
  return y < 0.0 ? -magnitude : magnitude;
}

}  // namespace KelIFC
