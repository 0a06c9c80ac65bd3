#ifndef KELIFC_GEOMETRY_BOX2_H_
#define KELIFC_GEOMETRY_BOX2_H_

#include "kelifc/geometry/point.h"

namespace KelIFC {

/// A rectangle whose sides are parallel to the axes: the bounding box of points. Both corners
/// belong to the box. Coordinates are in the unit of the points. A new box holds the origin only.
struct Box2 {
  /// The corner with the lowest x and the lowest y. The code that fills a box keeps it at or below
  /// `max` in both coordinates; nothing checks that.
  Point2 min;

  /// The corner with the highest x and the highest y.
  Point2 max;
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_BOX2_H_
