#ifndef KELIFC_IMPORT_OPENING_READ_OPENINGS_H_
#define KELIFC_IMPORT_OPENING_READ_OPENINGS_H_

#include <vector>

#include "kelifc/import/opening/opening_facts.h"
#include "kelifc/import/shape/read_placements.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// Reads the openings of a wall or a slab, in the order of the relations that assign them.
/// Relations without an opening are skipped. `scale` is the factor from the length unit of the file
/// to metres.
template <class Release>
std::vector<OpeningFacts> ReadOpenings(const typename Release::IfcBuildingElement& element,
                                       const IfcServer& server,
                                       PlacementReader<Release>& placements, double scale);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_OPENING_READ_OPENINGS_H_
