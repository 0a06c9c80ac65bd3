#ifndef KELIFC_GEO_BUILDING_COLLECTIONS_H_
#define KELIFC_GEO_BUILDING_COLLECTIONS_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/collection.h"

namespace KelIFC {

// The collections of the building model.

using CoGeoElements = Collection<CoGeoElementsBase, IGeoElement>;
using CoGeoLosses = Collection<CoGeoLossesBase, IGeoLoss>;
using CoGeoPointLists = Collection<CoGeoPointListsBase, IGeoPoints>;

}  // namespace KelIFC

#endif  // KELIFC_GEO_BUILDING_COLLECTIONS_H_
