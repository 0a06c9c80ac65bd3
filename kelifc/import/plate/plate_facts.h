#ifndef KELIFC_IMPORT_PLATE_PLATE_FACTS_H_
#define KELIFC_IMPORT_PLATE_PLATE_FACTS_H_

#include <optional>
#include <vector>

#include "kelifc/import/model/identity.h"
#include "kelifc/import/opening/opening_facts.h"
#include "kelifc/import/shape/extrusion_facts.h"
#include "kelifc/import/shape/placement_chain.h"

namespace KelIFC {

/// The kind of item that decides what becomes of a slab.
enum class PlateItem {
  kNone,       ///< no item of the other kinds
  kUnused,     ///< a faceted solid, a surface model or a clipping: the slab is skipped
  kExtrusion,  ///< the slab becomes a plate
};

/// A slab. Only `item` is set unless it is kExtrusion.
struct PlateFacts {
  PlateItem item = PlateItem::kNone;
  IdentityFacts identity;
  ExtrusionFacts solid;
  PlacementChain chain;
  std::vector<OpeningFacts> openings;
};

/// The middle plane of a plate.
struct PlateShape {
  /// In metres and in the coordinates of the slab. The first point is not repeated at the end.
  Mvector<Point3> contour;

  /// The distance of the faces in metres. It is less than the depth if the extrusion is oblique.
  double thickness = 0.0;
};

/// Computes the shape of a plate. Returns nothing if the profile is not supported, or has fewer
/// than three points. Holes in the profile are ignored.
std::optional<PlateShape> ExtractPlateShape(const ExtrusionFacts& solid);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_PLATE_PLATE_FACTS_H_
