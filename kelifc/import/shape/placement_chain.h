#ifndef KELIFC_IMPORT_SHAPE_PLACEMENT_CHAIN_H_
#define KELIFC_IMPORT_SHAPE_PLACEMENT_CHAIN_H_

#include <cstddef>
#include <vector>

#include "kelifc/geometry/isometry3.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

/// The transforms of an object placement and of the placements that it is relative to, in metres.
/// The object's own placement is the first.
using PlacementChain = std::vector<Isometry3>;

// These functions convert from the coordinates of a product to those of the world, in place. They
// apply one transform after the other instead of their product, which would round differently. A
// vector is turned, but not moved.

void ApplyPlacementChain(const PlacementChain& chain, Point3& target);
void ApplyPlacementChain(const PlacementChain& chain, Vector3& target);
void ApplyPlacementChain(const PlacementChain& chain, Mvector<Point3>& target);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_PLACEMENT_CHAIN_H_
