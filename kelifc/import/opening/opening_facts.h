#ifndef KELIFC_IMPORT_OPENING_OPENING_FACTS_H_
#define KELIFC_IMPORT_OPENING_OPENING_FACTS_H_

#include <optional>

#include "kelifc/import/model/identity.h"
#include "kelifc/import/shape/extrusion_facts.h"
#include "kelifc/import/shape/placement_chain.h"

namespace KelIFC {

/// What an opening of a wall is taken for.
enum class OpeningUse { kNothing, kWindow, kDoor };

/// An opening of a wall or a slab.
struct OpeningFacts {
  IdentityFacts identity;
  OpeningUse use = OpeningUse::kNothing;
  std::optional<ExtrusionFacts> solid;  ///< the first of its representations
  PlacementChain chain;
};

/// The contour at the middle of the opening's depth, in the opening's own coordinates; empty if its
/// profile is not understood. A contour of at most 2 points stays in the profile's plane.
Mvector<Point3> OpeningContour(const OpeningFacts& opening);

/// Opposite corners of the opening at the middle of its depth, in world coordinates. They stay at
/// the origin of the world if its profile is not understood.
void OpeningCorners(const OpeningFacts& opening, Point3& first, Point3& second);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_OPENING_OPENING_FACTS_H_
