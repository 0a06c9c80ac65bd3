#ifndef KELIFC_BUILDING_TRIANGULATION_H_
#define KELIFC_BUILDING_TRIANGULATION_H_

#include <array>
#include <vector>

#include "kelifc/building/mesh.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A triangle of a face.
struct MeshTriangle {
  /// Indices in Mesh::points, counter-clockwise seen from outside if the face does not cross
  /// itself.
  std::array<Mesh::Index, 3> corners = {};
  Mesh::Index face = 0;  ///< the face of which it is a part
};

/// The triangles of all faces, by rising face. Holes are left out of their faces. No points are
/// added: each corner is a point of a loop of the face. A face that is not quite plane is projected
/// for the choice of the triangles only.
///
/// A face has no triangles if it has no area, if an index is not less than the number of points, or
/// if a point is not finite. The triangles of a face that crosses itself overlap, and some of them
/// are clockwise, so that their signed areas add up to the area of the face. The time is n log n, n
/// being the number of indices.
KELIFC_API std::vector<MeshTriangle> TrianglesOf(const Mesh& mesh);

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_TRIANGULATION_H_
