#ifndef KELIFC_GEOMETRY_LOCAL_PLANE_H_
#define KELIFC_GEOMETRY_LOCAL_PLANE_H_

#include "kelifc/geometry/isometry3.h"

namespace KelIFC {

/// A plane by its frame, which takes (x, y, 0) to the world. A caller makes it.
struct LocalPlane : Isometry3 {};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_LOCAL_PLANE_H_
