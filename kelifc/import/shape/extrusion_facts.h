#ifndef KELIFC_IMPORT_SHAPE_EXTRUSION_FACTS_H_
#define KELIFC_IMPORT_SHAPE_EXTRUSION_FACTS_H_

#include "kelifc/geometry/isometry3.h"
#include "kelifc/import/shape/profile_facts.h"

namespace KelIFC {

/// An extruded solid: a profile that is moved along a straight line.
struct ExtrusionFacts {
  ProfileFacts profile;

  /// From the profile's plane to the product, in metres; the identity if unset.
  Isometry3 position;

  Vector3 direction;   ///< in the coordinates of the profile, not normalised; zero if unset
  double depth = 0.0;  ///< in the length unit of the file
  double scale = 1.0;  ///< the factor from that unit to metres
};

/// Returns the vector from the profile's plane to the end of the extrusion, in metres and in the
/// coordinates of the profile; zero if the direction is zero.
inline Vector3 ExtrusionOf(const ExtrusionFacts& solid) {
  Vector3 direction = solid.direction;
  Normalise(direction);
  return direction * (solid.scale * solid.depth);
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_EXTRUSION_FACTS_H_
