#ifndef KELIFC_BUILDING_READ_SHELLS_H_
#define KELIFC_BUILDING_READ_SHELLS_H_

#include <optional>
#include <vector>

#include "kelifc/building/mesh.h"
#include "kelifc/building/read/read_context.h"

namespace KelIFC::building {

/// The faces of connected face sets as one mesh. An instance of a point that several faces use
/// becomes one point of the mesh. Bounds are turned round as the file says, inner bounds against
/// the outer one. Faces with fewer than three points are left out.
///
/// None, and `why`, if a face cannot be read.
std::optional<Mesh> ReadFaces(ReadContext& context, const std::vector<Instance>& shells,
                              Unreadable& why);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_SHELLS_H_
