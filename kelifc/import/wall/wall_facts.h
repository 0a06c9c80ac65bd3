#ifndef KELIFC_IMPORT_WALL_WALL_FACTS_H_
#define KELIFC_IMPORT_WALL_WALL_FACTS_H_

#include <optional>
#include <vector>

#include "kelifc/import/model/identity.h"
#include "kelifc/import/opening/opening_facts.h"
#include "kelifc/import/shape/extrusion_facts.h"
#include "kelifc/import/shape/placement_chain.h"

namespace KelIFC {

/// A wall that is an extrusion.
struct WallFacts {
  IdentityFacts identity;
  ExtrusionFacts solid;
  PlacementChain chain;
  std::vector<OpeningFacts> openings;
};

/// A wall as the diagonal of its axis plane: from the foot of one end to the head of the other.
struct WallBox {
  Point3 first;
  Point3 second;
  double thickness = 0.0;
};

/// The box of a wall in the wall's coordinates: its length along the x of the profile, whatever is
/// longer, its thickness along y, its height along the local z, whatever the direction of the
/// extrusion. A curved or slanted outline counts by its bounding box. Nothing for a profile that is
/// neither a rectangle nor a polyline.
std::optional<WallBox> ExtractWallBox(const ExtrusionFacts& solid);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_WALL_WALL_FACTS_H_
