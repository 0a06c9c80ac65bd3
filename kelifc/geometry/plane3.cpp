#include "kelifc/geometry/plane3.h"

#include "kelifc/geometry/constants.h"

namespace KelIFC {

namespace {

constexpr double kLeastSquare = kDirectionTolerance * kDirectionTolerance;

/// Makes IsParallel use its default tolerance.
constexpr double kUsualTolerance = -1.0;

}  // namespace

bool Plane3::IsValid() {
  if (state == 0) {
    squaredNorm = Dot(normal, normal);
    state = kLeastSquare > squaredNorm ? -1 : 1;
  }
  return state == 1;
}

double Plane3::SquaredDistance(const Point3& point) {
  if (!IsValid()) return 0.0;
  const double distance = Dot(normal, point - Origin3) + offset;
  return distance * distance / squaredNorm;
}

LineHit3 Plane3::Intersect(Line3& line) {
  if (!line.IsValid() || !IsValid()) return {};
  if (line.IsParallel(*this, kUsualTolerance)) {
    const bool isInside = SquaredDistance(line.origin) < kLeastSquare;
    return {isInside ? line.origin : Point3(), false};
  }
  const Vector3 moment = Cross(line.origin - Origin3, line.direction);
  const Vector3 x =
      (Cross(normal, moment) + -(offset * line.direction)) / Dot(normal, line.direction);
  return {Origin3 + x, true};
}

}  // namespace KelIFC
