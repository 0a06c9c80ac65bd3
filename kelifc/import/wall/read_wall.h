#ifndef KELIFC_IMPORT_WALL_READ_WALL_H_
#define KELIFC_IMPORT_WALL_READ_WALL_H_

#include <optional>

#include "kelifc/import/shape/read_placements.h"
#include "kelifc/import/wall/wall_facts.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// Reads a wall. Returns nothing if no representation with the identifier "Body" contains an
/// extrusion. `scale` is the factor from the length unit of the file to metres.
template <class Release>
std::optional<WallFacts> ReadWall(const typename Release::IfcWall& wall, const IfcServer& server,
                                  PlacementReader<Release>& placements, double scale);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_WALL_READ_WALL_H_
