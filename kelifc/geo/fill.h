#ifndef KELIFC_GEO_FILL_H_
#define KELIFC_GEO_FILL_H_

#include <vector>

#include "kelifc/geo/collections.h"
#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/geo/storeys.h"

namespace KelIFC {

// What the objects need from the conversion. The folder kelifc/import defines these functions, so
// no include points to it.
//
// Each Fill function is called once for a new, empty collection and stores the link to the server
// object in it. If it fails, the items that it has added stay. A model of a release without a
// conversion adds no items, and the status is S_OK.

/// The storey filter that accepts every storey. The Fill functions return E_NOTIMPL for any other.
inline constexpr SHORT kAllStoreys = -1;

HRESULT FillStoreys(CoGeoStoreys& collection, CoIFCServer& server);
HRESULT FillColumns(CoGeoColumns& collection, CoIFCServer& server, SHORT storeyFilter);
HRESULT FillBeams(CoGeoBeams& collection, CoIFCServer& server, SHORT storeyFilter);
HRESULT FillWalls(CoGeoWalls& collection, CoIFCServer& server, SHORT storeyFilter);
HRESULT FillPlates(CoGeoPlates& collection, CoIFCServer& server, SHORT storeyFilter);
HRESULT FillFoots(CoGeoFoots& collection, CoIFCServer& server, SHORT storeyFilter);

/// Returns the factor from lengths of the file to metres, or 1 if the model does not define its
/// length unit. It is computed anew at each call.
double LengthScaleOf(IfcServer& server);

/// Returns the identifiers of the spatial structures that contain an instance, in the order of the
/// relations. The result is empty for an instance that is not an element, and for a release without
/// a conversion.
std::vector<_GUID> ContainingStructures(const IfcUnknown& instance);

}  // namespace KelIFC

#endif  // KELIFC_GEO_FILL_H_
