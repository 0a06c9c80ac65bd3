#ifndef KELIFC_GEOMETRY_PLANE3_H_
#define KELIFC_GEOMETRY_PLANE3_H_

#include <cstdint>

#include "kelifc/geometry/line3.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A plane: all points X with normal * X + offset = 0. The first test of its validity is cached in
/// `state`, so the normal must not change after it. A copy has the cached result, too.
struct KELIFC_API Plane3 {
  Vector3 normal;            ///< of any length
  double offset = 0.0;       ///< the constant of the equation
  double squaredNorm = 0.0;  ///< square of the length of `normal`; set by the test
  double unused = 0.0;       ///< keeps the size of the structure
  std::int8_t state = 0;     ///< 0 not yet tested, 1 valid, -1 degenerate

  Plane3() = default;
  /// The plane with the normal `across` and the offset `constant`.
  Plane3(const Vector3& across, double constant) : normal(across), offset(constant) {}

  /// Returns false if the normal is shorter than 1e-10.
  bool IsValid();

  /// Returns the square of the distance of a point from the plane, 0 for a degenerate plane.
  double SquaredDistance(const Point3& point);

  /// Returns the point at which a line meets the plane. There is none if the line is parallel to
  /// the plane or inside it, or if one of them is degenerate.
  LineHit3 Intersect(Line3& line);
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_PLANE3_H_
