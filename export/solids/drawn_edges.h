#ifndef EXPORT_SOLIDS_DRAWN_EDGES_H_
#define EXPORT_SOLIDS_DRAWN_EDGES_H_

#include <array>
#include <vector>

#include "kelifc/building/mesh.h"

namespace KelIFC::exporting {

/// The two ends of an edge, as indices in Mesh::points, the smaller one first.
using MeshEdge = std::array<Mesh::Index, 2>;

/// The edges that a drawing of a mesh shows, sorted: those of only one face, and those whose faces
/// meet at an angle of more than 25 degrees. So the chords of round surfaces are left out. Faces
/// without an area do not count. Loops with an index that is not less than the number of points are
/// left out.
std::vector<MeshEdge> DrawnEdgesOf(const Mesh& mesh);

}  // namespace KelIFC::exporting

#endif  // EXPORT_SOLIDS_DRAWN_EDGES_H_
