#ifndef KELIFC_IMPORT_OPENING_BUILD_OPENINGS_H_
#define KELIFC_IMPORT_OPENING_BUILD_OPENINGS_H_

#include <vector>

#include "kelifc/geo/openings.h"
#include "kelifc/geo/plate.h"
#include "kelifc/geo/wall.h"
#include "kelifc/import/opening/opening_facts.h"

namespace KelIFC {

// An opening becomes an object with its own name, identifier and shape, whatever fills it. The
// objects go into a collection of the element that has the opening. A failure to get the collection
// or to make an object ends the walk; objects made until then stay.

/// Makes a hole of each opening, one without a contour too.
HRESULT ConvertHoles(CoGeoPlate& plate, const std::vector<OpeningFacts>& openings,
                     const ServerLink& server);

/// Makes a window or a door of each opening that is taken for one.
HRESULT ConvertWindowsAndDoors(CoGeoWall& wall, const std::vector<OpeningFacts>& openings,
                               const ServerLink& server);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_OPENING_BUILD_OPENINGS_H_
