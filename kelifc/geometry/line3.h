#ifndef KELIFC_GEOMETRY_LINE3_H_
#define KELIFC_GEOMETRY_LINE3_H_

#include <cstdint>

#include "kelifc/geometry/line_hit3.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

struct Plane3;

/// An infinite line. The first test of its validity is cached in `state`, so the direction and the
/// tolerance must not change after it. A copy has the cached result, too.
struct KELIFC_API Line3 {
  Vector3 direction;           ///< of any length
  Point3 origin;               ///< any point of the line
  double squaredLength = 0.0;  ///< square of the length of `direction`; set by the test
  double unused = 0.0;         ///< keeps the size of the structure
  std::int8_t state = 0;       ///< 0 not yet tested, 1 valid, -1 degenerate
  std::int8_t unusedFlag = 0;  ///< keeps the size of the structure
  double tolerance;            ///< least length of a valid direction; a negative value means 1e-10

  /// The line through a point along a direction of any length. `shortest` becomes the tolerance.
  Line3(const Point3& through, const Vector3& along, double shortest)
      : direction(along), origin(through), tolerance(shortest) {}

  /// Returns false if the direction is shorter than the tolerance.
  bool IsValid();

  /// Returns the foot of the perpendicular from a point to the line. There is no foot on a
  /// degenerate line.
  LineHit3 Foot(const Point3& point);

  /// Returns true if the sine of the angle between line and plane is below `limit`. A negative
  /// `limit` means 1e-10. Returns false if the line or the plane is degenerate.
  bool IsParallel(Plane3& plane, double limit);
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_LINE3_H_
