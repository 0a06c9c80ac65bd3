#ifndef KELIFC_GEOMETRY_LINE_HIT3_H_
#define KELIFC_GEOMETRY_LINE_HIT3_H_

#include "kelifc/geometry/point.h"

namespace KelIFC {

/// The result of an intersection or a projection. `point` is meaningful only if `found` is true.
struct LineHit3 {
  Point3 point;        ///< the common point, or the foot of the perpendicular
  bool found = false;  ///< false if there is no such point
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_LINE_HIT3_H_
