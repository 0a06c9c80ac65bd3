#ifndef KELIFC_IMPORT_SHAPE_EXTRUSION_FACTS_H_
#define KELIFC_IMPORT_SHAPE_EXTRUSION_FACTS_H_

#include "kelifc/geometry/isometry3.h"
#include "kelifc/import/shape/profile_facts.h"

namespace KelIFC {

/// A profile moved along a straight line.
struct ExtrusionFacts {
  ProfileFacts profile;
  Isometry3 position;  ///< of the profile's plane in the product; the identity without one
  Vector3 direction;   ///< as the file has it, zero without one
  double depth = 0.0;  ///< in the unit of the file
  double scale = 1.0;  ///< from the unit of the file to metres
};

/// From the profile's plane to the end, in metres: the normalised direction times the depth.
inline Vector3 ExtrusionOf(const ExtrusionFacts& solid) {
  Vector3 direction = solid.direction;
  Normalise(direction);
  return direction * (solid.scale * solid.depth);
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_EXTRUSION_FACTS_H_
