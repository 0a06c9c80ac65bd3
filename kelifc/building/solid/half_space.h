#ifndef KELIFC_BUILDING_SOLID_HALF_SPACE_H_
#define KELIFC_BUILDING_SOLID_HALF_SPACE_H_

#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/mesh.h"

namespace KelIFC::building {

/// Cuts a mesh by a half-space: `keepsInside` keeps the part in the half-space (an intersection),
/// otherwise the part out of it (a difference). Returns false, and leaves `result`, if it could not
/// be computed.
bool CutByHalfSpace(const Mesh& mesh, const HalfSpace& cutter, bool keepsInside, Mesh& result);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_HALF_SPACE_H_
