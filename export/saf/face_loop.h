#ifndef EXPORT_SAF_FACE_LOOP_H_
#define EXPORT_SAF_FACE_LOOP_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/mesh.h"

namespace KelIFC::exporting::saf {

/// A face as one loop.
struct FaceLoop {
  std::vector<Mesh::Index> points;  ///< indices of Mesh::points
  std::size_t lostHoles = 0;        ///< holes that could not be joined to the loop
};

/// Joins the holes of a face to its outer loop. A pair of edges, which lie on each other, connects
/// a hole with the loop. The indices and coordinates of the mesh must be valid. A face whose number
/// of points times its number of holes is very large keeps its first holes only.
FaceLoop SingleLoopOf(const Mesh& mesh, std::size_t face);

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_FACE_LOOP_H_
