#ifndef KELIFC_BUILDING_OPENED_SOLID_H_
#define KELIFC_BUILDING_OPENED_SOLID_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/building/mesh.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// The solid of an element without its openings.
struct OpenedSolid {
  /// The solid as SolidOf returns it, without what lies in the openings.
  Mesh mesh;

  /// The indices in BuildingElement::openings of those that were not subtracted, by rising index.
  std::vector<std::size_t> uncut;
};

/// The depth in metres that an opening cuts out of an element, half of it on each side of its
/// outline. It is a little more than the depth of the opening, so that no skin is left. An opening
/// that is about as deep as the thickness of a surface goes through the surface. 0 if the opening
/// has no outline or if a value is not finite.
KELIFC_API double CutDepthOf(const BuildingElement& element, const BuildingOpening& opening);

/// The body of an opening: its outline, moved by half of the depth to both sides. The points of the
/// outline come twice, one side after the other. Empty if the outline has no area or if the depth
/// is not positive.
KELIFC_API Mesh OpeningBodyOf(const BuildingOpening& opening, double depth);

/// Subtracts the openings of an element from its solid. An opening is not subtracted if its
/// CutDepthOf is 0, if it does not go through a plane surface, if the boundary of a body is not
/// closed, if nothing would be left, if the difference cannot be computed, or if very many openings
/// come before it. The mesh is empty if SolidOf returns an empty one.
KELIFC_API OpenedSolid OpenedSolidOf(const Building& building, const BuildingElement& element);

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_OPENED_SOLID_H_
