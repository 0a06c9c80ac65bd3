#ifndef KELIFC_IMPORT_OPENING_BUILD_OPENINGS_H_
#define KELIFC_IMPORT_OPENING_BUILD_OPENINGS_H_

#include <vector>

#include "kelifc/geo/openings.h"
#include "kelifc/geo/plate.h"
#include "kelifc/geo/wall.h"
#include "kelifc/import/opening/opening_facts.h"

namespace KelIFC {

// Each opening becomes an element with the name, the identifier and the shape of the opening, not
// of the product that fills it. The element is appended to a collection of the wall or plate. If
// the collection or an element cannot be created, the functions return that failure and stop;
// elements that were appended before remain.

/// Appends a hole for each opening, even if its contour is empty.
HRESULT ConvertHoles(CoGeoPlate& plate, const std::vector<OpeningFacts>& openings,
                     const ServerLink& server);

/// Appends a window or a door for each opening whose use is one of the two.
HRESULT ConvertWindowsAndDoors(CoGeoWall& wall, const std::vector<OpeningFacts>& openings,
                               const ServerLink& server);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_OPENING_BUILD_OPENINGS_H_
