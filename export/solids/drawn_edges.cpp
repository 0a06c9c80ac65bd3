#include "export/solids/drawn_edges.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "kelifc/geometry/point.h"

#include "export/solids/round_edges.h"

namespace KelIFC::exporting {
namespace {

/// An edge of a face.
struct EdgeUse {
  MeshEdge ends;
  Mesh::Index face = 0;
};

bool HasValidIndices(const Mesh& mesh, const Mesh::Loop& loop) {
  return std::all_of(loop.begin(), loop.end(),
                     [&](Mesh::Index p) { return p < mesh.points.size(); });
}

/// The unit normal of a face; zero if it has none.
Vector3 NormalOf(const Mesh& mesh, const Mesh::Loop& outer) {
  Vector3 sum;
  for (std::size_t i = 1; i + 1 < outer.size(); ++i) {
    const Point3& origin = mesh.points[outer[0]];
    sum = sum + Cross(mesh.points[outer[i]] - origin, mesh.points[outer[i + 1]] - origin);
  }
  const double length = Length(sum);
  return length > 0.0 && std::isfinite(length) ? sum / length : Vector3();
}

void AppendEdges(const Mesh::Loop& loop, Mesh::Index face, std::vector<EdgeUse>& edges) {
  for (std::size_t i = 0; i < loop.size(); ++i) {
    const Mesh::Index from = loop[i];
    const Mesh::Index to = loop[i + 1 < loop.size() ? i + 1 : 0];
    if (from != to) edges.push_back({{std::min(from, to), std::max(from, to)}, face});
  }
}

/// True if the faces of the uses of one edge are not nearly in one plane.
bool IsDrawn(const EdgeUse* first, const EdgeUse* last, const std::vector<Vector3>& normals) {
  if (last - first == 1) return true;
  return std::any_of(first + 1, last, [&](const EdgeUse& use) {
    return Dot(normals[first->face], normals[use.face]) < kLeastRoundCosine;
  });
}

}  // namespace

std::vector<MeshEdge> DrawnEdgesOf(const Mesh& mesh) {
  std::vector<Vector3> normals(mesh.FaceCount());
  std::vector<EdgeUse> uses;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    if (mesh.LoopCount(face) == 0 || !HasValidIndices(mesh, mesh.LoopOf(face, 0))) continue;
    normals[face] = NormalOf(mesh, mesh.LoopOf(face, 0));
    if (Length(normals[face]) == 0.0) continue;
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      const Mesh::Loop loop = mesh.LoopOf(face, i);
      if (HasValidIndices(mesh, loop)) AppendEdges(loop, static_cast<Mesh::Index>(face), uses);
    }
  }
  std::sort(uses.begin(), uses.end(), [](const EdgeUse& a, const EdgeUse& b) {
    return a.ends < b.ends || (a.ends == b.ends && a.face < b.face);
  });
  std::vector<MeshEdge> edges;
  const EdgeUse* const end = uses.data() + uses.size();
  for (const EdgeUse* first = uses.data(); first != end;) {
    const EdgeUse* const last =
        std::find_if(first, end, [&](const EdgeUse& use) { return use.ends != first->ends; });
    if (IsDrawn(first, last, normals)) edges.push_back(first->ends);
    first = last;
  }
  return edges;
}

}  // namespace KelIFC::exporting
