#ifndef KELIFC_BUILDING_MEASURES_H_
#define KELIFC_BUILDING_MEASURES_H_

#include <optional>

#include "kelifc/building/building.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

// Sizes of idealised elements, in metres and square metres. Arcs are measured as arcs.

/// The length of the axis of a member.
KELIFC_API double LengthOf(const MemberAxis& member);

/// The length of the base line of a curved wall, which is the curve at its lower edge.
KELIFC_API double LengthOf(const WallSweep& sweep);

/// The length of the outline and of all holes of a surface; of a curved wall that of its base line.
KELIFC_API double PerimeterOf(const SurfaceRegion& surface);

/// The area of a surface without its holes; of a curved wall the length of its base line times its
/// height. Openings are not subtracted.
KELIFC_API double AreaOf(const SurfaceRegion& surface);

/// The length of an element as a take-off states it: of a member that of its axis, of a curved wall
/// that of its base line, of a plane surface that is steeper than 45 degrees its horizontal extent.
/// None for the others.
KELIFC_API std::optional<double> LengthOf(const BuildingElement& element);

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_MEASURES_H_
