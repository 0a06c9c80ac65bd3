#ifndef KELIFC_IMPORT_STOREY_BUILD_STOREYS_H_
#define KELIFC_IMPORT_STOREY_BUILD_STOREYS_H_

#include <vector>

#include "kelifc/geo/storeys.h"
#include "kelifc/import/storey/storey_facts.h"

namespace KelIFC {

/// Appends the storeys to the collection, from the lowest level to the highest. Storeys of the same
/// level keep their order. A storey whose level is NaN is sorted after all others.
///
/// - Number: the lowest storey whose level is -0.001 or more has the number 0; the storeys below it
///   have -1, -2 and so on. A number that does not fit into 16 bits becomes the nearest one that
///   does. The largest of these, 32767, is also the number of an element without a storey.
/// - Height: the distance to the level of the next storey. The height of the highest storey is its
///   elevation, however large that is.
/// - Name: if the storey has none, it is named after its instance number, for example "IFC#123".
///
/// Levels and heights are in the length unit of the file. If an object cannot be created, the
/// function returns that failure; storeys that were appended before remain.
HRESULT BuildStoreys(CoGeoStoreys& collection, std::vector<StoreyFacts> storeys);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_STOREY_BUILD_STOREYS_H_
