#ifndef KELIFC_IMPORT_PLATE_READ_PLATE_H_
#define KELIFC_IMPORT_PLATE_READ_PLATE_H_

#include "kelifc/import/plate/plate_facts.h"
#include "kelifc/import/shape/read_placements.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// Reads a slab. It takes the first extrusion of all representations, whatever comes before it.
/// `scale` is the factor from the length unit of the file to metres.
template <class Release>
PlateFacts ReadPlate(const typename Release::IfcSlab& slab, const IfcServer& server,
                     PlacementReader<Release>& placements, double scale);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_PLATE_READ_PLATE_H_
