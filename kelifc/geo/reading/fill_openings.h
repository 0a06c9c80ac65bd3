#ifndef KELIFC_GEO_READING_FILL_OPENINGS_H_
#define KELIFC_GEO_READING_FILL_OPENINGS_H_

#include "kelifc/building/building.h"
#include "kelifc/geo/plate.h"
#include "kelifc/geo/wall.h"

namespace KelIFC {

// The openings of an element of a building. They are in the storey of the element. An opening whose
// body could not be read is shown without points.

/// Fills the windows and the doors of a wall. An opening that nothing fills is a window. Each has
/// two opposite corners in the middle plane of the wall.
HRESULT FillWindowsAndDoors(CoGeoWall& wall, const BuildingElement& element);

/// Fills the holes of a plate with the outlines of its openings in its middle plane.
HRESULT FillHoles(CoGeoPlate& plate, const BuildingElement& element);

}  // namespace KelIFC

#endif  // KELIFC_GEO_READING_FILL_OPENINGS_H_
