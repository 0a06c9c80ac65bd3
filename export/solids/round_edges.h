#ifndef EXPORT_SOLIDS_ROUND_EDGES_H_
#define EXPORT_SOLIDS_ROUND_EDGES_H_

#include <array>
#include <vector>

#include "kelifc/building/mesh.h"
#include "kelifc/building/triangulation.h"

namespace KelIFC::exporting {

/// The cosine of the largest angle between two faces of a round surface: 25 degrees.
constexpr double kLeastRoundCosine = 0.9063;

/// An edge between two faces of a round surface, such as a cylinder. A drawing shows it only where
/// it is the outline of the surface: where one of its faces is seen and the other is not.
struct RoundEdge {
  std::array<Mesh::Index, 2> ends = {};    ///< indices in Mesh::points
  std::array<Mesh::Index, 2> beside = {};  ///< the third corners of the triangles on both sides
};

/// The edges of round surfaces: those of exactly two faces that meet at an angle of 0.3 to 25
/// degrees. `triangles` are those of the mesh. Of a closed mesh only convex edges are returned,
/// because the others are never an outline.
std::vector<RoundEdge> RoundEdgesOf(const Mesh& mesh, const std::vector<MeshTriangle>& triangles,
                                    bool isClosed);

}  // namespace KelIFC::exporting

#endif  // EXPORT_SOLIDS_ROUND_EDGES_H_
