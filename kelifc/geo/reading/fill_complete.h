#ifndef KELIFC_GEO_READING_FILL_COMPLETE_H_
#define KELIFC_GEO_READING_FILL_COMPLETE_H_

#include "kelifc/geo/collections.h"
#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/geo/storeys.h"

namespace KelIFC {

// The complete reading fills the collections of the structure from the building model. Each
// function is called once for a new, empty collection and stores the link to the server object in
// it. If it fails, the items that it has added stay.

/// Fills the storeys in ascending order of their elevations. Levels and heights are in the unit of
/// the file. The highest storey has the height 0.
HRESULT FillComplete(CoGeoStoreys& collection, CoIFCServer& server);

// The elements are in the order of the file. Their names are those of the products, and "IFC#" and
// the instance number if a product has none. Openings have no other names.

HRESULT FillComplete(CoGeoColumns& collection, CoIFCServer& server);
HRESULT FillComplete(CoGeoBeams& collection, CoIFCServer& server);
HRESULT FillComplete(CoGeoWalls& collection, CoIFCServer& server);
HRESULT FillComplete(CoGeoPlates& collection, CoIFCServer& server);
HRESULT FillComplete(CoGeoFoots& collection, CoIFCServer& server);

}  // namespace KelIFC

#endif  // KELIFC_GEO_READING_FILL_COMPLETE_H_
