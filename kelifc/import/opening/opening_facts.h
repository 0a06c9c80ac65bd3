#ifndef KELIFC_IMPORT_OPENING_OPENING_FACTS_H_
#define KELIFC_IMPORT_OPENING_OPENING_FACTS_H_

#include <optional>

#include "kelifc/import/model/identity.h"
#include "kelifc/import/shape/extrusion_facts.h"
#include "kelifc/import/shape/placement_chain.h"

namespace KelIFC {

/// What an opening of a wall is converted into.
enum class OpeningUse { kNothing, kWindow, kDoor };

/// An opening in a wall or a slab.
struct OpeningFacts {
  IdentityFacts identity;
  OpeningUse use = OpeningUse::kNothing;
  std::optional<ExtrusionFacts> solid;  ///< the first extrusion of all its representations
  PlacementChain chain;
};

/// Returns the contour at the middle of the opening's depth, in metres and in the coordinates of
/// the opening. It is empty if there is no solid or the profile is not supported. A contour of one
/// or two points is returned in the plane and the coordinates of the profile.
Mvector<Point3> OpeningContour(const OpeningFacts& opening);

/// Computes two opposite corners of the opening at the middle of its depth, in metres and world
/// coordinates. Leaves `first` and `second` unchanged if there is no solid, or if its profile is
/// neither a rectangle nor a polyline.
void OpeningCorners(const OpeningFacts& opening, Point3& first, Point3& second);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_OPENING_OPENING_FACTS_H_
