#ifndef KELIFC_IMPORT_PLATE_READ_PLATE_H_
#define KELIFC_IMPORT_PLATE_READ_PLATE_H_

#include "kelifc/import/plate/plate_facts.h"
#include "kelifc/import/shape/read_placements.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// A slab, read whole if it is an extrusion. It is one as soon as any representation holds one.
/// `scale` is the factor from lengths of the file to metres.
template <class Release>
PlateFacts ReadPlate(const typename Release::IfcSlab& slab, const IfcServer& server,
                     PlacementReader<Release>& placements, double scale);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_PLATE_READ_PLATE_H_
