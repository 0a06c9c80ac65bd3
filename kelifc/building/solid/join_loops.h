#ifndef KELIFC_BUILDING_SOLID_JOIN_LOOPS_H_
#define KELIFC_BUILDING_SOLID_JOIN_LOOPS_H_

#include "kelifc/building/solid/polygon_ring.h"

namespace KelIFC::building {

/// Joins the holes of a region to its outer loop, so that one loop remains. A join runs from the
/// leftmost point of a hole to another point of the region and back; no points are added, but both
/// ends get a second node. The first loop is the outer one, counter-clockwise; the others are
/// holes, clockwise. Joins cross nothing if the loops do not cross. A hole outside of the region is
/// not joined. The time is n log n; beyond about 100 tests for each node joins can cross edges.
void JoinLoops(PolygonRing& ring);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_JOIN_LOOPS_H_
