#include "kelifc/geometry/rotation2.h"

namespace KelIFC {

double DirectionAngle(double x, double y) {
  constexpr double kHalfPi = 1.57079632679489661923;
  if (x == 0.0) {
    if (y == 0.0) return 0.0;
    return y < 0.0 ? -kHalfPi : kHalfPi;
  }
  const double magnitude = std::abs(std::atan2(y, x));
  return y < 0.0 ? -magnitude : magnitude;
}

}  // namespace KelIFC
