#ifndef KELIFC_IMPORT_STOREY_BUILD_STOREYS_H_
#define KELIFC_IMPORT_STOREY_BUILD_STOREYS_H_

#include <vector>

#include "kelifc/geo/storeys.h"
#include "kelifc/import/storey/storey_facts.h"

namespace KelIFC {

/// Makes the storey objects, from the lowest level to the highest; storeys of one level keep their
/// order, and one whose level is not a number counts as the highest.
///
/// The lowest storey that is not below level 0 by more than a thousandth has the number 0, those
/// below it -1, -2 and so on. A number that does not fit into 16 bits becomes the nearest that
/// does; upwards that is the mark for a storey without a number. A storey reaches up to the level
/// of the next one; the highest has its elevation for height, whatever that says. A storey without
/// a name is called after its instance number, "IFC#123".
///
/// Gives the failure of the first object that cannot be made; those ahead of it stay.
HRESULT BuildStoreys(CoGeoStoreys& collection, std::vector<StoreyFacts> storeys);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_STOREY_BUILD_STOREYS_H_
