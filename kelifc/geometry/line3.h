#ifndef KELIFC_GEOMETRY_LINE3_H_
#define KELIFC_GEOMETRY_LINE3_H_

#include <cstdint>

#include "kelifc/geometry/line_hit3.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

struct Plane3;

/// A line without ends. Whether it is one is tested once and kept, so a line that was asked must
/// not be changed.
struct KELIFC_API Line3 {
  Vector3 direction;
  Point3 origin;
  double squaredLength = 0.0;  ///< of the direction, once the line was tested
  double unused = 0.0;
  std::int8_t state = 0;  ///< 0 not yet tested, 1 valid, -1 degenerate
  std::int8_t unusedFlag = 0;
  double tolerance;  ///< a shorter direction makes no line; negative stands for 1e-10

  Line3(const Point3& through, const Vector3& along, double shortest)
      : direction(along), origin(through), tolerance(shortest) {}

  bool IsValid();

  /// The foot of the perpendicular from a point; none for a degenerate line.
  LineHit3 Foot(const Point3& point);

  /// Whether line and plane are parallel; false if either is degenerate. A negative `limit` stands
  /// for 1e-10.
  bool IsParallel(Plane3& plane, double limit);
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_LINE3_H_
