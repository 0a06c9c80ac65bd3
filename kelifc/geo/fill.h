#ifndef KELIFC_GEO_FILL_H_
#define KELIFC_GEO_FILL_H_

#include <vector>

#include "kelifc/geo/collections.h"
#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/geo/storeys.h"

namespace KelIFC {

// What the objects ask of the conversion. The import folder defines these, so that no include
// points upwards. Each fill runs once for a collection that is new and empty, and stores the link
// to the server object in it. A negative status ends it; what it had made until then stays in the
// collection. A release without a conversion adds nothing, with status 0.

/// A storey filter that lets every storey pass, the only one that there is: any other gives
/// E_NOTIMPL.
inline constexpr SHORT kAllStoreys = -1;

HRESULT FillStoreys(CoGeoStoreys& collection, CoIFCServer& server);
HRESULT FillColumns(CoGeoColumns& collection, CoIFCServer& server, SHORT storeyFilter);
HRESULT FillBeams(CoGeoBeams& collection, CoIFCServer& server, SHORT storeyFilter);
HRESULT FillWalls(CoGeoWalls& collection, CoIFCServer& server, SHORT storeyFilter);
HRESULT FillPlates(CoGeoPlates& collection, CoIFCServer& server, SHORT storeyFilter);
HRESULT FillFoots(CoGeoFoots& collection, CoIFCServer& server, SHORT storeyFilter);

/// The factor from the lengths of the model's file to metres, worked out anew at each call; 1 where
/// the model does not tell.
double LengthScaleOf(IfcServer& server);

/// The identifiers of the spatial structures that contain an instance of the model, in the order of
/// the relations that tell of them; none for what is no element of a release with a conversion.
std::vector<_GUID> ContainingStructures(const IfcUnknown& instance);

}  // namespace KelIFC

#endif  // KELIFC_GEO_FILL_H_
