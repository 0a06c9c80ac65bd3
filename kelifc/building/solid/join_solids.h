#ifndef KELIFC_BUILDING_SOLID_JOIN_SOLIDS_H_
#define KELIFC_BUILDING_SOLID_JOIN_SOLIDS_H_

#include <optional>

#include "kelifc/building/mesh.h"

namespace KelIFC::building {

/// The union of the solids of a mesh. A solid is a part that shares no point index with the others.
/// Solids that touch or overlap become one, without the faces between them. None if a part is open
/// or a cavity, if there is only one, if the mesh is large, or if the union cannot be computed
/// robustly.
std::optional<Mesh> JoinSolids(const Mesh& mesh);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_JOIN_SOLIDS_H_
