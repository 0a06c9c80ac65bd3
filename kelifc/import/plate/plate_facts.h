#ifndef KELIFC_IMPORT_PLATE_PLATE_FACTS_H_
#define KELIFC_IMPORT_PLATE_PLATE_FACTS_H_

#include <optional>
#include <vector>

#include "kelifc/import/model/identity.h"
#include "kelifc/import/opening/opening_facts.h"
#include "kelifc/import/shape/extrusion_facts.h"
#include "kelifc/import/shape/placement_chain.h"

namespace KelIFC {

/// What a slab is made of.
enum class PlateItem {
  kNone,    ///< nothing that a plate could come from
  kUnused,  ///< a solid that makes no plate
  kExtrusion,
};

/// A slab.
struct PlateFacts {
  PlateItem item = PlateItem::kNone;
  IdentityFacts identity;
  ExtrusionFacts solid;  ///< of an extrusion
  PlacementChain chain;
  std::vector<OpeningFacts> openings;
};

/// The middle plane of a plate.
struct PlateShape {
  Mvector<Point3> contour;  ///< in the plate's coordinates; it is not closed by a repeated point
  double thickness = 0.0;   ///< between the faces: less than the depth of a slanted extrusion
};

/// The shape of a plate; nothing for a profile of at most two points, or one that is not
/// understood. Holes in the profile are not read.
std::optional<PlateShape> ExtractPlateShape(const ExtrusionFacts& solid);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_PLATE_PLATE_FACTS_H_
