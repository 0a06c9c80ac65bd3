#ifndef KELIFC_GEOMETRY_PLANE3_H_
#define KELIFC_GEOMETRY_PLANE3_H_

#include <cstdint>

#include "kelifc/geometry/line3.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A plane: all points X with normal * X + offset = 0. Whether it is one is tested once and kept,
/// so a plane that was asked must not be changed.
struct KELIFC_API Plane3 {
  Vector3 normal;  ///< of any length
  double offset = 0.0;
  double squaredNorm = 0.0;  ///< of the normal, once the plane was tested
  double unused = 0.0;
  std::int8_t state = 0;  ///< 0 not yet tested, 1 valid, -1 degenerate

  Plane3() = default;
  Plane3(const Vector3& across, double constant) : normal(across), offset(constant) {}

  bool IsValid();

  /// 0 for a degenerate plane.
  double SquaredDistance(const Point3& point);

  /// Where a line meets the plane. A line that is parallel to the plane does not, one inside it
  /// neither.
  LineHit3 Intersect(Line3& line);
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_PLANE3_H_
