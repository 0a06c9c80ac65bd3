#ifndef KELIFC_GEOMETRY_LINE_HIT3_H_
#define KELIFC_GEOMETRY_LINE_HIT3_H_

#include "kelifc/geometry/point.h"

namespace KelIFC {

/// What an intersection or a projection gives. Without a hit, look at `found` only.
struct LineHit3 {
  Point3 point;
  bool found = false;
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_LINE_HIT3_H_
