#include "kelifc/geometry/line3.h"

#include "kelifc/geometry/constants.h"
#include "kelifc/geometry/plane3.h"

namespace KelIFC {

namespace {

double OrDefault(double tolerance) { return tolerance < 0.0 ? kDirectionTolerance : tolerance; }

}  // namespace

bool Line3::IsValid() {
  if (state == 0) {
    squaredLength = Dot(direction, direction);
    const double least = OrDefault(tolerance);
    state = least * least > squaredLength ? -1 : 1;
  }
  return state == 1;
}

LineHit3 Line3::Foot(const Point3& point) {
  if (!IsValid()) return {};
  return {origin + direction * (Dot(point - origin, direction) / squaredLength), true};
}

bool Line3::IsParallel(Plane3& plane, double limit) {
  const double line = IsValid() ? squaredLength : 0.0;
  const double norm = plane.IsValid() ? plane.squaredNorm : 0.0;
  if (line == 0.0 || norm == 0.0) return false;
  const double least = OrDefault(limit);
  const double cosine = Dot(direction, plane.normal);
  return least * least * line * norm > cosine * cosine;
}

}  // namespace KelIFC
