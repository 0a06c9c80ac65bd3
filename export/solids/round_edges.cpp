#include "export/solids/round_edges.h"

#include <algorithm>
#include <cstddef>
#include <tuple>

#include "kelifc/geometry/point.h"

namespace KelIFC::exporting {
namespace {

constexpr double kMostRoundCosine = 0.9999863;  // of 0.3 degrees

/// An edge of a triangle.
struct TriangleEdge {
  Mesh::Index low = 0;    ///< the end with the smaller index
  Mesh::Index high = 0;   ///< the other end
  Mesh::Index third = 0;  ///< the corner of the triangle that is not an end
  Mesh::Index face = 0;
  bool isForward = false;  ///< true if the triangle goes from `low` to `high`
};

/// The unit normals of the faces; zero for a face without triangles.
std::vector<Vector3> NormalsOf(const Mesh& mesh, const std::vector<MeshTriangle>& triangles) {
  std::vector<Vector3> normals(mesh.FaceCount());
  for (const MeshTriangle& triangle : triangles) {
    const auto& [a, b, c] = triangle.corners;
    Vector3& normal = normals[triangle.face];
    normal = normal + Cross(mesh.points[b] - mesh.points[a], mesh.points[c] - mesh.points[a]);
  }
  for (Vector3& normal : normals) Normalise(normal);
  return normals;
}

std::vector<TriangleEdge> SortedEdgesOf(const std::vector<MeshTriangle>& triangles) {
  std::vector<TriangleEdge> edges;
  edges.reserve(3 * triangles.size());
  for (const MeshTriangle& triangle : triangles) {
    for (std::size_t i = 0; i < 3; ++i) {
      const Mesh::Index from = triangle.corners[i];
      const Mesh::Index to = triangle.corners[(i + 1) % 3];
      edges.push_back({std::min(from, to), std::max(from, to), triangle.corners[(i + 2) % 3],
                       triangle.face, from < to});
    }
  }
  std::sort(edges.begin(), edges.end(), [](const TriangleEdge& a, const TriangleEdge& b) {
    return std::tie(a.low, a.high, a.face, a.third) < std::tie(b.low, b.high, b.face, b.third);
  });
  return edges;
}

bool IsConvex(const Mesh& mesh, const TriangleEdge& edge, const Vector3& normal,
              const TriangleEdge& other) {
  return Dot(mesh.points[other.third] - mesh.points[edge.low], normal) < 0.0;
}

}  // namespace

std::vector<RoundEdge> RoundEdgesOf(const Mesh& mesh, const std::vector<MeshTriangle>& triangles,
                                    bool isClosed) {
  const std::vector<Vector3> normals = NormalsOf(mesh, triangles);
  const std::vector<TriangleEdge> edges = SortedEdgesOf(triangles);
  std::vector<RoundEdge> result;
  for (std::size_t i = 0; i < edges.size();) {
    std::size_t next = i + 1;
    while (next < edges.size() && edges[next].low == edges[i].low &&
           edges[next].high == edges[i].high) {
      ++next;
    }
    const TriangleEdge& first = edges[i];
    const TriangleEdge& second = edges[next - 1];
    const bool isPair = next - i == 2;
    i = next;
    if (!isPair || first.face == second.face || first.isForward == second.isForward) continue;
    const double cosine = Dot(normals[first.face], normals[second.face]);
    if (!(cosine >= kLeastRoundCosine && cosine <= kMostRoundCosine)) continue;
    if (isClosed && !IsConvex(mesh, first, normals[first.face], second)) continue;
    const bool isForward = first.isForward;
    result.push_back(
        {{first.low, first.high},
         {isForward ? first.third : second.third, isForward ? second.third : first.third}});
  }
  return result;
}

}  // namespace KelIFC::exporting
