#ifndef KELIFC_IMPORT_WALL_WALL_FACTS_H_
#define KELIFC_IMPORT_WALL_WALL_FACTS_H_

#include <optional>
#include <vector>

#include "kelifc/import/model/identity.h"
#include "kelifc/import/opening/opening_facts.h"
#include "kelifc/import/shape/extrusion_facts.h"
#include "kelifc/import/shape/placement_chain.h"

namespace KelIFC {

/// A wall whose body is an extrusion.
struct WallFacts {
  IdentityFacts identity;
  ExtrusionFacts solid;
  PlacementChain chain;
  std::vector<OpeningFacts> openings;
};

/// A wall as the diagonal of its middle plane: from the bottom of one end to the top of the other.
/// In metres and in the coordinates of the wall.
struct WallBox {
  Point3 first;
  Point3 second;
  double thickness = 0.0;
};

/// Computes the box of a wall. The bounding box of the profile gives the length, which is always
/// along the profile's x axis, and the thickness, which is along y. The height is the depth of the
/// extrusion, which is always taken along the z axis of the solid. Returns nothing if the profile
/// is neither a rectangle nor a polyline.
std::optional<WallBox> ExtractWallBox(const ExtrusionFacts& solid);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_WALL_WALL_FACTS_H_
