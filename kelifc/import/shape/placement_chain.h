#ifndef KELIFC_IMPORT_SHAPE_PLACEMENT_CHAIN_H_
#define KELIFC_IMPORT_SHAPE_PLACEMENT_CHAIN_H_

#include <cstddef>
#include <vector>

#include "kelifc/geometry/brep.h"
#include "kelifc/geometry/isometry3.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

/// The frames of an object placement and of the placements it is relative to, in metres, the own
/// one first.
using PlacementChain = std::vector<Isometry3>;

// Takes a thing from the coordinates of a product to those of the world: one frame after the other
// acts on the stored data, and no cumulative frame is built. A vector has no place, so it is
// turned but not moved.

void ApplyPlacementChain(const PlacementChain& chain, Point3& target);
void ApplyPlacementChain(const PlacementChain& chain, Vector3& target);
void ApplyPlacementChain(const PlacementChain& chain, Mvector<Point3>& target);
void ApplyPlacementChain(const PlacementChain& chain, BRep& target);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_PLACEMENT_CHAIN_H_
