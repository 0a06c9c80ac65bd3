#ifndef KELIFC_GEOMETRY_BOX2_H_
#define KELIFC_GEOMETRY_BOX2_H_

#include "kelifc/geometry/point.h"

namespace KelIFC {

/// A box of the plane, along the axes.
struct Box2 {
  Point2 min;
  Point2 max;
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_BOX2_H_
