#ifndef KELIFC_BUILDING_ELEMENT_SOLID_H_
#define KELIFC_BUILDING_ELEMENT_SOLID_H_

#include "kelifc/building/building.h"
#include "kelifc/building/mesh.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// The solid of an element in world coordinates, in metres. The solid of a member is its profile
/// swept along its axis; that of a surface is its region with the thickness, without the arcs of
/// holes; that of a body is the boundary that was kept. Arcs are replaced by chords of at most 0.1
/// mm error, and openings are not subtracted.
///
/// `element` need not be an element of the building, but its profiles are indices in
/// Building::profiles. The result is empty if an index is not valid, if the sizes define no solid,
/// or if the body was not kept. A coordinate that is not finite gives points that are not finite.
KELIFC_API Mesh SolidOf(const Building& building, const BuildingElement& element);

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_ELEMENT_SOLID_H_
