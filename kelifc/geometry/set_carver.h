#ifndef KELIFC_GEOMETRY_SET_CARVER_H_
#define KELIFC_GEOMETRY_SET_CARVER_H_

#include "kelifc/geometry/line3.h"
#include "kelifc/geometry/local_plane.h"
#include "kelifc/geometry/plane3.h"
#include "kelifc/geometry/point.h"
#include "kelifc/geometry/sector2.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// Moves a point along z onto a plane. It stays where it is if the plane is vertical or degenerate.
KELIFC_API void project_node_vertically2xx(Point3& node, const Plane3& plane);

/// Makes a cut segment longer by one edge of a plane's outline, or begins it.
///
/// The edge from `a` to `b` is in the coordinates of `localPlane` and is projected along z onto
/// `plane`. An edge that stands across `line`, whose feet are no more than 0.001 apart along x,
/// changes nothing, nor does a degenerate line. `sector` is seen from the side, as x and z; its
/// ends are compared with the x of the feet. `isSet` tells whether it has begun.
KELIFC_API void SetCarver2xx(Point2& a, Point2& b, LocalPlane& localPlane, Plane3& plane,
                             Sector2& sector, Line3& line, bool& isSet);

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_SET_CARVER_H_
