#ifndef KELIFC_GEOMETRY_LOCAL_PLANE_H_
#define KELIFC_GEOMETRY_LOCAL_PLANE_H_

#include "kelifc/geometry/isometry3.h"

namespace KelIFC {

/// A plane with a frame of its own: the transform maps (x, y, 0) to world coordinates. The library
/// reads such planes; only hosts make them.
struct LocalPlane : Isometry3 {};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_LOCAL_PLANE_H_
