#ifndef KELIFC_GEOMETRY_POLYGON_NORMAL_H_
#define KELIFC_GEOMETRY_POLYGON_NORMAL_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

/// Returns the normal of a closed polygon in space. It has length 1, and the points turn
/// counter-clockwise when seen from its tip. Returns zero if there are fewer than three points, or
/// if every point is on one line with the first two. The tolerance is a length.
Vector3 PolygonNormal(const Mvector<Point3>& points, double tolerance);

/// The same. `plane` is working memory: a caller that passes the same list for many polygons avoids
/// an allocation for each of them.
Vector3 PolygonNormal(const Mvector<Point3>& points, double tolerance, Mvector<Point2>& plane);

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_POLYGON_NORMAL_H_
