#ifndef KELIFC_GEOMETRY_PLACED_BOUNDARY_H_
#define KELIFC_GEOMETRY_PLACED_BOUNDARY_H_

#include <memory>
#include <vector>

#include "kelifc/geometry/brep.h"
#include "kelifc/geometry/isometry3.h"

namespace KelIFC {

/// A boundary in coordinates of its own, and its place in the world. Most boundaries are never
/// shown, and elements of the same shape share it. So the boundary in the world is computed when it
/// is asked for.
struct PlacedBoundary {
  std::shared_ptr<const BRep> shape;  ///< null for no boundary

  /// The transforms to the world, which are applied one after the other. Their product would round
  /// differently.
  std::vector<Isometry3> transforms;

  /// Returns the boundary in the world; an empty one if there is no shape.
  BRep ToWorld() const;
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_PLACED_BOUNDARY_H_
