#ifndef KELIFC_BUILDING_SOLID_SELECT_FACES_H_
#define KELIFC_BUILDING_SOLID_SELECT_FACES_H_

#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/mesh.h"
#include "kelifc/building/solid/arrangement.h"
#include "kelifc/building/solid/distance.h"

namespace KelIFC::building {

/// The pieces of the faces of two meshes that bound the result of an operation, joined to as few
/// faces as possible. The meshes are in the coordinates of the arrangement, and so is the result.
Mesh SelectFaces(Arrangement& arrangement, const SurfaceDistance& first,
                 const SurfaceDistance& second, BooleanOperation operation);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_SELECT_FACES_H_
