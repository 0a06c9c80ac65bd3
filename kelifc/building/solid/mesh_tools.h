#ifndef KELIFC_BUILDING_SOLID_MESH_TOOLS_H_
#define KELIFC_BUILDING_SOLID_MESH_TOOLS_H_

#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/building/facts/transform3.h"
#include "kelifc/building/mesh.h"

namespace KelIFC::building {

// What bodies are made with: changes of whole meshes.

/// A mesh whose points are one point where they are within `distance` of each other. Points that no
/// face uses go. Loops lose repeated points; loops of fewer than three points go, and faces whose
/// outer loop does. Faces that use an index beyond the points or a point that is not usable go.
Mesh Weld(const Mesh& mesh, double distance);

/// A mesh with all loops reversed.
Mesh Flip(const Mesh& mesh);

/// Adds the points and faces of a mesh to another one. Nothing is computed.
void Append(Mesh& mesh, Mesh other);

/// Applies a map to all points. A map that mirrors reverses the loops.
Mesh Moved(Mesh mesh, const Transform3& map);

/// A mesh in which edges that lack a neighbour have the points of other such edges that lie on them
/// within a distance. It closes boundaries whose faces meet along an edge that only one of them
/// divides. Edges that three faces use count as lacking one.
Mesh SplitEdges(const Mesh& mesh, double tolerance);

/// The parts of a mesh that share no point, in the order of their first points.
std::vector<Mesh> PartsOf(const Mesh& mesh);

/// A directed use of the edge between two points.
struct EdgeUse {
  Mesh::Index from = 0;
  Mesh::Index to = 0;
  Mesh::Index face = 0;
};

/// All edges of all loops, those with the same ends next to each other, then by face.
std::vector<EdgeUse> SortedEdgesOf(const Mesh& mesh);

/// True if each edge is used as often in one direction as in the other. Points are one point only
/// if they have one index.
bool IsBalanced(const Mesh& mesh);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_MESH_TOOLS_H_
