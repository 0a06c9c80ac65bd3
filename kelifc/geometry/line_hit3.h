#ifndef KELIFC_GEOMETRY_LINE_HIT3_H_
#define KELIFC_GEOMETRY_LINE_HIT3_H_

#include "kelifc/geometry/point.h"

namespace KelIFC {

/// The result of an intersection or a projection. `point` is meaningful only if `found` is true.
struct LineHit3 {
  Point3 point;
  bool found = false;
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_LINE_HIT3_H_
