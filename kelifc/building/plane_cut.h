#ifndef KELIFC_BUILDING_PLANE_CUT_H_
#define KELIFC_BUILDING_PLANE_CUT_H_

#include <vector>

#include "kelifc/building/mesh.h"
#include "kelifc/building/profile.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A region of a horizontal plane, in the world coordinates x and y, in metres.
struct CutRegion {
  Outline outer;               ///< counter-clockwise seen from above
  std::vector<Outline> holes;  ///< clockwise
};

/// The regions in which the horizontal plane at the height `z` cuts a closed mesh, the largest
/// first. A face that lies in the plane counts as above it. The result is empty if the plane does
/// not cut the mesh, if `z` is not finite, or if the mesh has gaps so that the edges of the cut do
/// not form loops.
KELIFC_API std::vector<CutRegion> CutAtHeight(const Mesh& mesh, double z);

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_PLANE_CUT_H_
