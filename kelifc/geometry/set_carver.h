#ifndef KELIFC_GEOMETRY_SET_CARVER_H_
#define KELIFC_GEOMETRY_SET_CARVER_H_

#include "kelifc/geometry/line3.h"
#include "kelifc/geometry/local_plane.h"
#include "kelifc/geometry/plane3.h"
#include "kelifc/geometry/point.h"
#include "kelifc/geometry/sector2.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// Moves a point parallel to the z axis onto a plane. The point is left unchanged if the plane is
/// vertical or degenerate.
KELIFC_API void project_node_vertically2xx(Point3& node, const Plane3& plane);

/// Extends the segment `sector` by one edge of the outline of a plane, or starts it if `isSet` is
/// false.
///
/// The edge from `a` to `b` is in the coordinates of `localPlane`, in metres. It is projected onto
/// `plane`, parallel to the z axis. `sector` is in a side view: its x and y are the x and z of the
/// world. Its ends are compared with the x of the feet of the edge on `line`.
///
/// Nothing changes if `line` is degenerate, or if the feet of the edge are no more than 0.001 apart
/// along x.
KELIFC_API void SetCarver2xx(Point2& a, Point2& b, LocalPlane& localPlane, Plane3& plane,
                             Sector2& sector, Line3& line, bool& isSet);

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_SET_CARVER_H_
