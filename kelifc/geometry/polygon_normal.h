#ifndef KELIFC_GEOMETRY_POLYGON_NORMAL_H_
#define KELIFC_GEOMETRY_POLYGON_NORMAL_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

/// The normal of a closed polygon in space, of length 1: seen against it the points turn
/// counter-clockwise. Zero if there are fewer than three points, or if all of them lie on a line
/// with the first two.
Vector3 PolygonNormal(const Mvector<Point3>& points, double tolerance);

/// The same, with a list that is used for the points in the plane, for walks over many polygons.
Vector3 PolygonNormal(const Mvector<Point3>& points, double tolerance, Mvector<Point2>& plane);

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_POLYGON_NORMAL_H_
