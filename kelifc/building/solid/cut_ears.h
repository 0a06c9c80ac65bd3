#ifndef KELIFC_BUILDING_SOLID_CUT_EARS_H_
#define KELIFC_BUILDING_SOLID_CUT_EARS_H_

#include <array>
#include <cstdint>
#include <vector>

#include "kelifc/building/solid/polygon_ring.h"

namespace KelIFC::building {

/// The indices of the points of a triangle, counter-clockwise unless stated.
using Triangle2 = std::array<std::uint32_t, 3>;

/// What to do with the parts of a loop that crosses itself and runs clockwise there.
enum class ClockwiseParts {
  kLeftOut,  ///< all triangles are counter-clockwise
  kKept      ///< triangles are clockwise there, so that the signed area of the loop is kept
};

/// Cuts the loop that contains node 0 into triangles by cutting off ears. Of a loop that crosses
/// itself the triangles overlap. The number of tests is limited to about 200 for each node; beyond
/// that the ears of hostile loops are cut off untested.
std::vector<Triangle2> CutEars(PolygonRing& ring, ClockwiseParts clockwise);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_CUT_EARS_H_
